#include "inputfiles/paramfile.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/save_names.h"

namespace tarnvik {

namespace {

constexpr const char* kFilter = "Parameter Input Files (*.pin)|*.pin";

}  // namespace

void SaveParameterFileAs() {
  const auto name = AskSaveName(
      {.save = true, .title = "Save Input Parameter File", .filter = kFilter, .default_extension = "pin"});
  if (!name) return;
  PinFilePath = *name;
  ShowPath(frmInput->lblFile(kFilePin), PinFilePath);
  WriteParameterFile();
}

void OpenParameterFile() {
  frmInput->SSTab1.SetTab(kTabGeneral);
  const auto name =
      TheHost().ShowFileDialog({.title = "Open Statistical Catch at Age Model Initial Parameters File",
                                .filter = kFilter,
                                .default_extension = ""});
  if (!name) return;
  CloseInputPlots();
  CloseResults();
  if (!name->empty()) {
    PinFileOpen = kFalse;
    UnloadForm(frmPin);
    PinFilePath = *name;
    ReadParameterFile();
  }
  ShowGeneralTab();
}

}  // namespace tarnvik
