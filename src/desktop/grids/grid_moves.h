// Where the keys of a spreadsheet lead from a cell. Hidden rows and columns are passed over; the body of the
// grid must not be empty.
#pragma once

#include <optional>

#include "desktop/grids/grid_cells.h"

namespace tarnvik {

// An arrow: the next shown cell that way, by -1, 0 or 1 rows and columns; the cell itself at the edge.
CellAt NextCell(const Grid& grid, CellAt from, int down, int right);
// An arrow with Ctrl: the last filled cell of a run of them, the next filled cell over a gap, else the edge.
CellAt EdgeOfData(const Grid& grid, CellAt from, int down, int right);
CellAt FirstOfRow(const Grid& grid, CellAt from);
CellAt LastOfRow(const Grid& grid, CellAt from);
CellAt FirstCell(const Grid& grid);
CellAt LastCell(const Grid& grid);
// So many shown rows up (negative) or down.
CellAt ByRows(const Grid& grid, CellAt from, int rows);
// Tab: right, then the first cell of the next row; nothing behind the last cell. Backwards the same.
std::optional<CellAt> TabFrom(const Grid& grid, CellAt from, bool back);

}  // namespace tarnvik
