// The arguments of tarnvik-console.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/host.h"

namespace tarnvik {

inline constexpr const char* kConsoleUsage =
    "tarnvik-console [--app-dir DIR] [--now YYYY-MM-DDTHH:MM] [SCRIPT]";

struct Arguments {
  std::string program_folder;  // full; "" for the folder of the executable
  std::optional<DateTime> now;
  std::string script;  // "" for standard input
  bool help = false;
  std::string fault;  // what is wrong with them, "" when nothing is
};
Arguments ReadArguments(const std::vector<std::string>& words);

}  // namespace tarnvik
