#include "desktop/forms/control_view.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <unordered_map>
#include <utility>
#include <vector>

#include "desktop/forms/events.h"
#include "program/program.h"

namespace tarnvik {

std::function<void()> AfterEvent;

namespace {

struct Registry {
  std::unordered_map<const Control*, ControlView*> views;
  std::vector<Control*> changed;  // may hold controls that are gone: only those with a view are looked at
  bool refreshing = false;
};

Registry& TheRegistry() {
  static Registry registry;
  return registry;
}

void NoteChange(Control& control) { TheRegistry().changed.push_back(&control); }

}  // namespace

ControlView::ControlView(Control& control) : control_(&control) {
  OnControlChanged = NoteChange;
  TheRegistry().views[&control] = this;
  control.ClearChanged();
}

ControlView::~ControlView() { LetGo(); }

void ControlView::LetGo() {
  if (!control_) return;
  Leave();
  TheRegistry().views.erase(control_);
  control_ = nullptr;
}

void RefreshViews() {
  Registry& registry = TheRegistry();
  if (registry.refreshing) return;
  registry.refreshing = true;
  // A view may take a while to settle: what refreshing changes is refreshed in the next round.
  while (!registry.changed.empty()) {
    for (const Control* control : std::exchange(registry.changed, {})) {
      const auto found = registry.views.find(control);
      if (found == registry.views.end()) continue;
      found->second->Shown()->ClearChanged();
      found->second->Refresh();
    }
  }
  registry.refreshing = false;
}

void CommitPendingEdits() {
  const QPointer<QWidget> editing = QApplication::focusWidget();
  if (!qobject_cast<QLineEdit*>(editing)) return;
  editing->clearFocus();
  if (editing && editing->isVisible() && !QApplication::focusWidget()) editing->setFocus();
}

void UserEvent(const std::function<void()>& act) {
  RunEvent(act);
  RefreshViews();
  if (AfterEvent) AfterEvent();
}

}  // namespace tarnvik
