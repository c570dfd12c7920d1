#include "inputfiles/newcase.h"

#include <string>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/labels.h"
#include "inputedit/options.h"
#include "inputfiles/casefiles.h"
#include "platform/paths.h"
#include "results/frmoutput.h"

namespace tarnvik {

namespace {

void ClearGrids(std::initializer_list<int> grids) {
  for (const int grid : grids) frmInput->ORVFlexGrid(grid).Clear();
}

void ClearTexts(const ControlArray<TextBox>& array, std::initializer_list<int> fields) {
  for (const int field : fields) array(field).SetText("");
}

void Uncheck(std::initializer_list<int> boxes) {
  for (const int box : boxes) frmInput->chkEstimate(box).SetValue(0);
}

void MarkAll(ListBox& list, bool selected) {
  for (int item = 0; item < list.ListCount(); ++item) list.SetSelected(item, selected);
}

// A survey without data over all years of the case.
void ClearSurvey(int survey) {
  SurvFYear(survey) = NFYear;
  SurvXYear(survey) = NXYear;
  for (int row = 1; row <= NYears; ++row) {
    const std::string year = NumberText(NFYear + row - 1);
    SurvYearFit(survey, kStoreYear, row) = SurvAgeFit(survey, kStoreYear, row) = year;
    for (int col = kStoreValue; col <= SurvAgeFit.LastColumn(); ++col) SurvAgeFit(survey, col, row).clear();
    SurvYearFit(survey, kStoreValue, row).clear();
    SurvYearFit(survey, kStoreFit, row) = SurvAgeFit(survey, kStoreFit, row) = "n";
  }
  SurvParametric(survey) = false;
}

void ClearSurveys() {
  InputForm& form = *frmInput;
  for (int survey = 1; survey <= NIndex; ++survey) {
    form.cmbiSurv.SetListIndex(survey - 1);
    form.cmbSurvFYear.SetListIndex(0);
    form.cmbSurvXYear.SetListIndex(form.cmbSurvXYear.ListCount() - 1);
    ClearSurvey(survey);
  }
  form.cmbiSurv.SetListIndex(0);
}

void DisableDataCommands() {
  MainForm& menu = *frmMain;
  for (MenuItem* entry : {&menu.mnuFileSaveAll, &menu.mnuFileSaveAllAs, &menu.mnuFileSaveControlAs,
                          &menu.mnuFileSaveDataAs, &menu.mnuModelRun}) {
    entry->SetEnabled(false);
  }
  DisableResultMenus();
}

// The name of a new file of the case: the control file's with another ending. One that exists is not taken;
// date and time make a name of their own then, in that folder if there is one, else in the program's.
std::string NewFilePath(const std::string& ending) {
  const std::string& control = frmInput->lblCTL.Caption();
  const std::string default_name = DefaultRootName() + "." + ending;
  if (IsNone(control)) return InProgramFolder(default_name);
  const std::string path = WithEnding(control, ending);
  if (control.find('.') != std::string::npos && !FileExists(path)) return path;
  const std::string folder = DirOfPath(path);
  return folder.empty() || FolderExists(folder) ? folder + default_name : InProgramFolder(default_name);
}

// Selects the dimensions in force again; the handlers find nothing changed.
void RestoreCombos(int rec_year, int ref_year) {
  InputForm& form = *frmInput;
  form.cmbNFYear.SetListIndex(NFYear - GPYearMin);
  form.cmbNXYear.SetListIndex(NXYear - GPYearMin);
  form.cmbNAges.SetListIndex(NAges - 1);
  form.cmbSelPer.SetListIndex(NSelPer - 1);
  form.cmbNIndex.SetListIndex(NIndex - 1);
  form.cmbRecYr.SetListIndex(rec_year);
  form.cmbRefYr.SetListIndex(ref_year);
}

void BuildParameterGrids() {
  BuildAllPinGrids();
  ApplySelectivityModels();
}

void RebuildGrids() {
  const FormLoading loading;
  BuildAllInputGrids();
  LabelSurveys(kLabelsIndexAges);
  LabelSurveys(kLabelsSurveyEmphasis);
  FillCpueAges();
  BuildParameterGrids();
}

}  // namespace

void ClearDataForm() {
  InputForm& form = *frmInput;
  ShowPath(form.lblFile(kFileDat), kNoneSelected);
  form.txtModel.SetText(kNoneSelected);
  form.opBoot(kSingleRun).SetValue(true);
  ClearGrids({kGridFisheryAge, kGridCpue});
  form.txtZCpue.SetText("0.5");
  MarkAll(form.lstCPUEages, true);
  form.lstCPUEages.SetListIndex(-1);
  ClearSurveys();
  ClearGrids({kGridCatch});
  ClearTexts(form.txtVarCoeff, {kCvRecruitment, kCvCatch, kCvF});
  ClearTexts(form.txtLikelihood, {kEmphasisRecruitment, kEmphasisCatch, kEmphasisF});
  Uncheck({kItemM, kItemInitialF, kItemCriteria});
  ClearTexts(form.txtEstimate, {kItemM, kItemTargetF, kItemLimitF, kItemTargetSsb, kItemLimitSsb});
  form.txtEstimate(kItemInitialF).SetText("0.0");
  ClearGrids({kGridPeriods, kGridFisherySelAges});
  Uncheck({kItemCpueQ, kItemCpueExponent, kItemFisherySample});
  ClearTexts(form.txtEstimate, {kItemCpueQ, kItemCpueExponent});
  ClearTexts(form.txtLikelihood, {kEmphasisCpue, kEmphasisFisheryAge, kEmphasisSelectivity});
  ClearGrids({kGridIndexAges, kGridSurveyZ});
  MarkAll(form.listSurvFit, false);
  Uncheck({kItemSurveyQ, kItemSurveyExponent});
  ClearTexts(form.txtEstimate, {kItemSurveyExponent});
  MarkAll(form.listSurvSample, false);
  ClearGrids({kGridSurveyEmphasis, kGridCatchWeight, kGridStockWeight, kGridMaturity});
  form.txtFractionZ.SetText("");
  ClearGrids({kGridSpawnWeight, kGridMMultiplier});
  DisableDataCommands();
  DatFileOpen = kFalse;
  for (std::string* path : {&DatFilePath, &ReportPath, &StdPath, &ParPath}) path->clear();
  form.SSTab1.SetTab(kTabGeneral);
}

void NewDataFile() {
  // A read that failed early leaves no dimensions in force and resting handlers: the form starts afresh.
  if (LoadingForm == kTrue) UnloadForm(frmInput);
  const int rec_year = frmInput->cmbRecYr.ListIndex();
  const int ref_year = frmInput->cmbRefYr.ListIndex();
  ClearDataForm();
  CloseInputPlots();
  UnloadResultForms();
  frmMain->mnuModelRun.SetEnabled(false);
  DisableResultMenus();
  for (const int grid : {kToolCpue, kToolFisheryAge}) {
    frmInput->cmdExpandGrd(grid).SetEnabled(false);
    frmInput->cmdCondenseGrd(grid).SetEnabled(true);
  }
  DatFilePath = NewFilePath("dat");
  ShowPath(frmInput->lblFile(kFileDat), DatFilePath);
  frmInput->txtModel.SetText(kNoneSelected);
  frmMain->mnuWindow.SetEnabled(true);
  RestoreCombos(rec_year, ref_year);
  RebuildGrids();
  ShowGeneralTab();
}

void NewParameterFile() {
  // The writers take their paths from the labels, so the next one puts DatFilePath right again.
  DatFilePath = NewFilePath("pin");
  frmInput->lblFile(kFilePin).SetCaption(PinFilePath);
  frmInput->lblFile(kFilePin).SetForeColor(kBlue);
  ActivateForm(frmPin);
  frmPin->txtParmFile.ForEach([](TextBox& field) { field.SetText(""); });
  frmPin->ORVFlexGrid1.ForEach([](Grid& grid) { grid.Clear(); });
  BuildParameterGrids();
  MainForm& menu = *frmMain;
  for (MenuItem* entry : {&menu.mnuFileSaveAll, &menu.mnuFileSaveAllAs, &menu.mnuFileSaveControlAs,
                          &menu.mnuFileSavePinAs, &menu.mnuWindow}) {
    entry->SetEnabled(true);
  }
  DisableResultMenus();
  BringFormToFront(frmInput);
}

void NewCase() {
  UnloadForm(frmPin);
  NewDataFile();
  const std::string root = DatFilePath.substr(0, DatFilePath.size() - 4);
  PinFilePath = root + ".pin";
  ShowPath(frmInput->lblFile(kFilePin), PinFilePath);
  CtlFilePath = root + ".ctl";
  ShowPath(frmInput->lblCTL, CtlFilePath);
  frmMain->mnuFileCreatePin.SetEnabled(true);
  frmMain->mnuFileCreateData.SetEnabled(true);
  frmInput->cmdBrowse1.SetEnabled(true);
  frmInput->cmdBrowse2.SetEnabled(true);
  ShowGeneralTab();
}

}  // namespace tarnvik
