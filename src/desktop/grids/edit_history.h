// Undo and redo of the edits of one grid's cells, one step for each act of the user.
//
// There is no undoing a change of dimensions or a file flow: steps end with them. A step is void when one of
// its cells no longer holds what the step left there, or may no longer be edited.
#pragma once

#include <deque>
#include <vector>

#include "desktop/grids/grid_edits.h"

namespace tarnvik {

class EditHistory {
 public:
  // An act of the user has changed these cells. What could be done again can be no more.
  void Note(const Grid& grid, std::vector<CellChange> changes);
  bool CanUndo(const Grid& grid);
  bool CanRedo(const Grid& grid);
  // Put the texts before, or after, back into the cells through the same edit events, inside a user's event.
  // Return the cells that have changed, none when there was nothing to do.
  std::vector<CellChange> Undo(const GridNow& now);
  std::vector<CellChange> Redo(const GridNow& now);

 private:
  using Step = std::vector<CellChange>;
  void ForgetTheOld(const Grid& grid);
  bool Offers(const Grid& grid, std::deque<Step>& steps);
  std::vector<CellChange> Apply(const GridNow& now, std::deque<Step>& from, std::deque<Step>& to);
  void Push(std::deque<Step>& steps, Step step);

  std::deque<Step> undo_;
  std::deque<Step> redo_;
  int generation_ = 0;  // of the grid, when the steps were taken
  int era_ = 0;
};

// A file flow has run: no edit before it can be undone, in any grid.
void EndEditHistory();

}  // namespace tarnvik
