// The keyboard of a spreadsheet.

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "desktop/forms/events.h"
#include "desktop/grids/grid_moves.h"
#include "desktop/grids/grid_table.h"

namespace tarnvik {

namespace {

bool Held(const QKeyEvent& event, Qt::KeyboardModifier key) { return event.modifiers().testFlag(key); }

// Ctrl alone with a letter: AltGr, which gives characters, counts as Ctrl and Alt.
char ControlLetter(const QKeyEvent& event) {
  const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
  if (!letter || !Held(event, Qt::ControlModifier) || Held(event, Qt::AltModifier)) return '\0';
  return static_cast<char>(event.key());
}

bool GivesText(const QKeyEvent& event) {
  const QString text = event.text();
  const bool command = Held(event, Qt::ControlModifier) != Held(event, Qt::AltModifier);
  return !text.isEmpty() && text[0].isPrint() && !command;
}

struct Arrow {
  int key, down, right;
};

const Arrow kArrows[] = {
    {Qt::Key_Up, -1, 0}, {Qt::Key_Down, 1, 0}, {Qt::Key_Left, 0, -1}, {Qt::Key_Right, 0, 1}};

// Where a key leads from a cell; the cell itself when it leads nowhere, nothing when it is no such key.
std::optional<CellAt> Target(const Grid& grid, CellAt from, const QKeyEvent& event, int page) {
  const bool control = Held(event, Qt::ControlModifier);
  for (const Arrow& arrow : kArrows) {
    if (arrow.key != event.key()) continue;
    return (control ? EdgeOfData : NextCell)(grid, from, arrow.down, arrow.right);
  }
  switch (event.key()) {
    case Qt::Key_Home:
      return control ? FirstCell(grid) : FirstOfRow(grid, from);
    case Qt::Key_End:
      return control ? LastCell(grid) : LastOfRow(grid, from);
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      if (control) return std::nullopt;  // turns the pages of a form
      return ByRows(grid, from, event.key() == Qt::Key_PageUp ? -page : page);
    default:
      return std::nullopt;
  }
}

}  // namespace

// Keys that the table has a use for are not for the shortcuts of the window.
bool GridTable::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool editing = key.key() == Qt::Key_Delete || key.key() == Qt::Key_F2 || key.key() == Qt::Key_F3;
    if (editing || GivesText(key) ||
        std::string_view("ACFVXYZ").find(ControlLetter(key)) != std::string::npos) {
      event->accept();
      return true;
    }
  }
  return QTableView::event(event);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  const Grid* grid = Shown();
  event->setAccepted(
      grid && HasBody(*grid) &&
      (LetterKey(*event) || MoveByKey(*grid, *event) || ActByKey(*event) || EditByKey(*event)));
}

bool GridTable::MoveByKey(const Grid& grid, const QKeyEvent& event) {
  const CellRange range = SelectionOf(grid);
  const bool extend = Held(event, Qt::ShiftModifier);
  if (event.key() == Qt::Key_Space && (extend || Held(event, Qt::ControlModifier))) {
    const CellAt first = FirstCell(grid);
    const CellAt last = LastCell(grid);
    const CellRange row = {{range.Top(), first.col}, {range.Bottom(), last.col}};
    const CellRange column = {{first.row, range.Left()}, {last.row, range.Right()}};
    Choose(extend ? row : column, false);
    return true;
  }
  const int page =
      std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
  const auto target = Target(grid, extend ? range.end : range.start, event, page);
  if (!target) return false;
  tab_start_.reset();
  Choose({extend ? range.start : *target, *target});
  return true;
}

bool GridTable::ActByKey(const QKeyEvent& event) {
  const Grid& grid = *Shown();
  const bool shift = Held(event, Qt::ShiftModifier);
  const bool control = Held(event, Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return !control && TabKey(grid, event.key() == Qt::Key_Backtab);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      EnterKey(grid, shift);
      return true;
    case Qt::Key_F3:
      if (OnFindNext) OnFindNext(shift);
      return true;
    case Qt::Key_Insert:
      if (control == shift) return false;
      control ? Copy() : Paste();
      return true;
    case Qt::Key_Delete:
      shift ? Cut() : ClearSelected();
      return true;
    default:
      return false;
  }
}

// A letter with Ctrl goes to the logic, where it has a handler for them: copying and selecting all are its
// own then. The others are the table's.
bool GridTable::LetterKey(const QKeyEvent& event) {
  const char letter = ControlLetter(event);
  if (letter == '\0') return false;
  const QPointer<GridTable> self(this);
  if (Shown()->OnKeyDown) {
    UserEvent([now = Now(), letter] {
      if (const Grid* grid = now()) grid->OnKeyDown(std::max(grid->Index(), 0), letter, true);
    });
    if (letter == 'A' || letter == 'C' || !self || !Shown()) return true;
  }
  switch (letter) {
    case 'A':
      SelectAllCells();
      return true;
    case 'C':
      Copy();
      return true;
    case 'X':
      Cut();
      return true;
    case 'V':
      Paste();
      return true;
    case 'Z':
      Held(event, Qt::ShiftModifier) ? Redo() : Undo();
      return true;
    case 'Y':
      Redo();
      return true;
    case 'F':
      if (OnFind) OnFind();
      return true;
    default:
      return false;
  }
}

bool GridTable::EditByKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_F2) {
    OpenEditor(nullptr);
    return true;
  }
  if (event.key() == Qt::Key_Backspace) {
    const QString nothing;
    OpenEditor(&nothing);
    return true;
  }
  if (!GivesText(event)) return false;
  const QString typed = TypedBy(event);
  OpenEditor(&typed);
  return true;
}

// In a table for reading Tab leads on to the next field, as it does behind the last cell.
bool GridTable::TabKey(const Grid& grid, bool back) {
  const CellAt from = SelectionOf(grid).start;
  const auto target = grid.Editable ? TabFrom(grid, from, back) : std::nullopt;
  if (!target) return false;
  if (!tab_start_) tab_start_ = from.col;
  Choose({*target, *target});
  return true;
}

void GridTable::EnterKey(const Grid& grid, bool back) {
  CellAt at = SelectionOf(grid).start;
  if (tab_start_) at.col = InBody(grid, {at.row, *tab_start_}).col;
  at = NextCell(grid, at, back ? -1 : 1, 0);
  Choose({at, at});
}

// After an edit: the cell may have gone with it.
void GridTable::MoveOn(EditEnd how) {
  const Grid* grid = Shown();
  if (!grid || !HasBody(*grid)) return;
  const CellAt from = SelectionOf(*grid).start;
  const auto move = [&](int down, int right) {
    const CellAt to = NextCell(*grid, from, down, right);
    tab_start_.reset();
    Choose({to, to});
  };
  switch (how) {
    case EditEnd::Enter:
      return EnterKey(*grid, false);
    case EditEnd::EnterBack:
      return EnterKey(*grid, true);
    case EditEnd::Tab:
    case EditEnd::TabBack:
      if (!TabKey(*grid, how == EditEnd::TabBack)) focusNextPrevChild(how == EditEnd::Tab);
      return;
    case EditEnd::Up:
      return move(-1, 0);
    case EditEnd::Down:
      return move(1, 0);
    case EditEnd::Left:
      return move(0, -1);
    case EditEnd::Right:
      return move(0, 1);
    case EditEnd::Stay:
    case EditEnd::Abandon:
      return;
  }
}

}  // namespace tarnvik
