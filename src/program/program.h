// The life of the program, for its front ends.
#pragma once

#include <functional>

#include "platform/host.h"

namespace tarnvik {

// Sets the host and loads frmMain, which reads the settings and loads frmInput.
void StartProgram(Host& host);
// Unloads every form without asking and forgets all state.
void EndProgram();
// False once frmMain has been unloaded.
bool ProgramRunning();

// Runs what a user's act sets off as one event. An error that no routine has trapped is shown in a message
// box; nothing is lost.
void RunEvent(const std::function<void()>& act);

}  // namespace tarnvik
