#include "modelrun/runmodel.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "modelrun/modeloutput.h"
#include "modelrun/scan.h"
#include "platform/form.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "results/frmoutput.h"
#include "results/frmstd.h"

namespace tarnvik {

namespace {

const std::string kBreak = kLineBreak;

bool UserWantsToRun() {
  const Answer answer =
      ShowMessage("Before Running Tarnvik - " + kBreak + kBreak +
                      "Input Data File and Parameters File Will be Rewritten from Input Forms" + kBreak +
                      kBreak + "Click OK to Run Tarnvik or Cancel to " + kBreak +
                      "Terminate Run Before Overwriting Existing Files",
                  Icon::Information, Buttons::OkCancel, Answer::Cancel);
  if (answer == Answer::Ok) return true;
  ShowMessage("Run is Terminated" + kBreak + "Use Save Individual Files on Menu " + kBreak +
                  "to Save Files Under New Names",
              Icon::Information);
  return false;
}

// Saves the case and takes the paths from the labels; false when there is nothing that could be run.
bool InputFilesReady() {
  SaveAllInputFiles();
  if (FilesSaved == kFalse) return false;
  CtlFilePath = frmInput->lblCTL.Caption();
  DatFilePath = frmInput->lblFile(kFileDat).Caption();
  PinFilePath = frmInput->lblFile(kFilePin).Caption();
  if (!FileExists(CtlFilePath) || !FileExists(DatFilePath) || !FileExists(PinFilePath) ||
      FilesSaved == kFalse) {
    ShowMessage("Tarnvik Can Not be Executed" + kBreak + "Input Files Unavailable", Icon::Exclamation);
    return false;
  }
  if (PathHasNoSpaces(CtlFilePath) == "False") {
    ShowMessage("Input Files May Not be in a Directory That Contains Embedded Spaces" + kBreak +
                    "User Must Save Input Files in a Different Directory Before Running Model",
                Icon::Information);
    return false;
  }
  return true;
}

// The model works where the control file lies; a bare name hands the question on to the next file.
std::string WorkingFolder() {
  for (const std::string& path :
       {CtlFilePath, frmInput->lblFile(kFilePin).Caption(), frmInput->lblFile(kFileDat).Caption()}) {
    const std::string folder = DirOfPath(path);
    if (!folder.empty()) return folder;
  }
  return CurrentFolder();
}

// No quotes anywhere: that is why paths with blanks are refused before.
std::string ModelCommand() {
  return "CMD.EXE /C " + TheHost().ProgramFolder() + kPathSeparator + "tarnvik.exe -ainp " + PinFilePath +
         " -ind " + DatFilePath + " 2> " + LogPathOf(CtlFilePath);
}

void EndRunDisplay() {
  SetMousePointer(Pointer::Default);
  frmMain->StatusBar1.SetPanel(kMessagePanel, "");
}

// From the saved case to the model's end and its files; ModelRunOK tells whether they are whole.
void RunSavedCase() {
  DeleteModelOutput();
  const std::string folder = WorkingFolder();
  BringFormToFront(frmInput);
  frmMain->StatusBar1.SetPanel(kMessagePanel, "Running Statistical Catch at Age Model");
  SetMousePointer(Pointer::Hourglass);
  ChangeFolder(folder);
  if (TheHost().CreateConsoleProcess(ModelCommand()) == 0) {
    ShowMessage("Process Creation Failed", Icon::Exclamation);
  } else {
    CollectModelOutput();
  }
  EndRunDisplay();
}

}  // namespace

std::string PathHasNoSpaces(const std::string& path) {
  return Trim(path).find(' ') == std::string_view::npos ? "True" : "False";
}

void RunModel() {
  try {
    ModelRunOK = FilesSaved = kFalse;
    UnloadForm(frmOutput);
    UnloadForm(frmSTD);
    frmInput->SSTab1.SetTab(0);
    if (!UserWantsToRun() || !InputFilesReady()) return;
    RunSavedCase();
    if (ModelRunOK != kTrue) return;
    EnableResultMenus();
    ShowMessage("Tarnvik - Model Run Completed", Icon::Information);
    ScanReportFile();
  } catch (...) {
    const std::string text = CurrentErrorText();
    EndRunDisplay();
    ShowMessage("Error Running Model" + kBreak + text, Icon::Exclamation);
  }
}

}  // namespace tarnvik
