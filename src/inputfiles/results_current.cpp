// Whether the results on disk still belong to the case.

#include <string>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

// Whether the control file names exactly what the labels show: bare names only when the labels are bare.
bool ControlFileNamesLabels() {
  File1.Open(CtlFilePath);
  ReadDataLine();  // the description
  bool same = true;
  for (const int file : {kFilePin, kFileDat}) {
    same = same && Trim(ReadDataLine()) == frmInput->lblFile(file).Caption();
  }
  File1.Close();
  return same;
}

bool NoLaterThanControlFile(const std::string& input) {
  return !FileExists(input) || FileIsNotOlder(CtlFilePath, input) == kTrue;
}

// Takes the path of a result file of the case and tests it.
bool TakeResult(std::string& path, const char* ending) {
  path = WithEnding(CtlFilePath, ending);
  return !FileExists(path) || FileIsNotOlder(path, CtlFilePath) == kTrue;
}

// A report older than the parameters is of another run.
bool ReportFollowsParameters() {
  return !FileExists(ReportPath) || !FileExists(ParPath) || FileIsNotOlder(ReportPath, ParPath) == kTrue;
}

bool ResultsAreCurrent() {
  CtlFilePath = frmInput->lblCTL.Caption();
  if (CtlFileOpen == kFalse && FileExists(CtlFilePath)) {
    if (!ControlFileNamesLabels()) return false;
    CtlFileOpen = kTrue;
  }
  DatFilePath = frmInput->lblFile(kFileDat).Caption();
  if (!NoLaterThanControlFile(DatFilePath)) return false;
  PinFilePath = frmInput->lblFile(kFilePin).Caption();
  if (!NoLaterThanControlFile(PinFilePath)) return false;
  return TakeResult(ReportPath, "rep") && TakeResult(StdPath, "std") && TakeResult(ParPath, "par") &&
         ReportFollowsParameters();
}

}  // namespace

void CheckResultsCurrent() {
  try {
    if (!ResultsAreCurrent()) return;
    EnableResultMenus();
    frmMain->mnuViewLog.SetEnabled(true);
  } catch (...) {
    const std::string reason = CurrentErrorText();
    File1.Close();
    ShowMessage("Error: " + reason);
  }
}

}  // namespace tarnvik
