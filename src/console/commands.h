// The commands by name.
#pragma once

#include <string>

#include "console/acts.h"

namespace tarnvik {

// Performs the command that the words name. Whatever is wrong with it becomes its outcome.
Outcome RunCommand(ConsoleHost& host, const Words& words);

// The list of commands for --help.
std::string CommandHelp();

}  // namespace tarnvik
