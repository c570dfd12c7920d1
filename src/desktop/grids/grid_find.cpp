#include "desktop/grids/grid_find.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "charts/text.h"
#include "core/text.h"
#include "desktop/grids/grid_moves.h"
#include "desktop/grids/grid_table.h"

namespace tarnvik {

namespace {

// Whether a text stands in a cell or in what labels it: labels belong to the first cell of the row, headings
// to the first of the column.
bool Holds(const Grid& grid, CellAt at, CellAt first, std::string_view upper) {
  if (HoldsUpper(grid.TextMatrix(at.row, at.col), upper)) return true;
  for (int col = 0; at.col == first.col && col < LabelCols(grid); ++col) {
    if (HoldsUpper(grid.TextMatrix(at.row, col), upper)) return true;
  }
  for (int row = 0; at.row == first.row && row < grid.FixedRows; ++row) {
    if (HoldsUpper(grid.TextMatrix(row, at.col), upper)) return true;
  }
  return false;
}

}  // namespace

std::optional<CellAt> FindInGrid(const Grid& grid, std::string_view text, CellAt from, bool back) {
  if (text.empty() || !HasBody(grid)) return std::nullopt;
  const CellAt first = FirstCell(grid);
  const std::vector<int> rows = ShownRows(grid, first.row, grid.Rows() - 1);
  const std::vector<int> cols = ShownCols(grid, first.col, grid.Cols() - 1);
  if (rows.empty() || cols.empty()) return std::nullopt;
  const std::string upper = UCase(text);
  const auto cells = static_cast<long long>(rows.size() * cols.size());
  const auto width = static_cast<long long>(cols.size());
  const auto place = [](const std::vector<int>& all, int at) {
    return static_cast<long long>(std::lower_bound(all.begin(), all.end(), at) - all.begin());
  };
  const long long start = place(rows, from.row) * width + place(cols, from.col);
  for (long long i = 1; i <= cells; ++i) {
    const long long cell = (start + (back ? cells - i : i)) % cells;
    const CellAt at = {rows[static_cast<std::size_t>(cell / width)],
                       cols[static_cast<std::size_t>(cell % width)]};
    if (Holds(grid, at, first, upper)) return at;
  }
  return std::nullopt;
}

FindBar::FindBar(GridTable& table, QWidget* parent)
    : QWidget(parent), table_(table), text_(new QLineEdit), note_(new QLabel) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 2, 0, 0);
  auto* caption = new QLabel(QStringLiteral("F&ind:"));
  caption->setBuddy(text_);
  text_->setAccessibleName(QStringLiteral("Text to find in the table"));
  row->addWidget(caption);
  row->addWidget(text_, 1);
  const auto add = [&](Qt::ArrowType arrow, const char* tip, bool back) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setToolTip(QString::fromLatin1(tip));
    button->setAccessibleName(QString::fromLatin1(tip));
    connect(button, &QToolButton::clicked, this, [this, back] { FindNext(back); });
    row->addWidget(button);
  };
  add(Qt::DownArrow, "Find next (F3)", false);
  add(Qt::UpArrow, "Find previous (Shift+F3)", true);
  row->addWidget(note_, 1);
  auto* close = new QToolButton;
  close->setText(QStringLiteral("\u00d7"));
  close->setToolTip(QStringLiteral("Close (Esc)"));
  close->setAccessibleName(QStringLiteral("Close"));
  connect(close, &QToolButton::clicked, this, [this] { Close(); });
  row->addWidget(close);
  hide();
}

void FindBar::Open() {
  note_->clear();
  show();
  text_->selectAll();
  text_->setFocus();
}

void FindBar::Close() {
  hide();
  table_.setFocus();
}

void FindBar::FindNext(bool back) {
  const Grid* grid = table_.Shown();
  if (!grid || !HasBody(*grid)) return;
  if (text_->text().isEmpty()) return Open();
  const auto found = FindInGrid(*grid, TypedText(text_->text()), SelectionOf(*grid).start, back);
  note_->setText(found ? ShownText(CellName(*grid, *found)) : QStringLiteral("Not found"));
  if (found) table_.Choose({*found, *found});
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F3) {
    FindNext(shift);
  } else if (event->key() == Qt::Key_Escape) {
    Close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace tarnvik
