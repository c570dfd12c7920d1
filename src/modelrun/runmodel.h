// The run of the estimation program: from the forms to scanned results.
#pragma once

#include <string>

namespace tarnvik {

// Saves the case, clears old output, runs the model, collects what it left, scans it. Reads frmInput's
// labels; sets ModelRunOK, FilesSaved, the paths; moves the current folder to the case's and leaves it there.
// Shows its own messages, that of any run-time error included.
void RunModel();
// "True" or "False": whether a path, trimmed, holds no blank.
std::string PathHasNoSpaces(const std::string& path);

}  // namespace tarnvik
