#include "desktop/grids/grid_cells.h"

#include "core/text.h"

namespace tarnvik {

CellAt InBody(const Grid& grid, CellAt at) {
  return {std::clamp(at.row, grid.FixedRows, grid.Rows() - 1),
          std::clamp(at.col, LabelCols(grid), grid.Cols() - 1)};
}

CellRange SelectionOf(const Grid& grid) {
  return {InBody(grid, {grid.Row, grid.Col}), InBody(grid, {grid.RowSel, grid.ColSel})};
}

void PutSelection(Grid& grid, const CellRange& range) {
  grid.Row = range.start.row;
  grid.Col = range.start.col;
  grid.RowSel = range.end.row;
  grid.ColSel = range.end.col;
}

std::vector<int> ShownRows(const Grid& grid, int first, int last) {
  std::vector<int> rows;
  for (int row = first; row <= std::min(last, grid.Rows() - 1); ++row) {
    if (RowShown(grid, row)) rows.push_back(row);
  }
  return rows;
}

std::vector<int> ShownCols(const Grid& grid, int first, int last) {
  std::vector<int> cols;
  for (int col = first; col <= std::min(last, grid.Cols() - 1); ++col) {
    if (ColShown(grid, col)) cols.push_back(col);
  }
  return cols;
}

bool UserMayEdit(const Grid& grid, CellAt at) {
  return at.row >= 0 && at.col >= 0 && grid.CellEditable(at.row, at.col) && grid.Reachable() &&
         grid.CellBackColor(at.row, at.col) != kButtonFace;
}

std::string CellName(const Grid& grid, CellAt at) {
  std::string name;
  for (int col = 0; col < LabelCols(grid); ++col) {
    if (!name.empty()) name += ", ";
    name += grid.TextMatrix(at.row, col);
  }
  if (IsBlank(name)) name = "row " + NumberText(at.row);
  const std::string& heading = grid.TextMatrix(0, at.col);
  return IsBlank(heading) ? name : name + ", " + heading;
}

}  // namespace tarnvik
