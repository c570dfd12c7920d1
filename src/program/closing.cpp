// The questions that frmInput and frmPin ask when they close.
#include "core/frmmain.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/validation.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "platform/host.h"
#include "results/frmoutput.h"

namespace tarnvik {

namespace {

Answer AskToSave(const char* question) {
  const std::string line = kLineBreak;
  return ShowMessage(question + line + line + "Any Windows With Plots Will Be Closed." + line +
                         "To Cancel Action, Click Cancel.",
                     Icon::Question, Buttons::YesNoCancel);
}

// What an incomplete case cannot do: saving it whole, running it, looking at its results.
void DisableCaseMenus() {
  frmMain->mnuFileSaveAll.SetEnabled(false);
  frmMain->mnuFileSaveAllAs.SetEnabled(false);
  frmMain->mnuFileSaveControlAs.SetEnabled(false);
  frmMain->mnuModelRun.SetEnabled(false);
  DisableResultMenus();
}

}  // namespace

void frmInput_Form_QueryUnload(bool& cancel, UnloadMode mode) {
  if (mode != UnloadMode::ByCode && ExitPrompt == kTrue) {
    const Answer answer = AskToSave("Save Input Files Now?");
    if (answer == Answer::Cancel) {
      cancel = true;
      return;
    }
    if (answer == Answer::Yes) {
      ValidateInputData();
      if (InputValid == kFalse) {
        cancel = true;
        return;
      }
      SaveDataFileAs();
      if (frmInput->lblFile(kFilePin).Caption() != kNoneSelected) SaveParameterFileAs();
      SaveControlFileAs();
      UnloadForm(frmPin);
      UnloadForm(frmInput);
    }
  }
  if (mode == UnloadMode::MainClosing) return;
  CloseInputPlots();
  if (OutputFormsOpen == kTrue) UnloadResultForms();
  NewNFYear = NewNXYear = NewNAges = NewNSelPer = NewNIndex = NewNYears = NewRecYr = 0;
  DisableCaseMenus();
  frmMain->mnuFileSaveDataAs.SetEnabled(false);
  DatFileOpen = kFalse;
  for (std::string* path : {&DatFilePath, &ReportPath, &StdPath, &ParPath}) path->clear();
  InputValid = kFalse;
}

void frmPin_Form_QueryUnload(bool& cancel, UnloadMode mode) {
  if (mode != UnloadMode::ByCode && ExitPrompt == kTrue) {
    const Answer answer = AskToSave("Save Parameter Input File Now?");
    if (answer == Answer::Cancel) {
      cancel = true;
      return;
    }
    if (answer == Answer::Yes) {
      ValidateParameters();
      if (InputValid == kFalse) {
        cancel = true;
        return;
      }
      SaveParameterFileAs();
      UnloadForm(frmPin);
    }
  }
  if (mode == UnloadMode::MainClosing) return;
  PinFileOpen = kFalse;
  CloseInputPlots();
  if (OutputFormsOpen == kTrue || StdFileRead == kTrue || ParFileRead == kTrue) UnloadResultForms();
  DisableCaseMenus();
  frmMain->mnuFileSavePinAs.SetEnabled(false);
  for (std::string* path : {&PinFilePath, &ReportPath, &StdPath, &ParPath}) path->clear();
  ShowPath(frmInput->lblFile(kFilePin), kNoneSelected);
}

}  // namespace tarnvik
