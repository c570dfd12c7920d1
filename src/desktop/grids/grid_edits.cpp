#include "desktop/grids/grid_edits.h"

#include <utility>

namespace tarnvik {

namespace {

int HandlerIndex(const Grid& grid) { return std::max(grid.Index(), 0); }

void PutText(Grid& grid, const CellText& text, std::vector<CellChange>& changes) {
  changes.push_back({text.at, grid.TextMatrix(text.at.row, text.at.col), ""});
  grid.SetTextMatrix(text.at.row, text.at.col, text.text);
}

// Runs the handler, then looks at what it has left.
std::vector<CellChange> Finish(const GridNow& now, int generation, std::vector<CellChange> changes) {
  Grid* grid = now();
  if (!grid || changes.empty()) return {};
  if (grid->OnEndEdit) grid->OnEndEdit(HandlerIndex(*grid));
  grid = now();
  if (!grid || grid->Generation() != generation) return {};
  for (CellChange& change : changes) change.after = grid->TextMatrix(change.at.row, change.at.col);
  std::erase_if(changes, [](const CellChange& change) { return change.before == change.after; });
  return changes;
}

}  // namespace

bool BeginEdit(const GridNow& now, CellAt at) {
  Grid* grid = now();
  if (!grid || !UserMayEdit(*grid, at)) return false;
  PutSelection(*grid, {at, at});
  if (grid->OnBeginEdit) grid->OnBeginEdit(HandlerIndex(*grid));
  grid = now();
  return grid && UserMayEdit(*grid, at);
}

std::vector<CellChange> EndEdit(const GridNow& now, const CellText& typed) {
  Grid* grid = now();
  if (!grid || !UserMayEdit(*grid, typed.at)) return {};
  std::vector<CellChange> changes;
  PutSelection(*grid, {typed.at, typed.at});
  PutText(*grid, typed, changes);
  return Finish(now, grid->Generation(), std::move(changes));
}

std::vector<CellChange> EditCells(const GridNow& now, const std::vector<CellText>& texts) {
  const Grid* const before = now();
  if (!before) return {};
  const int generation = before->Generation();
  std::vector<CellChange> changes;
  for (const CellText& text : texts) {
    if (!BeginEdit(now, text.at)) continue;
    Grid& grid = *now();
    if (grid.Generation() != generation) break;
    PutText(grid, text, changes);
  }
  return Finish(now, generation, std::move(changes));
}

}  // namespace tarnvik
