#include "desktop/forms/text_area.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cctype>

#include "charts/text.h"

namespace tarnvik {

namespace {

const std::string kNoText;
constexpr int kMargin = 4;
constexpr std::size_t kTabStop = 8;
constexpr std::size_t kMostColumns = 20000;  // drawn of one line; what is behind can be found and copied

int ToInt(std::size_t number) { return static_cast<int>(std::min<std::size_t>(number, 1 << 30)); }

bool IsWordByte(char byte) { return !std::isspace(static_cast<unsigned char>(byte)); }

char Lower(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte; }

}  // namespace

TextArea::TextArea(QWidget* parent) : QAbstractScrollArea(parent), text_(&kNoText) {
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setBackgroundRole(QPalette::Base);
  SetText(kNoText);
}

void TextArea::SetText(const std::string& text) {
  text_ = &text;
  line_starts_ = {0};
  line_starts_.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
  longest_ = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1)) {
    longest_ = std::max(longest_, end - line_starts_.back());
    line_starts_.push_back(end + 1);
  }
  longest_ = std::max(longest_, text.size() - line_starts_.back());
  anchor_ = caret_ = 0;
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
  FitScrollBars();
  viewport()->update();
}

void TextArea::ForgetText() { SetText(kNoText); }

// --- Lines, columns, bytes

std::string_view TextArea::Line(std::size_t line) const {
  const std::size_t start = std::min(line_starts_[line], text_->size());
  std::size_t end = line + 1 < line_starts_.size() ? line_starts_[line + 1] - 1 : text_->size();
  end = std::clamp(end, start, text_->size());  // the text may just have been replaced
  if (end > start && (*text_)[end - 1] == '\r') --end;
  return std::string_view(*text_).substr(start, end - start);
}

TextArea::Drawn TextArea::DrawnLine(std::size_t line) const {
  const std::string_view bytes = Line(line).substr(0, kMostColumns);
  const QString text = ShownText(bytes);
  const bool utf8 = text.toUtf8().size() == static_cast<qsizetype>(bytes.size());
  Drawn drawn;
  std::size_t at = line_starts_[line];
  for (const QChar character : text) {
    const bool tab = character == '\t';
    do {
      drawn.characters += tab ? QChar(' ') : character;
      drawn.bytes.push_back(at);
    } while (tab && drawn.bytes.size() % kTabStop != 0);
    const bool second_half = character.isLowSurrogate();
    at += utf8 ? static_cast<std::size_t>(second_half                   ? 0
                                          : character.isSurrogate()     ? 4
                                          : character.unicode() < 0x80  ? 1
                                          : character.unicode() < 0x800 ? 2
                                                                        : 3)
               : 1;
  }
  drawn.bytes.push_back(line_starts_[line] + bytes.size());
  return drawn;
}

std::size_t TextArea::LineAt(std::size_t byte) const {
  const auto behind = std::upper_bound(line_starts_.begin(), line_starts_.end(), byte);
  return static_cast<std::size_t>(behind - line_starts_.begin()) - 1;
}

std::size_t TextArea::ColumnAt(std::size_t line, std::size_t byte) const {
  const Drawn drawn = DrawnLine(line);
  const auto at = std::lower_bound(drawn.bytes.begin(), drawn.bytes.end(), byte);
  return std::min(static_cast<std::size_t>(at - drawn.bytes.begin()), drawn.bytes.size() - 1);
}

std::size_t TextArea::ByteAt(std::size_t line, std::size_t column) const {
  const Drawn drawn = DrawnLine(line);
  return drawn.bytes[std::min(column, drawn.bytes.size() - 1)];
}

std::size_t TextArea::ByteAt(const QPoint& point) const {
  const QFontMetrics metrics(font());
  const int row = verticalScrollBar()->value() + point.y() / metrics.height();
  const int width = metrics.horizontalAdvance('0');
  const int x = point.x() - kMargin + horizontalScrollBar()->value() + width / 2;
  const auto line = static_cast<std::size_t>(std::clamp(row, 0, ToInt(LineCount()) - 1));
  return ByteAt(line, static_cast<std::size_t>(std::max(x, 0) / width));
}

std::size_t TextArea::VisibleLines() const {
  return static_cast<std::size_t>(std::max(viewport()->height() / QFontMetrics(font()).height(), 1));
}

// --- Drawing

void TextArea::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.setFont(font());
  const QFontMetrics metrics(font());
  const int width = metrics.horizontalAdvance('0');
  const int left = kMargin - horizontalScrollBar()->value();
  const QPalette& colours = palette();
  const auto first = static_cast<std::size_t>(verticalScrollBar()->value());
  const std::size_t last = std::min(first + VisibleLines() + 1, LineCount());
  for (std::size_t line = first; line < last; ++line) {
    const int top = ToInt(line - first) * metrics.height();
    const Drawn drawn = DrawnLine(line);
    painter.setPen(colours.color(QPalette::Text));
    painter.drawText(left, top + metrics.ascent(), drawn.characters);
    const auto column = [&](std::size_t byte) {
      return ToInt(static_cast<std::size_t>(std::lower_bound(drawn.bytes.begin(), drawn.bytes.end(), byte) -
                                            drawn.bytes.begin()));
    };
    const int from = std::min(column(SelectionStart()), ToInt(drawn.bytes.size()) - 1);
    const int to = std::min(column(SelectionEnd()), ToInt(drawn.bytes.size()) - 1);
    const bool touched = SelectionStart() <= drawn.bytes.back() && SelectionEnd() >= drawn.bytes.front();
    if (touched && to > from) {
      const QRect marked(left + from * width, top, (to - from) * width, metrics.height());
      painter.fillRect(marked, colours.color(QPalette::Highlight));
      painter.setPen(colours.color(QPalette::HighlightedText));
      painter.drawText(marked.left(), top + metrics.ascent(), drawn.characters.mid(from, to - from));
    }
    if (hasFocus() && LineAt(caret_) == line) {
      const int x = left + std::min(column(caret_), ToInt(drawn.bytes.size()) - 1) * width;
      painter.fillRect(QRect(x, top, 1, metrics.height()), colours.color(QPalette::Text));
    }
  }
}

