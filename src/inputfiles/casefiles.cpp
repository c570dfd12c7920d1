#include "inputfiles/casefiles.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "plots/frmplotinput.h"
#include "results/frmoutput.h"

namespace tarnvik {

void ShowGeneralTab() {
  BringFormToFront(frmInput);
  frmInput->SSTab1.SetTab(kTabGeneral);
}

void CloseInputPlots() {
  UnloadForm(frmPlotInput);
  frmMain->mnuDataPlotInput.SetEnabled(false);
}

void CloseResults() {
  if (OutputFormsOpen == kTrue || StdFileRead == kTrue || ParFileRead == kTrue) UnloadResultForms();
  frmMain->mnuModelScan.SetEnabled(false);
}

void frmInput_cmdBrowseCTL_Click(int) {
  DisableResultMenus();
  CaseOpenPending = kFalse;
  OpenControlFile();
  frmInput->SSTab1.SetTab(kTabGeneral);
  ActivateForm(frmInput);
}

void frmInput_cmdBrowse1_Click(int) {
  DisableResultMenus();
  CaseOpenPending = kFalse;
  OpenParameterFile();
  CtlFileOpen = kFalse;
  CheckResultsCurrent();
}

void frmInput_cmdBrowse2_Click(int) {
  DisableResultMenus();
  CaseOpenPending = kFalse;
  OpenDataFile();
  CtlFileOpen = kFalse;
  CheckResultsCurrent();
}

}  // namespace tarnvik
