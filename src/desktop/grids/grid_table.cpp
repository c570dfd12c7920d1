#include "desktop/grids/grid_table.h"

#include <QAbstractButton>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

#include "desktop/grids/grid_widths.h"
#include "platform/flag_scope.h"

namespace tarnvik {

GridTable::GridTable(const ControlView& view, QWidget* parent)
    : QTableView(parent),
      model_(new GridModel(view, this)),
      titles_(new GridHeader(Qt::Horizontal, *model_, this)),
      labels_(new GridHeader(Qt::Vertical, *model_, this)),
      history_(std::make_shared<EditHistory>()) {
  setModel(model_);
  setItemDelegate(new CellPainter(this));
  setHorizontalHeader(titles_);
  setVerticalHeader(labels_);
  setEditTriggers(NoEditTriggers);  // the cell's editor is ours: it must end in one event, once
  setSelectionMode(ContiguousSelection);
  setAutoScroll(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setWordWrap(false);
  setShowGrid(false);  // the cells draw their lines: the style's cannot be seen on a dark background
  labels_->setSectionResizeMode(QHeaderView::Fixed);
  labels_->setDefaultSectionSize(RowHeight(font()));
  titles_->setMinimumSectionSize(2 * kCellMargin);
  connect(titles_, &QHeaderView::sectionResized, this, [this](int section) {
    if (!showing_) widths_by_user_.insert(section);
  });
  if (auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    corner->installEventFilter(this);
  }
}

GridTable::~GridTable() { LetGo(); }

void GridTable::LetGo() {
  if (editor_) CloseEditor(EditEnd::Abandon);
  model_->LetGo();
}

// --- Bringing the table in line with the grid

void GridTable::ShowGrid() {
  Grid* grid = Shown();
  if (!grid) return;
  const FlagScope showing(showing_);
  const int cols = model_->columnCount();
  const bool anew = model_->Follow();
  if (editor_ && (anew || !UserMayEdit(*grid, editor_->At()))) CloseEditor(EditEnd::Abandon);
  if (model_->columnCount() != cols) widths_by_user_.clear();
  if (anew) shown_range_.reset();
  titles_->setVisible(grid->FixedRows > 0);
  labels_->setVisible(LabelCols(*grid) > 0);
  ShowHidden(*grid);
  FitColumns(anew);
  // What the changed model has put off until after the next painting would paint everything once more.
  if (isVisible()) executeDelayedItemsLayout();
  ShowPlace(*grid);
}

void GridTable::ShowHidden(const Grid& grid) {
  for (int i = 0; i < model_->columnCount(); ++i) {
    const bool hidden = !ColShown(grid, model_->ColOf(i));
    if (isColumnHidden(i) != hidden) setColumnHidden(i, hidden);
  }
  for (int i = 0; i < model_->rowCount(); ++i) {
    const bool hidden = !RowShown(grid, model_->RowOf(i));
    if (isRowHidden(i) != hidden) setRowHidden(i, hidden);
  }
}

// An edit makes columns wider, never narrower: the cells stay where the user sees them.
void GridTable::FitColumns(bool anew) {
  const Grid* grid = Shown();
  fit_anew_ = fit_anew_ || anew;
  if (!grid || !isVisible()) return;
  const FlagScope showing(showing_);
  // Of a section resized QTableView takes note only after the next painting, and paints once more for it. It
  // is told at once instead, when all have their sizes.
  const QSignalBlocker quiet(titles_);
  bool changed = false;
  std::vector<int> widths = FittingWidths(*grid, font(), logicalDpiX(), TopRowShown());
  for (int i = 0; i < model_->columnCount(); ++i) {
    int& width = widths[static_cast<std::size_t>(model_->ColOf(i))];
    if (isColumnHidden(i)) continue;
    if (widths_by_user_.contains(i) || (!fit_anew_ && width < columnWidth(i))) width = columnWidth(i);
    if (width == columnWidth(i)) continue;
    setColumnWidth(i, width);
    changed = true;
  }
  titles_->setFixedHeight(HeadingHeight(*grid, font(), widths));
  widths.resize(static_cast<std::size_t>(std::min(LabelCols(*grid), grid->Cols())));
  labels_->SetLabelWidths(std::move(widths));
  fit_anew_ = false;
  if (!changed) return;
  updateGeometries();
  viewport()->update();
}

// The selection and the top row: what the logic has changed since is brought into view.
void GridTable::ShowPlace(Grid& grid) {
  if (!HasBody(grid)) return;
  const bool new_top = grid.TopRow != shown_top_;
  const bool first = !shown_range_;
  const CellRange range = SelectionOf(grid);
  const bool new_range = range != shown_range_;
  if (new_range) ShowRange(range);
  if (!isVisible()) return;
  if (new_top) {
    const auto above = ShownRows(grid, grid.FixedRows, grid.TopRow - 1).size();
    verticalScrollBar()->setValue(static_cast<int>(above));
  } else if (new_range && !first) {
    scrollTo(model_->IndexOf(range.start));
  }
  grid.TopRow = shown_top_ = TopRowShown();
}

void GridTable::ShowRange(const CellRange& range) {
  const FlagScope showing(showing_);
  const QModelIndex from = model_->IndexOf({range.Top(), range.Left()});
  const QModelIndex to = model_->IndexOf({range.Bottom(), range.Right()});
  selectionModel()->setCurrentIndex(model_->IndexOf(range.start), QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(from, to), QItemSelectionModel::ClearAndSelect);
  shown_range_ = range;
}

int GridTable::TopRowShown() const { return model_->RowOf(std::max(rowAt(0), 0)); }

// --- What the user selects

// The logic has no event for a selection: the grid is told, and nothing else has to follow.
void GridTable::Choose(const CellRange& range, bool bring_into_view) {
  Grid* grid = Shown();
  if (!grid) return;
  PutSelection(*grid, range);
  ShowRange(range);
  if (bring_into_view) scrollTo(model_->IndexOf(range.end));
}

// Headers, the corner and assistive programs select in Qt's own way.
void GridTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  if (!showing_) TakeRangeOf(selectionModel()->selection());
}

void GridTable::TakeRangeOf(const QItemSelection& selection) {
  Grid* grid = Shown();
  if (!grid || selection.isEmpty()) return;
  CellRange range = {model_->CellOf(selection.first().topLeft()),
                     model_->CellOf(selection.first().bottomRight())};
  for (const QItemSelectionRange& part : selection) {
    range.start.row = std::min(range.start.row, model_->RowOf(part.top()));
    range.start.col = std::min(range.start.col, model_->ColOf(part.left()));
    range.end.row = std::max(range.end.row, model_->RowOf(part.bottom()));
    range.end.col = std::max(range.end.col, model_->ColOf(part.right()));
  }
  PutSelection(*grid, range);
  shown_range_ = range;
  const FlagScope showing(showing_);
  selectionModel()->setCurrentIndex(model_->IndexOf(range.start), QItemSelectionModel::NoUpdate);
}

// --- What Qt asks of a table

void GridTable::verticalScrollbarValueChanged(int value) {
  QTableView::verticalScrollbarValueChanged(value);
  Grid* grid = Shown();
  if (grid && !showing_ && isVisible()) grid->TopRow = shown_top_ = TopRowShown();
}

void GridTable::updateGeometries() {
  QTableView::updateGeometries();
  if (editor_) editor_->setGeometry(visualRect(model_->IndexOf(editor_->At())));
}

void GridTable::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  ShowGrid();
}

void GridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange || !labels_) return;
  labels_->setDefaultSectionSize(RowHeight(font()));
  FitColumns(true);
}

bool GridTable::eventFilter(QObject* object, QEvent* event) {
  auto* corner = qobject_cast<QAbstractButton*>(object);
  if (!corner || event->type() != QEvent::Paint) return QTableView::eventFilter(object, event);
  QPainter painter(corner);
  labels_->PaintCorner(painter, corner->rect());
  return true;
}

}  // namespace tarnvik