void TextArea::FitScrollBars() {
  const QFontMetrics metrics(font());
  const int width =
      ToInt(std::min(longest_, kMostColumns) + 1) * metrics.horizontalAdvance('0') + 2 * kMargin;
  verticalScrollBar()->setPageStep(ToInt(VisibleLines()));
  verticalScrollBar()->setRange(0, std::max(ToInt(LineCount()) - ToInt(VisibleLines()), 0));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(metrics.horizontalAdvance('0'));
  horizontalScrollBar()->setRange(0, std::max(width - viewport()->width(), 0));
}

void TextArea::resizeEvent(QResizeEvent*) { FitScrollBars(); }

void TextArea::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) FitScrollBars();
  QAbstractScrollArea::changeEvent(event);
}

// --- Moving and marking

void TextArea::MoveTo(std::size_t byte, bool keep_anchor) {
  caret_ = std::min(byte, text_->size());
  if (!keep_anchor) anchor_ = caret_;
  ShowCaret();
  viewport()->update();
  if (on_selection) on_selection();
}

void TextArea::Select(std::size_t start, std::size_t end) {
  anchor_ = std::min(start, text_->size());
  MoveTo(end, true);
}

void TextArea::ShowCaret() {
  const std::size_t line = LineAt(caret_);
  QScrollBar* down = verticalScrollBar();
  if (ToInt(line) < down->value()) down->setValue(ToInt(line));
  if (line >= static_cast<std::size_t>(down->value()) + VisibleLines()) {
    down->setValue(ToInt(line - VisibleLines() + 1));
  }
  const int width = QFontMetrics(font()).horizontalAdvance('0');
  const int x = ToInt(ColumnAt(line, caret_)) * width;
  QScrollBar* across = horizontalScrollBar();
  if (x < across->value()) across->setValue(x);
  const int room = viewport()->width() - 2 * kMargin - width;
  if (x > across->value() + room) across->setValue(x - room);
}

void TextArea::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    const std::size_t start = SelectionStart();
    const std::string marked = text_->substr(start, SelectionEnd() - start);
    if (!marked.empty()) QApplication::clipboard()->setText(ShownText(marked));
    return;
  }
  if (event->matches(QKeySequence::SelectAll)) return Select(0, text_->size());
  const bool keep = event->modifiers() & Qt::ShiftModifier;
  const bool far = event->modifiers() & Qt::ControlModifier;
  const std::size_t line = LineAt(caret_);
  const std::size_t column = ColumnAt(line, caret_);
  const auto to_line = [&](std::size_t down, std::size_t up) {
    const std::size_t target = std::min(line + down - std::min(up, line + down), LineCount() - 1);
    MoveTo(ByteAt(target, column), keep);
  };
  switch (event->key()) {
    case Qt::Key_Up:
      return to_line(0, 1);
    case Qt::Key_Down:
      return to_line(1, 0);
    case Qt::Key_PageUp:
      return to_line(0, VisibleLines());
    case Qt::Key_PageDown:
      return to_line(VisibleLines(), 0);
    case Qt::Key_Left:
      if (column > 0) return MoveTo(ByteAt(line, column - 1), keep);
      return MoveTo(line > 0 ? ByteAt(line - 1, kMostColumns) : 0, keep);
    case Qt::Key_Right:
      if (column + 1 < DrawnLine(line).bytes.size()) return MoveTo(ByteAt(line, column + 1), keep);
      return MoveTo(line + 1 < LineCount() ? line_starts_[line + 1] : caret_, keep);
    case Qt::Key_Home:
      return MoveTo(far ? 0 : line_starts_[line], keep);
    case Qt::Key_End:
      return MoveTo(far ? text_->size() : ByteAt(line, kMostColumns), keep);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void TextArea::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) MoveTo(ByteAt(event->pos()), event->modifiers() & Qt::ShiftModifier);
}

void TextArea::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) MoveTo(ByteAt(event->pos()), true);
}

void TextArea::mouseDoubleClickEvent(QMouseEvent* event) {
  std::size_t start = ByteAt(event->pos());
  std::size_t end = start;
  while (start > 0 && IsWordByte((*text_)[start - 1])) --start;
  while (end < text_->size() && IsWordByte((*text_)[end])) ++end;
  Select(start, end);
}

// --- Finding

bool TextArea::Find(const std::string& words, bool forward, bool match_case) {
  if (words.empty()) return false;
  const auto same = [match_case](char a, char b) { return match_case ? a == b : Lower(a) == Lower(b); };
  const auto begin = text_->begin();
  const auto end = text_->end();
  const auto step = [&](auto from, auto to) {
    return std::search(from, to, words.begin(), words.end(), same);
  };
  auto found = end;
  if (forward) {
    found = step(begin + static_cast<std::ptrdiff_t>(SelectionEnd()), end);
    if (found == end) found = step(begin, end);
  } else {
    const auto before = begin + static_cast<std::ptrdiff_t>(SelectionStart());
    found = std::find_end(begin, before, words.begin(), words.end(), same);
    if (found == before) found = std::find_end(begin, end, words.begin(), words.end(), same);
  }
  if (found == end) return false;
  const auto start = static_cast<std::size_t>(found - begin);
  Select(start, start + words.size());
  return true;
}

}  // namespace tarnvik
