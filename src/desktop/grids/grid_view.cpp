#include "desktop/grids/grid_view.h"

#include <QVBoxLayout>

#include "desktop/grids/grid_find.h"

namespace tarnvik {

GridView::GridView(Grid& grid, QWidget* parent) : ControlView(grid), frame_(new QWidget(parent)) {
  table_ = new GridTable(*this, frame_);
  auto* find = new FindBar(*table_, frame_);
  auto* column = new QVBoxLayout(frame_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(table_);
  column->addWidget(find);
  table_->OnFind = [find] { find->Open(); };
  table_->OnFindNext = [find](bool back) { find->FindNext(back); };
  frame_->setFocusProxy(table_);
  Refresh();
}

GridView::~GridView() {
  if (table_) table_->LetGo();
}

void GridView::Refresh() {
  const auto* grid = static_cast<const Grid*>(Shown());
  if (!grid || !frame_ || !table_) return;
  ShowCommon(*grid, *frame_);
  table_->setAccessibleName(frame_->accessibleName());
  table_->ShowGrid();
}

std::unique_ptr<ControlView> MakeGridView(Grid& grid, QWidget* parent) {
  return std::make_unique<GridView>(grid, parent);
}

}  // namespace tarnvik
