// One run of the program: files in, fit, files out.
#pragma once

#include "fit.h"
#include "messages.h"

#include <filesystem>
#include <string>
#include <vector>

namespace model {

struct RunSettings {
  std::filesystem::path folder = ".";  // of the output files
  FitLimits limits;
};

// Runs the program with its command line, without the program's name, and gives the exit code. Old output
// files are removed first, so that they cannot pass for new ones. All faults end as a line in the log; none
// is raised.
ExitCode RunProgram(const std::vector<std::string>& arguments, const RunSettings& settings,
                    const Messages& messages);

}  // namespace model
