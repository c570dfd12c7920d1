#include "core/globals.h"
#include "core/text.h"
#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"
#include "inputedit/grids.h"
#include "inputedit/options.h"
#include "inputedit/surveys.h"

namespace tarnvik {

namespace {

void ClearDimensions() {
  for (std::int16_t* dimension : {&NFYear, &NXYear, &NAges, &NSelPer, &NIndex, &NYears, &RecYr})
    *dimension = 0;
}

void CommitDimensions() {
  NFYear = NewNFYear;
  NXYear = NewNXYear;
  NAges = NewNAges;
  NYears = Int16(NXYear - NFYear + 1);
  FishAgeNYears = FishCPUENYears = NYears;
  NSelPer = NewNSelPer;
  NIndex = NewNIndex;
  RecYr = NewRecYr;
}

void FillPriorTypes() {
  ComboBox& types = frmInput->cmbMType;
  for (const char* type : {"Use Lognormal Prior", "Use Normal Prior", "Use Gamma Prior"}) types.AddItem(type);
  types.SetListIndex(0);
  types.SetVisible(false);
}

void ShowPaths() {
  ShowPath(frmInput->lblCTL, CtlFilePath);
  ShowPath(frmInput->lblFile(0), PinFilePath);
  // The data file's own label is left to whoever reads or names the file.
  if (IsNone(DatFilePath)) ShowPath(frmInput->lblFile(1), DatFilePath);
  frmInput->cmdBrowse1.SetEnabled(true);
  frmInput->cmdBrowse2.SetEnabled(true);
}

void SetUpSurveys() {
  ReDimSurveys();
  for (int survey = 1; survey <= NIndex; ++survey) {
    for (int j = 1; j <= NYears; ++j) {
      const std::string year = NumberText(NFYear + j - 1);
      SurvYearFit(survey, 0, j) = year;
      SurvAgeFit(survey, 0, j) = year;
    }
  }
  FillSurveyCombo();
  frmInput->cmbSurvFYear.FillNumbers(NFYear, NXYear);
  frmInput->cmbSurvXYear.FillNumbers(NFYear, NXYear);
  frmInput->cmbiSurv.SetListIndex(frmInput->cmbiSurv.ListCount() > 0 ? 0 : -1);
  frmInput->cmbSurvXYear.SetListIndex(frmInput->cmbSurvXYear.ListCount() - 1);
  frmInput->cmbSurvFYear.SetListIndex(0);
  frmInput->lblSurvTitle.SetCaption(NIndex > 0 ? SurvTitle(1) : "");
}

void ShapeGrids() {
  BuildAllInputGrids();
  LabelSurveys(3);
  LabelSurveys(4);
  FillCpueAges();
  UpdateRecDevGrid();
  UpdateFMortDevGrid();
  BuildAllPinGrids();
  // frmPin may have been open before this form: its frames follow the options as they are now.
  ApplyFishSelModel();
  ApplySurvSelModel();
}

}  // namespace

void frmInput_Form_Load() {
  const FormLoading loading;
  InputValid = kFalse;
  ClearDimensions();
  FillGeneralCombos();
  FillPriorTypes();
  frmInput->SSTab1.SetTab(kTabGeneral);
  ShowPaths();
  CommitDimensions();
  SetUpSurveys();
  ShapeGrids();
}

void InputForm::Load() { frmInput_Form_Load(); }

}  // namespace tarnvik
