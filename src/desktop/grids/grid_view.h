// The view of a grid: the table, and below it the bar for finding a text, when it is wanted. MakeGridView
// makes one; what the user can do in it is told in grid_table.h.
#pragma once

#include <QPointer>

#include "desktop/forms/control_view.h"
#include "desktop/grids/edit_history.h"
#include "desktop/grids/grid_table.h"

namespace tarnvik {

class GridView : public ControlView {
 public:
  GridView(Grid& grid, QWidget* parent);
  ~GridView() override;
  QWidget* Widget() const override { return frame_; }
  void Refresh() override;
  GridTable* Table() const { return table_; }

 private:
  QPointer<QWidget> frame_;
  QPointer<GridTable> table_;
};

}  // namespace tarnvik
