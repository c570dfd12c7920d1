#include "desktop/grids/grid_paint.h"

#include <QPainter>
#include <algorithm>

#include "desktop/forms/look.h"
#include "desktop/grids/grid_widths.h"

namespace tarnvik {

namespace {

QColor Mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [=](int x, int y) { return static_cast<int>(x + (y - x) * share_of_b); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

void PaintHeading(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment alignment,
                  bool marked, const QPalette& palette) {
  const QColor face = palette.color(QPalette::Button);
  painter.fillRect(rect, marked ? Mixed(face, palette.color(QPalette::Highlight), 0.3) : face);
  painter.setPen(Mixed(face, palette.color(QPalette::ButtonText), 0.3));
  painter.drawLine(rect.topRight(), rect.bottomRight());
  painter.drawLine(rect.bottomLeft(), rect.bottomRight());
  painter.setPen(palette.color(QPalette::ButtonText));
  const QRect inside = rect.adjusted(kCellMargin, 0, -kCellMargin, -1);
  painter.drawText(inside, static_cast<int>(alignment.toInt()) | Qt::TextWordWrap, BrokenAtBlanks(text));
}

// A text wider than its cell ends in dots.
void PaintCellText(QPainter& painter, const QStyleOptionViewItem& cell) {
  const QFontMetrics& metrics = cell.fontMetrics;
  const QRect inside = cell.rect.adjusted(kCellMargin, 0, -kCellMargin, 0);
  int width = metrics.horizontalAdvance(cell.text);
  const bool fits = width <= inside.width();
  const QString text = fits ? cell.text : metrics.elidedText(cell.text, Qt::ElideRight, inside.width());
  if (!fits) width = metrics.horizontalAdvance(text);
  const QRect place =
      QStyle::alignedRect(Qt::LeftToRight, cell.displayAlignment, QSize(width, metrics.height()), inside);
  painter.setFont(cell.font);
  painter.drawText(place.left(), place.top() + metrics.ascent(), text);
}

}  // namespace

// --- Cells

void CellPainter::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state.setFlag(QStyle::State_HasFocus, false);  // the frame is ours
  const auto& model = static_cast<const GridModel&>(*index.model());
  const Grid* grid = model.Shown();
  const CellAt at = model.CellOf(index);
  if (!grid || at.row >= grid->Rows() || at.col >= grid->Cols()) return;
  const QPalette& palette = option->palette;
  const Color back = grid->CellBackColor(at.row, at.col);
  QColor ground = ShownColor(back, palette);
  if (back == kWindowBackground && !grid->CellEditable(at.row, at.col)) {
    ground = grid->Editable ? palette.color(QPalette::Button)
                            : Mixed(ground, palette.color(QPalette::Window), 0.5);
  }
  option->backgroundBrush = ground;
  option->palette.setColor(QPalette::Text, ShownColor(grid->CellForeColor(at.row, at.col), palette));
}

// Not left to the style, which lays out every text several times: a window full of cells shall be painted
// within a moment.
void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  painter->save();
  QStyleOptionViewItem drawn = option;
  initStyleOption(&drawn, index);
  const auto* table = qobject_cast<const QAbstractItemView*>(option.widget);
  const bool current = table && table->currentIndex() == index;
  // The current cell of a range is the one where it began: it stands out from the others.
  const bool marked = drawn.state.testFlag(QStyle::State_Selected) && !current;
  const auto group = drawn.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  drawn.rect.adjust(0, 0, -1, -1);
  painter->fillRect(drawn.rect,
                    marked ? drawn.palette.brush(group, QPalette::Highlight) : drawn.backgroundBrush);
  painter->setPen(drawn.palette.color(group, marked ? QPalette::HighlightedText : QPalette::Text));
  PaintCellText(*painter, drawn);
  const QRect& rect = option.rect;
  const QColor line = Mixed(option.palette.color(QPalette::Base), option.palette.color(QPalette::Text), 0.2);
  painter->fillRect(rect.right(), rect.top(), 1, rect.height(), line);
  painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, line);
  if (current) {
    const auto frame = table->hasFocus() ? QPalette::Active : QPalette::Inactive;
    painter->setPen(QPen(option.palette.color(frame, QPalette::Highlight), 2));
    painter->drawRect(rect.adjusted(1, 1, -2, -2));
  }
  painter->restore();
}

// --- Headers

GridHeader::GridHeader(Qt::Orientation orientation, const GridModel& model, QWidget* parent)
    : QHeaderView(orientation, parent), grid_(model) {
  setSectionsClickable(true);
  setHighlightSections(true);
}

void GridHeader::SetLabelWidths(std::vector<int> widths) {
  label_widths_ = std::move(widths);
  int total = 0;
  for (const int width : label_widths_) total += width;
  setFixedWidth(total);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  const Grid* grid = grid_.Shown();
  if (!grid || !rect.isValid()) return;
  const bool across = orientation() == Qt::Horizontal;
  const bool marked = across ? selectionModel()->columnIntersectsSelection(section, rootIndex())
                             : selectionModel()->rowIntersectsSelection(section, rootIndex());
  painter->save();
  if (across) {
    const QString text = grid_.headerData(section, orientation(), Qt::DisplayRole).toString();
    PaintHeading(*painter, rect, text, Qt::AlignCenter, marked, palette());
  } else {
    PaintLabels(*painter, rect, grid_.RowOf(section), marked);
  }
  painter->restore();
}

void GridHeader::PaintCorner(QPainter& painter, const QRect& rect) const {
  PaintLabels(painter, rect, 0, false);
}

void GridHeader::PaintLabels(QPainter& painter, const QRect& rect, int row, bool marked) const {
  const Grid* grid = grid_.Shown();
  int left = rect.left();
  for (std::size_t col = 0; grid && col < label_widths_.size(); ++col) {
    const QRect place(left, rect.top(), label_widths_[col], rect.height());
    const CellAt at = {row, static_cast<int>(col)};
    const Qt::Alignment alignment =
        row < grid->FixedRows ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
    PaintHeading(painter, place, TextAt(grid, at), alignment, marked, palette());
    left += label_widths_[col];
  }
}

}  // namespace tarnvik
