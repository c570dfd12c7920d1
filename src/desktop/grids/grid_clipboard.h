// Blocks of cells as the text that spreadsheets and R exchange: tabs between the columns, a line for each
// row.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/grids/grid_edits.h"

namespace tarnvik {

using TextBlock = std::vector<std::vector<std::string>>;  // rows; they need not be of one length

// Lines may end with LF, CR or both; a line end behind the last row is none of its own. A cell in double
// quotes may hold tabs, line ends (blanks here) and doubled quotes; a quote that is never closed is a
// character like any other. "" has no row.
TextBlock ReadBlock(std::string_view text);

// The shown cells of a range. A line end stands behind each row, but not behind a single cell.
std::string BlockText(const Grid& grid, const CellRange& range);

// Whether a text is a number written with a comma, be it for the decimals or between thousands: the number in
// front of the comma would be taken for the whole.
bool HasNumberComma(std::string_view text);

// What pasting a block would do.
struct PastePlan {
  std::vector<CellText> texts;  // cells that would change
  CellRange range;              // where the block lies, as far as the table goes
  int refused = 0;              // texts outside the table, or for cells that cannot be edited
  std::string comma;            // the first number with a comma, and its cell in the user's words
  std::string comma_cell;       // "" when it lies outside the table
};

// The block goes to the upper left cell of the selection and to the right and down from there, past hidden
// rows and columns. A selection that holds the block several times over takes it as many times. Missing cells
// of a short row change nothing, empty cells clear.
PastePlan PlanPaste(const Grid& grid, const CellRange& selection, const TextBlock& block);

// The cells of a range that clearing would change, and how many it cannot.
PastePlan PlanClear(const Grid& grid, const CellRange& range);

}  // namespace tarnvik
