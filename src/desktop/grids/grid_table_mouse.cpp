// Selecting with the mouse, and the menu of the right button.

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>

#include "charts/text.h"
#include "desktop/forms/events.h"
#include "desktop/grids/grid_moves.h"
#include "desktop/grids/grid_table.h"
#include "platform/form.h"

namespace tarnvik {

namespace {

constexpr int kDragStep = 60;  // milliseconds between two cells while the mouse is held outside

bool Holds(const CellRange& range, CellAt at) {
  return at.row >= range.Top() && at.row <= range.Bottom() && at.col >= range.Left() &&
         at.col <= range.Right();
}

// The buttons that stand in one frame with the grid: its tools.
std::vector<Control*> ToolsOf(const Grid& grid) {
  std::vector<Control*> tools;
  if (!grid.Container() || grid.Container()->Kind() != ControlKind::Frame) return tools;
  for (Control* control : grid.Owner().Controls()) {
    if (control->Kind() == ControlKind::CommandButton && control->Container() == grid.Container() &&
        control->Visible()) {
      tools.push_back(control);
    }
  }
  return tools;
}

}  // namespace

std::optional<CellAt> GridTable::CellUnder(const QPoint& place) const {
  const QModelIndex index = indexAt(place);
  if (!index.isValid() || !Shown()) return std::nullopt;
  return InBody(*Shown(), model_->CellOf(index));
}

void GridTable::mousePressEvent(QMouseEvent* event) {
  const auto at = CellUnder(event->position().toPoint());
  if (!at) return;
  tab_start_.reset();
  const CellRange range = SelectionOf(*Shown());
  if (event->button() == Qt::LeftButton) {
    Choose({event->modifiers().testFlag(Qt::ShiftModifier) ? range.start : *at, *at});
    dragging_ = true;
  } else if (event->button() == Qt::RightButton && !Holds(range, *at)) {
    Choose({*at, *at});
  }
}

void GridTable::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_ || !event->buttons().testFlag(Qt::LeftButton)) return;
  DragTo(event->position().toPoint());
  if (viewport()->rect().contains(event->position().toPoint())) {
    drag_timer_.stop();
  } else if (!drag_timer_.isActive()) {
    drag_timer_.start(kDragStep, this);
  }
}

void GridTable::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
  drag_timer_.stop();
}

void GridTable::timerEvent(QTimerEvent* event) {
  if (event->timerId() != drag_timer_.timerId()) return QTableView::timerEvent(event);
  if (dragging_) DragTo(viewport()->mapFromGlobal(QCursor::pos()));
}

// Inside, the cell under the mouse is the far end; outside, the range grows by a cell.
void GridTable::DragTo(const QPoint& place) {
  const Grid* grid = Shown();
  if (!grid || !HasBody(*grid)) return;
  const CellRange range = SelectionOf(*grid);
  const QRect inside = viewport()->rect();
  const auto beyond = [](int at, int first, int last) { return at < first ? -1 : at > last ? 1 : 0; };
  const int down = beyond(place.y(), inside.top(), inside.bottom());
  const int right = beyond(place.x(), inside.left(), inside.right());
  CellAt end = range.end;
  if (const int row = rowAt(place.y()); down == 0 && row >= 0) end.row = model_->RowOf(row);
  if (const int col = columnAt(place.x()); right == 0 && col >= 0) end.col = model_->ColOf(col);
  end = InBody(*grid, end);
  if (down != 0) end = NextCell(*grid, end, down, 0);
  if (right != 0) end = NextCell(*grid, end, 0, right);
  if (end != range.end) Choose({range.start, end});
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* event) {
  const auto at = CellUnder(event->position().toPoint());
  if (at && event->button() == Qt::LeftButton) OpenEditor(nullptr);
}

// --- The right button

void GridTable::contextMenuEvent(QContextMenuEvent* event) {
  const Grid* grid = Shown();
  if (!grid) return;
  if (!grid->OnRightClick) return PopUpMenu(event->globalPos());
  UserEvent([now = Now()] {
    if (const Grid* shown = now()) shown->OnRightClick(std::max(shown->Index(), 0));
  });
}

void GridTable::PopUpMenu(const QPoint& place) {
  const Grid& grid = *Shown();
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const char* text, const char* keys, bool enabled, void (GridTable::*act)()) {
    QAction* action = menu->addAction(QString::fromLatin1(text), this, act);
    action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
    action->setEnabled(enabled && HasBody(grid));
  };
  const bool editable = grid.Editable && grid.Reachable();
  add("&Undo", "Ctrl+Z", editable && history_->CanUndo(grid), &GridTable::Undo);
  add("&Redo", "Ctrl+Y", editable && history_->CanRedo(grid), &GridTable::Redo);
  menu->addSeparator();
  add("Cu&t", "Ctrl+X", editable, &GridTable::Cut);
  add("&Copy", "Ctrl+C", true, &GridTable::Copy);
  add("&Paste", "Ctrl+V", editable, &GridTable::Paste);
  add("&Delete", "Del", editable, &GridTable::ClearSelected);
  menu->addSeparator();
  add("Select &All", "Ctrl+A", true, &GridTable::SelectAllCells);
  add("&Find...", "Ctrl+F", true, &GridTable::Find);
  const std::vector<Control*> tools = ToolsOf(grid);
  if (!tools.empty()) menu->addSeparator();
  for (Control* tool : tools) {
    QAction* action = menu->addAction(ShownText(tool->Caption()));
    action->setEnabled(tool->Reachable());
    connect(action, &QAction::triggered, this, [this, tool] {
      if (Shown()) UserEvent([tool] { tool->UserClick(); });
    });
  }
  menu->popup(place);
}

}  // namespace tarnvik
