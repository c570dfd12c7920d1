// A program at work: what it writes, the time passed, and a button that ends it.
#pragma once

#include <cstdint>
#include <string>

class QWidget;

namespace tarnvik {

// Runs a command line to its end while a modal window shows its output; the program stays painted and serves
// nothing else. Returns 0 when the process could not be created, else 1, also when the user has ended it.
std::int32_t RunInWindow(const std::string& command, QWidget* parent);

}  // namespace tarnvik
