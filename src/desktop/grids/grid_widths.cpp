#include "desktop/grids/grid_widths.h"

#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

#include "charts/text.h"

namespace tarnvik {

namespace {

constexpr int kSampledRows = 400;
constexpr int kRowsInView = 60;
constexpr int kLeastLetters = 6;
constexpr int kMostLetters = 40;
constexpr int kTwipsPerInch = 1440;

// Digits are equally wide, so the longest text is the widest or nearly so.
void NoteLonger(const Grid& grid, int row, std::vector<int>& longest) {
  for (int col = 0; col < grid.Cols(); ++col) {
    int& best = longest[static_cast<std::size_t>(col)];
    if (grid.TextMatrix(row, col).size() > grid.TextMatrix(best, col).size()) best = row;
  }
}

// For each column the row of its longest text in the sample.
std::vector<int> LongestTexts(const Grid& grid, int first_in_view) {
  std::vector<int> longest(static_cast<std::size_t>(grid.Cols()), grid.FixedRows);
  const int step = std::max(1, grid.Rows() / kSampledRows);
  for (int row = grid.FixedRows; row < grid.Rows(); row += step) NoteLonger(grid, row, longest);
  const int end = std::min(grid.Rows(), first_in_view + kRowsInView);
  for (int row = std::max(first_in_view, grid.FixedRows); row < end; ++row) NoteLonger(grid, row, longest);
  return longest;
}

int WidestWord(const QFontMetrics& metrics, const QString& text) {
  int widest = 0;
  for (const QString& word : text.split(u' ')) widest = std::max(widest, metrics.horizontalAdvance(word));
  return widest;
}

// On two or three lines a long heading takes about half its length.
int HeadingWidth(const QFontMetrics& metrics, const QString& text) {
  const int whole = metrics.horizontalAdvance(text);
  const int letter = metrics.averageCharWidth();
  if (whole <= 10 * letter) return whole;
  return std::max(WidestWord(metrics, text), whole / 2 + 2 * letter);
}

QString Heading(const Grid& grid, int row, int col) {
  return BrokenAtBlanks(ShownText(grid.TextMatrix(row, col)));
}

}  // namespace

std::vector<int> FittingWidths(const Grid& grid, const QFont& font, int dots_per_inch, int first_in_view) {
  const QFontMetrics metrics(font);
  const int letter = metrics.averageCharWidth();
  const bool body = grid.Rows() > grid.FixedRows;
  const std::vector<int> longest = body ? LongestTexts(grid, first_in_view) : std::vector<int>();
  std::vector<int> widths;
  for (int col = 0; col < grid.Cols(); ++col) {
    int width = kLeastLetters * letter;
    for (int row = 0; row < std::min(grid.FixedRows, grid.Rows()); ++row) {
      width = std::max(width, HeadingWidth(metrics, Heading(grid, row, col)));
    }
    if (body) {
      const std::string& text = grid.TextMatrix(longest[static_cast<std::size_t>(col)], col);
      width = std::max(width, metrics.horizontalAdvance(ShownText(text)) + letter);
    }
    width = std::min(width, kMostLetters * letter) + 2 * kCellMargin;
    const int twips = grid.ColWidth(col);
    widths.push_back(twips == 0 ? 0 : std::max(width, twips * dots_per_inch / kTwipsPerInch));
  }
  return widths;
}

int HeadingHeight(const Grid& grid, const QFont& font, const std::vector<int>& widths) {
  const QFontMetrics metrics(font);
  int height = RowHeight(font);
  const int cols = std::min(grid.Cols(), static_cast<int>(widths.size()));
  for (int row = 0; row < std::min(grid.FixedRows, grid.Rows()); ++row) {
    for (int col = 0; col < cols; ++col) {
      const int width = widths[static_cast<std::size_t>(col)] - 2 * kCellMargin;
      if (width <= 0) continue;
      const QRect place(0, 0, width, 10 * metrics.height());
      height = std::max(height,
                        metrics.boundingRect(place, Qt::TextWordWrap, Heading(grid, row, col)).height() + 6);
    }
  }
  return height;
}

QString BrokenAtBlanks(QString heading) {
  constexpr char16_t kWordJoiner = 0x2060;
  return heading.replace(u'/', QString(u'/') + QChar(kWordJoiner));
}

int RowHeight(const QFont& font) { return QFontMetrics(font).height() + 6; }

}  // namespace tarnvik
