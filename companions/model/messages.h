// What the program tells its user: progress on standard output, everything else on the error stream, one line
// each. The error stream of a clean run stays empty, because the program that starts this one keeps it as the
// case's log.
#pragma once

#include <ostream>
#include <stdexcept>
#include <string>

namespace model {

enum ExitCode {
  kFitted = 0,
  kUsage = 1,
  kInputFault = 2,
  kNotFinite = 3,
  kNotConverged = 4,
  kNoDeviations = 5,
  kCannotWrite = 6,
};

// Ends the run. The text stands behind "error: ".
struct Failure : std::runtime_error {
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), exitCode(code) {}
  ExitCode exitCode;
};

struct Messages {
  std::ostream& progress;
  std::ostream& log;

  void Progress(const std::string& text) const { progress << text << '\n' << std::flush; }
  void Warning(const std::string& text) const { log << "warning: " << text << '\n' << std::flush; }
  void Note(const std::string& text) const { log << "note: " << text << '\n' << std::flush; }
  void Error(const std::string& text) const { log << "error: " << text << '\n' << std::flush; }
};

}  // namespace model
