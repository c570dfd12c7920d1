// Changes of cells by the user, as the logic is to hear of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "desktop/grids/grid_cells.h"

namespace tarnvik {

struct CellText {
  CellAt at;
  std::string text;
};

struct CellChange {
  CellAt at;
  std::string before;
  std::string after;  // what the logic left in the cell
};

// The grid that is edited, null once it has gone: any handler may lead to that. All three run inside a user's
// event.
using GridNow = std::function<Grid*()>;

// A cell begins to be edited: it becomes the current one and OnBeginEdit runs. False when the cell may not be
// edited, or no longer.
bool BeginEdit(const GridNow& now, CellAt at);
// What was typed into a cell whose edit has begun: the text goes in and OnEndEdit runs.
std::vector<CellChange> EndEdit(const GridNow& now, const CellText& typed);
// Several cells in one go: the edit of each begins, those that may be edited take their texts, then the edit
// ends. All three leave one cell selected. The cells that differ in the end are returned; none when the
// handlers have refitted the grid.
std::vector<CellChange> EditCells(const GridNow& now, const std::vector<CellText>& texts);

}  // namespace tarnvik
