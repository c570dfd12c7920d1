#include "desktop/grids/grid_moves.h"

#include <cstdlib>

#include "core/text.h"

namespace tarnvik {

namespace {

bool Inside(const Grid& grid, CellAt at) {
  return at.row >= grid.FixedRows && at.row < grid.Rows() && at.col >= LabelCols(grid) &&
         at.col < grid.Cols();
}

bool IsShown(const Grid& grid, CellAt at) { return RowShown(grid, at.row) && ColShown(grid, at.col); }

bool IsFilled(const Grid& grid, CellAt at) { return !IsBlank(grid.TextMatrix(at.row, at.col)); }

}  // namespace

CellAt NextCell(const Grid& grid, CellAt from, int down, int right) {
  CellAt at = from;
  do {
    at = {at.row + down, at.col + right};
    if (!Inside(grid, at)) return from;
  } while (!(down != 0 ? RowShown(grid, at.row) : ColShown(grid, at.col)));
  return at;
}

CellAt EdgeOfData(const Grid& grid, CellAt from, int down, int right) {
  CellAt at = NextCell(grid, from, down, right);
  const bool in_run = IsFilled(grid, from) && IsFilled(grid, at);
  while (in_run || !IsFilled(grid, at)) {
    const CellAt next = NextCell(grid, at, down, right);
    if (next == at || (in_run && !IsFilled(grid, next))) break;
    at = next;
  }
  return at;
}

CellAt FirstOfRow(const Grid& grid, CellAt from) {
  CellAt at = {from.row, LabelCols(grid)};
  return ColShown(grid, at.col) ? at : NextCell(grid, at, 0, 1);
}

CellAt LastOfRow(const Grid& grid, CellAt from) {
  CellAt at = {from.row, grid.Cols() - 1};
  return ColShown(grid, at.col) ? at : NextCell(grid, at, 0, -1);
}

CellAt FirstCell(const Grid& grid) {
  CellAt at = FirstOfRow(grid, {grid.FixedRows, 0});
  return IsShown(grid, at) ? at : NextCell(grid, at, 1, 0);
}

CellAt LastCell(const Grid& grid) {
  CellAt at = LastOfRow(grid, {grid.Rows() - 1, 0});
  return IsShown(grid, at) ? at : NextCell(grid, at, -1, 0);
}

CellAt ByRows(const Grid& grid, CellAt from, int rows) {
  CellAt at = from;
  for (int i = 0; i < std::abs(rows); ++i) at = NextCell(grid, at, rows < 0 ? -1 : 1, 0);
  return at;
}

std::optional<CellAt> TabFrom(const Grid& grid, CellAt from, bool back) {
  const int step = back ? -1 : 1;
  const CellAt beside = NextCell(grid, from, 0, step);
  if (beside != from) return beside;
  const CellAt below = NextCell(grid, from, step, 0);
  if (below == from) return std::nullopt;
  return back ? LastOfRow(grid, below) : FirstOfRow(grid, below);
}

}  // namespace tarnvik
