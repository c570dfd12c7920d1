// What the user changes in a grid, one event each.

#include <QApplication>
#include <QClipboard>
#include <utility>

#include "charts/text.h"
#include "core/text.h"
#include "desktop/forms/events.h"
#include "desktop/grids/grid_clipboard.h"
#include "desktop/grids/grid_moves.h"
#include "desktop/grids/grid_table.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

// Makes a range the selected one, as far as the grid still has it.
void Select(Grid& grid, const CellRange& range) {
  if (!HasBody(grid)) return;
  const CellAt start = InBody(grid, range.start);
  const CellAt end = InBody(grid, range.end);
  grid.SetSelection(start.row, start.col, end.row, end.col);
}

void TellRefused(int count) {
  if (count == 0) return;
  const bool one = count == 1;
  ShowMessage(one ? "1 cell lies outside the table or cannot be edited."
                  : NumberText(count) + " cells lie outside the table or cannot be edited.",
              Icon::Information);
}

void TellComma(const std::string& text, const std::string& cell, const char* consequence) {
  const std::string place = cell.empty() ? "outside the table" : "for " + cell;
  ShowMessage("\"" + text + "\" " + place + " holds a comma. Numbers are written with a decimal point, " +
                  "and nothing between the thousands." + kLineBreak + consequence,
              Icon::Exclamation);
}

CellRange RangeAround(const std::vector<CellChange>& changes) {
  CellRange range = {changes.front().at, changes.front().at};
  for (const CellChange& change : changes) {
    range.start = {std::min(range.start.row, change.at.row), std::min(range.start.col, change.at.col)};
    range.end = {std::max(range.end.row, change.at.row), std::max(range.end.col, change.at.col)};
  }
  return range;
}

}  // namespace

GridNow GridTable::Now() {
  return [self = QPointer<GridTable>(this)] { return self ? self->Shown() : nullptr; };
}

void GridTable::Find() {
  if (OnFind) OnFind();
}

// --- Typing

void GridTable::OpenEditor(const QString* typed) {
  const Grid* grid = Shown();
  if (!grid || !HasBody(*grid) || !UserMayEdit(*grid, SelectionOf(*grid).start)) return;
  const CellAt at = SelectionOf(*grid).start;
  const QPointer<GridTable> self(this);
  bool begun = false;
  UserEvent([&begun, now = Now(), at] { begun = BeginEdit(now, at); });
  if (!self || !begun || !Shown()) return;
  ShowEditor(at, typed);
}

void GridTable::ShowEditor(CellAt at, const QString* typed) {
  Choose({at, at});
  editor_ = new CellEditor(at, TextAt(Shown(), at), typed, viewport());
  editor_->setFont(font());
  editor_->setAlignment(ColumnAlignment(*Shown(), at.col));
  editor_->setAccessibleName(ShownText(CellName(*Shown(), at)));
  editor_->setGeometry(visualRect(model_->IndexOf(at)));
  editor_->Ended = [this](EditEnd how) { CloseEditor(how); };
  editor_->show();
  editor_->setFocus();
}

// The editor goes first: whatever the end of the edit sets off finds none open.
void GridTable::CloseEditor(EditEnd how) {
  CellEditor* editor = editor_;
  if (!editor) return;
  editor_.clear();
  editor->Ended = nullptr;
  const CellAt at = editor->At();
  const QString text = editor->text();
  // The focus stays here, unless it has gone to another field.
  if (editor->hasFocus() || !QApplication::focusWidget()) setFocus();
  editor->hide();
  editor->deleteLater();
  if (how != EditEnd::Abandon) TakeTyped(at, text, how);
}

void GridTable::TakeTyped(CellAt at, const QString& text, EditEnd how) {
  const Grid* grid = Shown();
  if (!grid || !UserMayEdit(*grid, at)) return;
  const QPointer<GridTable> self(this);
  const bool same = text == TextAt(grid, at);
  // Bytes that are no UTF-8 stay what they are in a text left as it was.
  const std::string typed = same ? grid->TextMatrix(at.row, at.col) : TypedText(text);
  if (!same && HasNumberComma(typed)) {
    UserEvent([&] { TellComma(typed, CellName(*grid, at), "The cell keeps its old value."); });
    if (self && Shown() && UserMayEdit(*Shown(), at) && how != EditEnd::Stay) ShowEditor(at, &text);
    return;
  }
  UserEvent([now = Now(), history = history_, at, typed] {
    std::vector<CellChange> changes = EndEdit(now, {at, typed});
    if (const Grid* shown = now()) history->Note(*shown, std::move(changes));
  });
  if (self) MoveOn(how);
}

// --- Blocks

void GridTable::ChangeCells(const std::vector<CellText>& texts, const CellRange& select, int refused) {
  UserEvent([now = Now(), history = history_, &texts, &select, refused] {
    std::vector<CellChange> changes = EditCells(now, texts);
    if (Grid* grid = now()) {
      history->Note(*grid, std::move(changes));
      Select(*grid, select);
    }
    TellRefused(refused);
  });
}

void GridTable::Copy() {
  const Grid* grid = Shown();
  if (!grid || !HasBody(*grid)) return;
  UserEvent([grid] { TheHost().SetClipboard(BlockText(*grid, SelectionOf(*grid))); });
}

void GridTable::SelectAllCells() {
  const Grid* grid = Shown();
  if (grid && HasBody(*grid)) Choose({FirstCell(*grid), LastCell(*grid)}, false);
}

void GridTable::Cut() {
  const Grid* grid = Shown();
  if (!grid || !grid->Editable) return;
  const QPointer<GridTable> self(this);
  Copy();
  if (self) ClearSelected();
}

void GridTable::ClearSelected() {
  const Grid* grid = Shown();
  if (!grid || !grid->Editable || !HasBody(*grid)) return;
  const CellRange range = SelectionOf(*grid);
  const PastePlan plan = PlanClear(*grid, range);
  if (!plan.texts.empty() || plan.refused > 0) ChangeCells(plan.texts, range, plan.refused);
}

void GridTable::Paste() {
  const Grid* grid = Shown();
  if (!grid || !grid->Editable || !HasBody(*grid)) return;
  const TextBlock block = ReadBlock(TypedText(QApplication::clipboard()->text()));
  if (block.empty()) return;
  const PastePlan plan = PlanPaste(*grid, SelectionOf(*grid), block);
  if (!plan.comma.empty()) {
    UserEvent([&] { TellComma(plan.comma, plan.comma_cell, "Nothing has been pasted."); });
    return;
  }
  ChangeCells(plan.texts, plan.range, plan.refused);
}

// --- Undo and redo

void GridTable::StepHistory(std::vector<CellChange> (EditHistory::*step)(const GridNow&)) {
  const Grid* grid = Shown();
  if (!grid || !grid->Editable) return;
  UserEvent([now = Now(), history = history_, step] {
    const std::vector<CellChange> changes = (history.get()->*step)(now);
    if (Grid* shown = now(); shown && !changes.empty()) Select(*shown, RangeAround(changes));
  });
}

void GridTable::Undo() { StepHistory(&EditHistory::Undo); }
void GridTable::Redo() { StepHistory(&EditHistory::Redo); }

}  // namespace tarnvik
