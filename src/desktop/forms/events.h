// Between the logic and its views: a user's act runs as one event, and the views of what it changed are
// brought in line once, when it has ended.
#pragma once

#include <functional>

namespace tarnvik {

// Runs what a user's act sets off, then refreshes the views. An error that no routine has trapped is shown in
// a message box; nothing is lost. An act on a control that the act before it has taken away must not get
// here.
void UserEvent(const std::function<void()>& act);

// Brings into the logic what stands half typed in the field that has the focus, as leaving the field would:
// before a menu entry or a shortcut acts on the case.
void CommitPendingEdits();

// Brings every view of a changed control in line. The host does so too before a box or a modal form appears
// and whenever the logic lets pending events run.
void RefreshViews();

// Called when an event has ended and its views have been refreshed; empty while there is no main window.
extern std::function<void()> AfterEvent;

}  // namespace tarnvik
