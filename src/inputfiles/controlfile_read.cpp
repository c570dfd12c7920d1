// Reader of the control file, and the opening of a case.

#include <string>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

// The control file's folder with a separator at its end.
std::string ControlFolder() {
  const std::string folder = DirOfPath(CtlFilePath);
  return folder.empty() ? JoinPath(CurrentFolder(), "") : folder;
}

// Takes the next name from the control file. A bare name is meant for the current folder, which the open
// dialog has moved to the control file's own. A path that leads nowhere, since the case was moved or comes
// from another machine, may be replaced by the file of that name beside the control file. False when there is
// no file.
bool TakeNamedFile(std::string& path, const std::string& missing) {
  const std::string name(Trim(ReadDataLine()));
  if (FileExists(name)) {
    path = name;
    return true;
  }
  const std::size_t separator = LastSeparator(name);
  const std::string beside =
      separator == std::string::npos ? std::string() : ControlFolder() + name.substr(separator + 1);
  if (!FileExists(beside)) {
    ShowMessage(missing, Icon::Exclamation);
    return false;
  }
  const Answer answer = ShowMessage(
      missing + kLineBreak + "Would you like to use this file instead?" + kLineBreak + kLineBreak + beside,
      Icon::Question, Buttons::YesNo, Answer::Yes);
  if (answer != Answer::Yes) return false;
  path = beside;
  return true;
}

// Reads the six lines. False when one of the two files is missing.
bool ReadNames() {
  File1.Open(CtlFilePath);
  frmInput->txtModel.SetText(ReadDataLine());
  const bool found = TakeNamedFile(PinFilePath, "Parameter Input File is Not Available in Path Specified") &&
                     TakeNamedFile(DatFilePath, "Input Data File is Not Available in Path Specified");
  if (!found) {
    ShowPath(frmInput->lblFile(kFilePin), kNoneSelected);
    ShowPath(frmInput->lblFile(kFileDat), kNoneSelected);
  }
  File1.Close();
  return found;
}

// Every form that holds a part of the old case goes, and its fields with it.
void CloseCase() {
  DatFileOpen = kFalse;
  UnloadForm(frmInput);
  PinFileOpen = kFalse;
  UnloadForm(frmPin);
  CloseInputPlots();
  CloseResults();
}

}  // namespace

void ReadControlFile() {
  try {
    CtlFileOpen = kFalse;
    if (!ReadNames()) return;
    ShowPath(frmInput->lblCTL, CtlFilePath);
    TheHost().ProcessEvents();
    ReadDataFile();
    if (DatFileOpen == kFalse) return;
    ReadParameterFile();
    if (PinFileOpen == kFalse) return;
    ActivateForm(frmPin);
    frmMain->mnuFileCreatePin.SetEnabled(true);
    frmMain->mnuFileCreateData.SetEnabled(true);
    frmInput->cmdBrowse1.SetEnabled(true);
    frmInput->cmdBrowse2.SetEnabled(true);
    CheckResultsCurrent();
  } catch (...) {
    const std::string reason = CurrentErrorText();
    File1.Close();
    ShowMessage(std::string("Error Reading Control File") + kLineBreak + reason);
  }
}

void OpenControlFile() {
  frmInput->SSTab1.SetTab(kTabGeneral);
  const auto name = TheHost().ShowFileDialog({.title = "Open Statistical Catch at Age Model Control File",
                                              .filter = "Control Files (*.ctl)|*.ctl",
                                              .default_extension = ""});
  if (!name) return;
  CloseCase();
  CtlFilePath = *name;
  if (!CtlFilePath.empty()) {
    CtlFileOpen = kFalse;
    ReadControlFile();
  }
  ShowGeneralTab();
}

}  // namespace tarnvik
