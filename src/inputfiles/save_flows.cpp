// Saving all three files of a case together.

#include <string>
#include <utility>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/validation.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "inputfiles/save_names.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

bool InputDataPass() {
  ValidateInputData();
  if (InputValid == kFalse) {
    ShowMessage(std::string("Input Data File Not Saved") + kLineBreak +
                    "Please Correct Value Before Saving Input Data",
                Icon::Exclamation);
  }
  return InputValid != kFalse;
}

bool ParametersPass() {
  ValidateParameters();
  if (InputValid == kFalse) {
    ShowMessage(
        std::string("Input Parameters File Not Saved") + kLineBreak + "Please Correct Value Before Saving",
        Icon::Exclamation);
  }
  return InputValid != kFalse;
}

namespace {

// Runs one writer. FilesSaved is false again behind it: a model run needs to know about all three files.
bool Written(void (*write)()) {
  write();
  return std::exchange(FilesSaved, kFalse) != kFalse;
}

// The name for all three files: without the ending of one of them.
std::string RootOf(const std::string& name) {
  const std::string ending = UCase(name.size() < 4 ? "" : name.substr(name.size() - 4));
  const bool cut = ending == ".CTL" || ending == ".DAT" || ending == ".PIN";
  return cut ? name.substr(0, name.size() - 4) : name;
}

// Asks about the files that would be replaced; true when there are none.
bool MayReplace(const std::string& root) {
  std::string existing;
  for (const char* ending : {".ctl", ".pin", ".dat"}) {
    if (FileExistsAsWritten(root + ending)) existing += kLineBreak + root + ending;
  }
  return existing.empty() || ShowMessage("Overwrite the following files?" + existing, Icon::Exclamation,
                                         Buttons::OkCancel) == Answer::Ok;
}

// Gives one file of the case a new name and writes it. False when it could not be written.
bool WriteUnder(const std::string& name, std::string& path, Label& label, void (*write)()) {
  path = name;
  ShowPath(label, path);
  write();
  return FilesSaved != kFalse;
}

}  // namespace

void SaveAllInputFiles() {
  FilesSaved = kFalse;
  if (!InputDataPass()) return;
  bool saved = Written(WriteDataFile);
  if (!ParametersPass()) return;
  saved = Written(WriteParameterFile) && saved;
  saved = Written(WriteControlFile) && saved;
  FilesSaved = Flag(saved);
  ShowMessage("Input Files Have Been Saved", Icon::Information);
}

void SaveAllWithRootName() {
  if (!InputDataPass() || !ParametersPass()) return;
  const auto name = AskSaveName({.save = true,
                                 .title = "Save All Input Files (.ctl, .dat, .pin) with a Common Root Name",
                                 .filter = "All Files (*.*)|*.*",
                                 .default_extension = "",
                                 .logic_asks_to_overwrite = true});
  if (!name) return;
  const std::string root = RootOf(*name);
  if (!MayReplace(root)) return;
  if (!WriteUnder(root + ".dat", DatFilePath, frmInput->lblFile(kFileDat), WriteDataFile)) return;
  if (!WriteUnder(root + ".pin", PinFilePath, frmInput->lblFile(kFilePin), WriteParameterFile)) return;
  WriteUnder(root + ".ctl", CtlFilePath, frmInput->lblCTL, WriteControlFile);
}

}  // namespace tarnvik
