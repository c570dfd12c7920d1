#include "core/globals.h"
#include "core/text.h"
#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"
#include "inputedit/general_combos.h"
#include "inputedit/grids.h"
#include "inputedit/labels.h"
#include "inputedit/options.h"
#include "inputedit/surveys.h"

namespace tarnvik {

namespace {

void ClearDimensions() {
  for (std::int16_t* dimension : {&NFYear, &NXYear, &NAges, &NSelPer, &NIndex, &NYears, &RecYr})
    *dimension = 0;
}

void FillPriorTypes() {
  ComboBox& types = frmInput->cmbMType;
  for (const char* type : {"Use Lognormal Prior", "Use Normal Prior", "Use Gamma Prior"}) types.AddItem(type);
  types.SetListIndex(0);
  types.SetVisible(false);
}

void ShowPaths() {
  ShowPath(frmInput->lblCTL, CtlFilePath);
  ShowPath(frmInput->lblFile(kFilePin), PinFilePath);
  // The data file's own label is left to whoever reads or names the file.
  if (IsNone(DatFilePath)) ShowPath(frmInput->lblFile(kFileDat), DatFilePath);
  frmInput->cmdBrowse1.SetEnabled(true);
  frmInput->cmdBrowse2.SetEnabled(true);
}

void ShapeGrids() {
  BuildAllInputGrids();
  LabelSurveys(kLabelsSurveySample);
  LabelSurveys(kLabelsSurveyFit);
  FillCpueAges();
  BuildAllPinGrids();
  // frmPin may have been open before this form: its frames follow the options as they are now.
  ApplySelectivityModels();
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
  frmInput->lblSurvTitle.SetCaption(SurvTitle(1));
  ShapeGrids();
}

void InputForm::Load() { frmInput_Form_Load(); }

}  // namespace tarnvik
