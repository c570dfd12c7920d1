// A grid as Qt's item views read it: the body as items, the fixed rows and label columns as headers. Texts
// are read where they stand when they are needed.
#pragma once

#include <QAbstractTableModel>

#include "desktop/forms/control_view.h"
#include "desktop/grids/grid_cells.h"

namespace tarnvik {

class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const ControlView& view, QObject* parent);
  // The view goes; the model is empty from then on.
  void LetGo();
  // The grid, null once its form or its view has gone.
  Grid* Shown() const;
  // Tells of what has changed: a reset when the shape is another one, which is then the answer, else of all
  // cells at once.
  bool Follow();

  // Between items and cells. The shape is that of the last Follow, so a cell may lie outside the grid of now.
  CellAt CellOf(const QModelIndex& index) const;
  QModelIndex IndexOf(CellAt at) const;  // invalid outside the body
  int RowOf(int item_row) const { return item_row + shape_.fixed_rows; }
  int ColOf(int item_col) const { return item_col + shape_.label_cols; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Shape {
    int rows = 0, cols = 0, fixed_rows = 0, label_cols = 0;
    friend bool operator==(const Shape&, const Shape&) = default;
  };
  Shape ShapeNow() const;
  const ControlView* view_;
  Shape shape_;
};

// The text of a cell; empty when there is no such cell.
QString TextAt(const Grid* grid, CellAt at);
// How a column of texts is aligned, as the grid's format string says; its last column stands for the further
// ones.
Qt::Alignment ColumnAlignment(const Grid& grid, int col);

}  // namespace tarnvik
