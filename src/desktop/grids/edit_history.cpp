#include "desktop/grids/edit_history.h"

#include <algorithm>
#include <utility>

namespace tarnvik {

namespace {

constexpr std::size_t kMostSteps = 200;

int current_era = 0;

}  // namespace

void EndEditHistory() { ++current_era; }

void EditHistory::ForgetTheOld(const Grid& grid) {
  if (era_ == current_era && generation_ == grid.Generation()) return;
  undo_.clear();
  redo_.clear();
  era_ = current_era;
  generation_ = grid.Generation();
}

void EditHistory::Push(std::deque<Step>& steps, Step step) {
  steps.push_back(std::move(step));
  if (steps.size() > kMostSteps) steps.pop_front();
}

void EditHistory::Note(const Grid& grid, std::vector<CellChange> changes) {
  ForgetTheOld(grid);
  if (changes.empty()) return;
  redo_.clear();
  Push(undo_, std::move(changes));
}

// Drops steps that have become void, until one is found that is not.
bool EditHistory::Offers(const Grid& grid, std::deque<Step>& steps) {
  ForgetTheOld(grid);
  const auto holds = [&](const CellChange& change) {
    return UserMayEdit(grid, change.at) && grid.TextMatrix(change.at.row, change.at.col) == change.after;
  };
  while (!steps.empty() && !std::all_of(steps.back().begin(), steps.back().end(), holds)) steps.pop_back();
  return !steps.empty();
}

bool EditHistory::CanUndo(const Grid& grid) { return Offers(grid, undo_); }
bool EditHistory::CanRedo(const Grid& grid) { return Offers(grid, redo_); }

std::vector<CellChange> EditHistory::Apply(const GridNow& now, std::deque<Step>& from, std::deque<Step>& to) {
  const Grid* grid = now();
  if (!grid || !Offers(*grid, from)) return {};
  const Step step = std::move(from.back());
  from.pop_back();
  std::vector<CellText> texts;
  for (const CellChange& change : step) texts.push_back({change.at, change.before});
  std::vector<CellChange> done = EditCells(now, texts);
  grid = now();
  if (!grid) return {};
  ForgetTheOld(*grid);
  if (!done.empty()) Push(to, done);
  return done;
}

std::vector<CellChange> EditHistory::Undo(const GridNow& now) { return Apply(now, undo_, redo_); }
std::vector<CellChange> EditHistory::Redo(const GridNow& now) { return Apply(now, redo_, undo_); }

}  // namespace tarnvik
