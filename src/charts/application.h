// The application object that drawing needs, for programs that show no windows.
#pragma once

namespace tarnvik {

// Creates one that needs no screen, unless there is one. It lives until the process ends.
void EnsureApplication();

}  // namespace tarnvik
