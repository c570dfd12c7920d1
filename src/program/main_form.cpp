// frmMain comes and goes: the start of the program and its end.
#include <string>
#include <vector>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/settings.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "platform/paths.h"
#include "program/menu.h"

namespace tarnvik {

namespace {

std::string DefaultPath(const char* ending) { return InProgramFolder(DefaultRootName() + ending); }

// A default name for one of the three files, in its label and in its path. The label is touched first: the
// first touch of all loads frmInput, which looks at the paths.
void NameByDefault(Label& label, std::string& path, const char* ending) {
  path = DefaultPath(ending);
  ShowPath(label, path);
}

}  // namespace

MainForm::MainForm() : Form("frmMain", "Tarnvik") { SetUpMenu(*this); }

void MainForm::Load() { frmMain_MDIForm_Load(); }

void MainForm::QueryUnload(bool& cancel, UnloadMode) { frmMain_MDIForm_QueryUnload(cancel); }

void frmMain_MDIForm_Load() {
  frmMain->mnuEdit.SetVisible(false);  // it serves as the pop-up menu of the viewers
  frmMain->HelpFile = InProgramFolder("TARNVIKHELP.CHM");
  DisableResultMenus();
  frmMain->mnuViewLog.SetEnabled(false);

  ExitPrompt = kTrue;
  frmMain->mnuOptionsExitPromptEnable.SetChecked(true);
  frmMain->mnuOptionsExitPromptDisable.SetChecked(false);
  CtlFileOpen = PinFileOpen = DatFileOpen = kFalse;
  for (std::string* path : {&CtlFilePath, &DatFilePath, &PinFilePath, &ReportPath, &StdPath, &ParPath})
    path->clear();
  PlotInputOpen = OutputFormsOpen = StdFileRead = ParFileRead = kFalse;

  GPYearMin = 1900;
  GPYearMax = CurrentYear();
  GPAutoYear = kTrue;
  GPAgeMax = 60;
  GPSurveyMax = 50;
  ReadSettingsFile();

  NameByDefault(frmInput->lblCTL, CtlFilePath, ".ctl");
  NameByDefault(frmInput->lblFile(kFilePin), PinFilePath, ".pin");
  NameByDefault(frmInput->lblFile(kFileDat), DatFilePath, ".dat");
  frmMain->mnuFileCreateData.SetEnabled(true);
  frmInput->cmdBrowse1.SetEnabled(true);
  frmInput->cmdBrowse2.SetEnabled(true);
  ActivateForm(frmInput);
  frmInput->SSTab1.SetTab(0);
}

void frmMain_MDIForm_QueryUnload(bool& cancel) {
  // Every child is asked before the first is unloaded, so that a Cancel loses nothing. Answering may unload
  // others.
  std::vector<FormSlot*> children = LoadedForms();
  std::erase(children, &frmMain);
  for (FormSlot* child : children) {
    if (!AskToUnload(*child, UnloadMode::MainClosing)) {
      cancel = true;
      return;
    }
  }
  for (FormSlot* child : children) UnloadWithoutAsking(*child);
}

}  // namespace tarnvik
