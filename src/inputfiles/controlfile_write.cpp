// Writer of the control file.

#include <string>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/save_names.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

// Copies a label's caption into a path of the case; false, with a message, when no file stands there.
bool TakePath(const Label& label, std::string& path, const char* missing) {
  path = label.Caption();
  if (!IsNone(path)) return true;
  ShowMessage(missing);
  return false;
}

// A file beside the control file goes by its bare name: the folder of a case can be moved.
std::string NameInControlFile(const std::string& path) {
  const std::string folder = DirOfPath(CtlFilePath);
  const std::size_t separator = LastSeparator(path);
  const bool beside =
      !folder.empty() && separator != std::string::npos && UCase(DirOfPath(path)) == UCase(folder);
  return beside ? path.substr(separator + 1) : path;
}

void WriteNames() {
  const std::string& model = frmInput->txtModel.Text();
  OutputFile file;
  file.Open(CtlFilePath);
  file.PrintLine("# Model Description");
  file.PrintLine(IsBlank(model) ? kNoneSelected : model);
  file.PrintLine("# Parameter Input File");
  file.PrintLine(NameInControlFile(PinFilePath));
  file.PrintLine("# Input Data File");
  file.PrintLine(NameInControlFile(DatFilePath));
  file.Close();
}

}  // namespace

void WriteControlFile() {
  FilesSaved = kFalse;
  const bool named =
      TakePath(frmInput->lblCTL, CtlFilePath, "Please Open or Create a New Control File") &&
      TakePath(frmInput->lblFile(kFilePin), PinFilePath,
               "Please Open or Create a New Parameter Input File") &&
      TakePath(frmInput->lblFile(kFileDat), DatFilePath, "Please Open or Create a New Input Data File");
  if (!named) return;
  try {
    WriteNames();
    frmMain->mnuModelScan.SetEnabled(false);
    FilesSaved = kTrue;
  } catch (...) {
    ShowMessage(std::string("Error Saving Control File ") + kLineBreak + CurrentErrorText(),
                Icon::Exclamation);
  }
}

void SaveControlFileAs() {
  const auto name = AskSaveName({.save = true,
                                 .title = "Save Control File",
                                 .filter = "Control Files (*.ctl)|*.ctl",
                                 .default_extension = "ctl"});
  if (!name) return;
  CtlFilePath = *name;
  ShowPath(frmInput->lblCTL, CtlFilePath);
  WriteControlFile();
}

}  // namespace tarnvik
