// Places in a grid as the parts of its view speak of them. Rows and columns count as the grid counts them.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/grid.h"

namespace tarnvik {

struct CellAt {
  int row = 0;
  int col = 0;
  friend bool operator==(const CellAt&, const CellAt&) = default;
};

// A rectangle of cells: where the selection began, and its far end.
struct CellRange {
  CellAt start;
  CellAt end;
  int Top() const { return std::min(start.row, end.row); }
  int Bottom() const { return std::max(start.row, end.row); }
  int Left() const { return std::min(start.col, end.col); }
  int Right() const { return std::max(start.col, end.col); }
  friend bool operator==(const CellRange&, const CellRange&) = default;
};

// Columns at the left that stay in view, labels all; the cells behind them and below FixedRows are the body.
inline int LabelCols(const Grid& grid) { return std::max(grid.FixedCols, grid.ColsInView); }
inline bool HasBody(const Grid& grid) {
  return grid.Rows() > grid.FixedRows && grid.Cols() > LabelCols(grid);
}
// The nearest cell of the body, which must not be empty.
CellAt InBody(const Grid& grid, CellAt at);
// The grid's selected range, as far as it lies in the body.
CellRange SelectionOf(const Grid& grid);
// Makes a range the selected one. Nothing is marked as changed: whoever calls shows it.
void PutSelection(Grid& grid, const CellRange& range);

inline bool RowShown(const Grid& grid, int row) { return grid.RowHeight(row) != 0; }
inline bool ColShown(const Grid& grid, int col) { return grid.ColWidth(col) != 0; }
// Rows and columns from first to last, without those that the grid hides.
std::vector<int> ShownRows(const Grid& grid, int first, int last);
std::vector<int> ShownCols(const Grid& grid, int first, int last);

// Whether the user may change a cell: derived cells and those out of use, painted like a button, are not his.
bool UserMayEdit(const Grid& grid, CellAt at);

// Row label and column heading, "1993, Age 2"; the row's number where it has no label.
std::string CellName(const Grid& grid, CellAt at);

}  // namespace tarnvik
