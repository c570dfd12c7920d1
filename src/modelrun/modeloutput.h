// The files that the model leaves: their fixed names in its working folder, and the case's copies of them.
#pragma once

#include <string>

namespace tarnvik {

// The names of all files that the model can leave in its working folder; filled at every run.
inline constexpr int kModelOutputCount = 30;
extern std::string ModelOutputNames[kModelOutputCount];

// Removes the output of an earlier run: in the control file's folder, under the case's names, and its log.
// Reads frmInput.lblCTL and CtlFilePath. An error ends it silently; the files not reached stay.
void DeleteModelOutput();
// Tests for the model's files and copies them to the case's names, the report before the output parameters: a
// report that is older counts as stale later. Reads frmInput.lblCTL; sets ModelRunOK, ReportPath, StdPath,
// ParPath, StdFileRead, ParFileRead. Shows what is missing, and any run-time error.
void CollectModelOutput();

}  // namespace tarnvik
