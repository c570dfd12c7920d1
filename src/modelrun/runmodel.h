// The run of the estimation program: from the forms to scanned results.
#pragma once

#include <string>

namespace tarnvik {

// The names of all files that the model can leave in its working folder.
inline constexpr int kModelOutputCount = 30;
extern std::string ModelOutputNames[kModelOutputCount];

// Saves the case, clears old output, runs the model, collects what it left, scans it. Sets ModelRunOK.
void RunModel();
// Removes the output of an earlier run; errors end it silently.
void DeleteModelOutput();
// Tests for the model's files and copies them to the case's names. Sets ModelRunOK, ReportPath, StdPath, ParPath.
void CollectModelOutput();
// "True" or "False": whether a path, trimmed, holds no blank.
std::string PathHasNoSpaces(const std::string& path);

}  // namespace tarnvik
