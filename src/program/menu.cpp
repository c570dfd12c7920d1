#include "program/menu.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/settings.h"
#include "core/utils.h"
#include "inputedit/frmeditgp.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/validation.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/newcase.h"
#include "inputfiles/paramfile.h"
#include "modelrun/runmodel.h"
#include "modelrun/scan.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "plots/frmplotcollect.h"
#include "plots/frmplotinput.h"
#include "plots/input_plots.h"
#include "program/frmabout.h"
#include "results/frmoutput.h"
#include "results/frmviewopt.h"
#include "results/viewers.h"
#include "vpaimport/vpa_import.h"

namespace tarnvik {

namespace {

const std::string kBreak = kLineBreak;

void UnloadOpenResults() {
  if (OutputFormsOpen != kFalse) UnloadResultForms();
}

void SetExitPrompt(bool enabled) {
  ExitPrompt = Flag(enabled);
  frmMain->mnuOptionsExitPromptEnable.SetChecked(enabled);
  frmMain->mnuOptionsExitPromptDisable.SetChecked(!enabled);
  WriteSettingsFile();
}

}  // namespace

void frmMain_mnuFileCreateAll_Click(int) {
  if (DatFileOpen == kTrue || PinFileOpen == kTrue) {
    std::string prompt = "Save All Input Files Now?";
    if (PlotInputOpen == kTrue || OutputFormsOpen == kTrue) {
      prompt += kBreak + kBreak + "Any Windows With Plots Will Be Closed." + kBreak +
                "To Cancel Action, Click Cancel.";
    }
    const Answer answer = ShowMessage(prompt, Icon::Question, Buttons::YesNoCancel);
    if (answer == Answer::Cancel) return;
    if (answer == Answer::Yes) {
      SaveAllInputFiles();
      if (InputValid == kFalse) return;
    }
  }
  DatFileOpen = kFalse;
  PinFileOpen = kFalse;
  NewCase();
}

void frmMain_mnuFileCreateData_Click(int) { NewDataFile(); }

void frmMain_mnuFileCreatePin_Click(int) {
  frmPin->SSTab1.SetTab(0);
  NewParameterFile();
  frmPin->SSTab1.SetTab(0);
}

void frmMain_mnuFileOpen_Click(int) {
  BringFormToFront(frmInput);
  frmInput->SSTab1.SetTab(0);
  CaseOpenPending = kTrue;
  OpenControlFile();
}

void frmMain_mnuFileSaveAll_Click(int) { SaveAllInputFiles(); }
void frmMain_mnuFileSaveAllAs_Click(int) { SaveAllWithRootName(); }

void frmMain_mnuFileSaveControlAs_Click(int) {
  SaveControlFileAs();
  DisableResultMenus();
}

void frmMain_mnuFileSaveDataAs_Click(int) {
  if (InputDataPass()) SaveDataFileAs();
}

void frmMain_mnuFileSavePinAs_Click(int) {
  if (ParametersPass()) SaveParameterFileAs();
}

void frmMain_mnuFileImportVPA_Click(int) { ImportVpa(); }
void frmMain_mnuFileExit_Click(int) { UnloadForm(frmMain); }
void frmMain_mnuEditCopy_Click(int) { GridCopy(); }
void frmMain_mnuEditSelect_Click(int) { GridSelectAll(); }

void frmMain_mnuDataPlotInput_Click(int) {
  ValidateInputData();
  if (InputValid == kFalse) {
    ShowMessage("Cannot Plot Input Data" + kBreak + "Please Correct Input Data Before Continuing");
    return;
  }
  ValidateParameters();
  if (InputValid == kFalse) {
    ShowMessage("Cannot Plot Input Data" + kBreak + "Please Correct Input Parameters Before Continuing");
    return;
  }
  RefreshInputPlots();
  frmPlotInput->SSTab1.SetTab(kInputFisheryAge);
  ActivateForm(frmPlotInput);
}

void frmMain_mnuModelRun_Click(int) {
  UnloadOpenResults();
  RunModel();
}

void frmMain_mnuModelScan_Click(int) {
  UnloadOpenResults();
  ScanReportFile();
}

void frmMain_mnuOptionsGPEdit_Click(int) { ShowFormModal(frmEditGP); }
void frmMain_mnuOptionsFileView_Click(int) { ShowFormModal(frmViewOpt); }
void frmMain_mnuOptionsExitPromptEnable_Click(int) { SetExitPrompt(true); }
void frmMain_mnuOptionsExitPromptDisable_Click(int) { SetExitPrompt(false); }
void frmMain_mnuViewReport_Click(int) { ViewReportFile(); }
void frmMain_mnuViewStdDev_Click(int) { ViewStdFile(); }
void frmMain_mnuViewOutPar_Click(int) { ViewParFile(); }
void frmMain_mnuViewLog_Click(int) { ViewLogFile(); }

void frmMain_mnuViewPlotCollect_Click(int) {
  if (OutputFormsOpen == kTrue && (StdFileRead == kTrue || ParFileRead == kTrue)) {
    ShowFormModal(frmPlotCollect);
  } else {
    ShowMessage("Please Scan In Model Results Before Proceding with Plot Collection", Icon::Exclamation);
  }
}

void frmMain_mnuHelpAbout_Click(int) { ShowFormModal(frmAboutTARNVIK); }

void frmMain_mnuHelpUsing_Click(int) { TheHost().StartProgram("HH.EXE " + frmMain->HelpFile); }

void frmMain_mnuHelpRefMan_Click(int) {
  const std::string manual = InProgramFolder("tarnvik.pdf");
  if (!FileExists(manual)) {
    ShowMessage("Tarnvik Reference Manual tarnvik.pdf is Not Available");
  } else if (TheHost().OpenDocument(manual) <= 32) {
    ShowMessage("Unable to Open Tarnvik Reference Manual" + kBreak +
                "Please Check that the File tarnvik.pdf is Available" + kBreak +
                "and that Acrobat Reader is Installed on your PC");
  }
}

namespace {

// One entry of the menu bar, in the order of the bar; depth 0 is a top-level menu. Help id 0 means none.
struct MenuRow {
  MenuItem MainForm::*item;
  int depth;
  const char* caption;
  const char* shortcut;
  int help_id;
  Handler effect;
};

using F = MainForm;

constexpr MenuRow kMenu[] = {
    {&F::mnuFile, 0, "File", "", 0, nullptr},
    {&F::mnuFileCreate, 1, "Create New ...", "", 1002, nullptr},
    {&F::mnuFileCreateAll, 2, "Create Entirely New Case", "", 1002, frmMain_mnuFileCreateAll_Click},
    {&F::mnuFileCreateData, 2, "Create New Data File Only", "", 1002, frmMain_mnuFileCreateData_Click},
    {&F::mnuFileCreatePin, 2, "Create New Parameter File Only", "", 1002, frmMain_mnuFileCreatePin_Click},
    {&F::mnuFileOpen, 1, "Open Existing Input Files", "", 1001, frmMain_mnuFileOpen_Click},
    {&F::mnuFileSpc1, 1, "-", "", 0, nullptr},
    {&F::mnuFileSaveAll, 1, "Save All Input Files", "", 1003, frmMain_mnuFileSaveAll_Click},
    {&F::mnuFileSaveAllAs, 1, "Save All With Root Name ...", "", 1003, frmMain_mnuFileSaveAllAs_Click},
    {&F::mnuSaveAs, 1, "Save As ...", "", 1003, nullptr},
    {&F::mnuFileSaveControlAs, 2, "Save Control Files As...", "", 1003, frmMain_mnuFileSaveControlAs_Click},
    {&F::mnuFileSaveDataAs, 2, "Save Input Data File As...", "", 1003, frmMain_mnuFileSaveDataAs_Click},
    {&F::mnuFileSavePinAs, 2, "Save Input Parameter File As...", "", 1003, frmMain_mnuFileSavePinAs_Click},
    {&F::mnuFileSpc5, 1, "-", "", 0, nullptr},
    {&F::mnuFileImportVPA, 1, "Import Data from a VPA Input File", "", 1020, frmMain_mnuFileImportVPA_Click},
    {&F::mnuFileSpc4, 1, "-", "", 0, nullptr},
    {&F::mnuFileExit, 1, "Exit", "", 0, frmMain_mnuFileExit_Click},
    {&F::mnuEdit, 0, "Edit", "", 0, nullptr},
    {&F::mnuEditCopy, 1, "Copy", "Ctrl+C", 0, frmMain_mnuEditCopy_Click},
    {&F::mnuEditSelect, 1, "Select All", "Ctrl+A", 0, frmMain_mnuEditSelect_Click},
    {&F::mnuData, 0, "Data", "", 0, nullptr},
    {&F::mnuDataPlotInput, 1, "Plot Input Data and Parameter Values", "", 1004,
     frmMain_mnuDataPlotInput_Click},
    {&F::mnuModel, 0, "Model", "", 0, nullptr},
    {&F::mnuModelRun, 1, "Run Model", "", 1008, frmMain_mnuModelRun_Click},
    {&F::mnuModelScan, 1, "Scan Model Results", "", 1009, frmMain_mnuModelScan_Click},
    {&F::mnuOptions, 0, "Options", "", 0, nullptr},
    {&F::mnuOptionsGPEdit, 1, "General Parameter Ranges", "", 1005, frmMain_mnuOptionsGPEdit_Click},
    {&F::mnuOptionsSpc1, 1, "-", "", 0, nullptr},
    {&F::mnuOptionsFileView, 1, "Select File Viewer", "", 1011, frmMain_mnuOptionsFileView_Click},
    {&F::mnuOptionsSpc2, 1, "-", "", 0, nullptr},
    {&F::mnuOptionsExitPrompt, 1, "Prompt for Save on Exit", "", 1012, nullptr},
    {&F::mnuOptionsExitPromptEnable, 2, "Enable", "", 1012, frmMain_mnuOptionsExitPromptEnable_Click},
    {&F::mnuOptionsExitPromptDisable, 2, "Disable", "", 1012, frmMain_mnuOptionsExitPromptDisable_Click},
    {&F::mnuView, 0, "View", "", 1011, nullptr},
    {&F::mnuViewReport, 1, "View Report File", "", 1011, frmMain_mnuViewReport_Click},
    {&F::mnuViewStdDev, 1, "View Standard Deviations File", "", 1011, frmMain_mnuViewStdDev_Click},
    {&F::mnuViewOutPar, 1, "View Output Parameters File", "", 1011, frmMain_mnuViewOutPar_Click},
    {&F::mnuViewLog, 1, "View Log File", "", 0, frmMain_mnuViewLog_Click},
    {&F::mnuViewSpc, 1, "-", "", 0, nullptr},
    {&F::mnuViewPlotCollect, 1, "Create Plot Collection", "", 1013, frmMain_mnuViewPlotCollect_Click},
    {&F::mnuWindow, 0, "Window", "", 0, nullptr},
    {&F::mnuHelp, 0, "Help", "", 0, nullptr},
    {&F::mnuHelpAbout, 1, "About Tarnvik", "", 0, frmMain_mnuHelpAbout_Click},
    {&F::mnuHelpSpc1, 1, "-", "", 0, nullptr},
    {&F::mnuHelpUsing, 1, "Using Tarnvik", "", 0, frmMain_mnuHelpUsing_Click},
    {&F::mnuHelpSpc2, 1, "-", "", 0, nullptr},
    {&F::mnuHelpRefMan, 1, "Reference Manual", "", 0, frmMain_mnuHelpRefMan_Click},
};

}  // namespace

void SetUpMenu(MainForm& form) {
  MenuItem* parents[3] = {};
  for (const MenuRow& row : kMenu) {
    MenuItem& item = form.*row.item;
    item.SetCaption(row.caption);
    item.Shortcut = row.shortcut;
    item.HelpId = row.help_id;
    item.OnClick = row.effect;
    parents[row.depth] = &item;
    if (row.depth > 0) {
      item.Parent = parents[row.depth - 1];
      item.SetContainer(item.Parent);
    }
  }
}

}  // namespace tarnvik
