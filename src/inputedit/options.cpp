#include "inputedit/options.h"

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/selectivity_paint.h"
#include "inputedit/surveys.h"
#include "inputedit/year_grids.h"

namespace tarnvik {

// --- What is estimated, and from which phase on

namespace {

constexpr const char* kEarly = "Set to early phase, like 1-3";
constexpr const char* kMiddle = "Set to middle phase, like 4-6";

void TurnOn(Label& label, TextBox& box, bool on) {
  label.SetEnabled(on);
  box.SetVisible(on);
}

// Label and phase are on while the box is checked and the selectivity model in force has the item.
void ApplyEstimatePairs(const CheckBox& check) {
  for (const EstimatePair& pair : EstimatePairs(*frmInput)) {
    if (pair.check == &check) TurnOn(*pair.label, *pair.phase, check.IsChecked() && pair.in_model);
  }
}

void UncheckAndDisable(CheckBox& check) {
  check.SetValue(0);
  check.SetEnabled(false);
}

}  // namespace

std::vector<EstimatePair> EstimatePairs(InputForm& f) {
  const bool fish_curve = f.opFSelModel(kParametric).Value();
  const bool fish_ages = f.opFSelModel(kNonparametric).Value();
  const bool surv_curve = f.opSurvSelModel(kParametric).Value();
  const bool surv_ages = f.opSurvSelModel(kNonparametric).Value();
  const bool surv_gamma = surv_curve && !f.opSurvSelParametric(kFlatTopped).Value();
  constexpr bool kAlways = true;
  const auto& check = f.chkEstimate;
  const auto& label = f.lblEstimate;
  const auto& text = f.txtEstimate;
  return {
      {&f.chkEstimateLogRec, &f.lblPhaseLogRec, &f.txtPhaseLogRec, kAlways, kEarly},
      {&f.chkEstimateRecDev, &f.lblPhaseRecDev, &f.txtPhaseRecDev, kAlways, kEarly},
      {&f.chkEstimateFMort, &f.lblPhaseFMort, &f.txtPhaseFMort, kAlways, kEarly},
      {&f.chkEstimateFMortDev, &f.lblPhaseFMortDev, &f.txtPhaseFMortDev, kAlways, kEarly},
      {&f.chkEstimateFishGamma, &f.lblPhaseFishGamma, &f.txtPhaseFishGamma, fish_curve, kMiddle},
      {&f.chkEstimateFishBeta, &f.lblPhaseFishBeta, &f.txtPhaseFishBeta, fish_curve, kMiddle},
      {&f.chkEstimateFishA50, &f.lblPhaseFishA50, &f.txtPhaseFishA50, fish_curve, kMiddle},
      {&f.chkFishSelNonParEst, &f.lblPhaseFSelNonPar, &f.txtPhaseFSelNonPar, fish_ages, kMiddle},
      {&f.chkSurvSelParEst(kLogGamma), &f.lblSurvSelParEst(kLogGamma), &f.txtSurvSelParEst(kLogGamma),
       surv_gamma, kMiddle},
      {&f.chkSurvSelParEst(kLogBeta), &f.lblSurvSelParEst(kLogBeta), &f.txtSurvSelParEst(kLogBeta),
       surv_curve, kMiddle},
      {&f.chkSurvSelParEst(kLogA50), &f.lblSurvSelParEst(kLogA50), &f.txtSurvSelParEst(kLogA50), surv_curve,
       kMiddle},
      {&f.chkSurvSelNonParEst, &f.lblSurvSelNonParEst, &f.txtSurvSelNonParEst, surv_ages, kMiddle},
      {&check(kItemM), &label(kItemMCv), &text(kItemMCv), kAlways, "Coefficient of variation of M"},
      {&check(kItemM), &label(kItemM), &text(kItemM), kAlways,
       "Enter the phase at which to begin estimating M; must be 9 or larger"},
      {&check(kItemSurveyQ), &label(kItemSurveyQ), &text(kItemSurveyQ), kAlways,
       "Enter the phase at which to begin estimating Survey q; must be 8 or larger"},
      {&check(kItemSurveyExponent), &label(kItemSurveyExponent), &text(kItemSurveyExponent), kAlways,
       "Enter the phase at which to begin estimating Survey exponent; must be 8 or larger"},
      {&check(kItemFisherySample), &label(kItemFisherySample), &text(kItemFisherySample), kAlways,
       "Enter the phase at which to begin estimating the effective sample size"},
      {&check(kItemInitialF), &label(kItemInitialF), &text(kItemInitialF), kAlways,
       "Initial equilibrium catch biomass, in metric tons"},
      {&check(kItemCriteria), &label(kItemTargetF), &text(kItemTargetF), kAlways, "Target fishing mortality"},
      {&check(kItemCriteria), &label(kItemLimitF), &text(kItemLimitF), kAlways, "Limit fishing mortality"},
      {&check(kItemCriteria), &label(kItemTargetSsb), &text(kItemTargetSsb), kAlways,
       "Target spawning biomass, in metric tons"},
      {&check(kItemCriteria), &label(kItemLimitSsb), &text(kItemLimitSsb), kAlways,
       "Limit spawning biomass, in metric tons"},
      {&check(kItemCpueQ), &label(kItemCpueQ), &text(kItemCpueQ), kAlways,
       "Enter the phase at which to begin estimating CPUE q; must be 3 or larger"},
      {&check(kItemCpueExponent), &label(kItemCpueExponent), &text(kItemCpueExponent), kAlways,
       "Enter the phase at which to begin estimating CPUE exponent; must be 4 or larger"},
  };
}

void frmInput_chkEstimate_Click(int index) {
  const CheckBox& check = frmInput->chkEstimate(index);
  ApplyEstimatePairs(check);
  if (index == kItemM) {
    frmInput->cmbMType.SetVisible(check.IsChecked());
    // A file that held M fixed has disabled the list.
    if (check.IsChecked()) frmInput->cmbMType.SetEnabled(true);
  }
  // With an initial equilibrium F the recruitment deviations reach back before the first year.
  if (index == kItemInitialF) UpdateRecDevGrid();
}

void frmInput_chkEstimateLogRec_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateLogRec); }
void frmInput_chkEstimateRecDev_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateRecDev); }
void frmInput_chkEstimateFMort_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateFMort); }
void frmInput_chkEstimateFMortDev_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateFMortDev); }
void frmInput_chkEstimateFishGamma_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateFishGamma); }
void frmInput_chkEstimateFishBeta_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateFishBeta); }
void frmInput_chkEstimateFishA50_Click(int) { ApplyEstimatePairs(frmInput->chkEstimateFishA50); }
void frmInput_chkFishSelNonParEst_Click(int) { ApplyEstimatePairs(frmInput->chkFishSelNonParEst); }
void frmInput_chkSurvSelParEst_Click(int index) { ApplyEstimatePairs(frmInput->chkSurvSelParEst(index)); }
void frmInput_chkSurvSelNonParEst_Click(int) { ApplyEstimatePairs(frmInput->chkSurvSelNonParEst); }

// --- Selectivity models

namespace {

void EnableBoth(const ControlArray<OptionButton>& group, bool enabled) {
  group(0).SetEnabled(enabled);
  group(1).SetEnabled(enabled);
}

void PaintFishGrids() {
  PaintFishPeriodGrid();
  PaintFishAnnualGrid();
}

// The box for the one count of the annual option lies over the grid of counts by period. It is enabled only
// while it shows: the parameter file takes the count from it then, and from the grid otherwise.
void ShowFishSelAge(bool shown) {
  frmInput->txtFishSelAge.SetVisible(shown);
  frmInput->txtFishSelAge.SetEnabled(shown);
  frmInput->ORVFlexGrid(kGridFisherySelAges).SetVisible(!shown);
}

void UseCountsByPeriod() {
  if (!frmInput->txtFishSelAge.Visible()) return;
  ShowFishSelAge(false);
  Grid& counts = frmInput->ORVFlexGrid(kGridFisherySelAges);
  for (int row = 1; row < counts.Rows(); ++row) {
    if (row == 1) {
      counts.SetTextMatrix(row, 1, frmInput->txtFishSelAge.Text());
    } else if (IsBlank(counts.TextMatrix(row, 1))) {
      counts.SetTextMatrix(row, 1, NumberText(NAges));
    }
  }
  PaintFishGrids();
}

void UseOneCount() {
  if (frmInput->txtFishSelAge.Visible()) return;
  ShowFishSelAge(true);
  const Grid& counts = frmInput->ORVFlexGrid(kGridFisherySelAges);
  if (counts.Rows() > 1) frmInput->txtFishSelAge.SetText(counts.TextMatrix(1, 1));
  PaintFishGrids();
}

}  // namespace

void ShowLogGammaRow(Grid& parameters, bool flat_topped) {
  constexpr int kShownHeight = 300;
  if (parameters.Rows() > 1) parameters.SetRowHeight(1, flat_topped ? 0 : kShownHeight);
}

void ApplyFishSelModel() {
  const bool parametric = frmInput->opFSelModel(kParametric).Value();
  const bool by_period = !parametric && frmInput->opFishSelNonPar(kByPeriod).Value();
  const bool annual = !parametric && !by_period && frmInput->opFishSelNonPar(kAnnual).Value();
  frmPin->frmParFishSel.SetVisible(parametric);
  frmPin->frmNonParFishSel1.SetVisible(by_period);
  frmPin->frmNonParFishSel2.SetVisible(annual);
  if (annual) {
    UseOneCount();
  } else {
    UseCountsByPeriod();
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(kPinFisheryCurve), frmInput->opFishSelParametric(kFlatTopped).Value());
}

void ApplySurvSelModel() {
  const bool parametric = frmInput->opSurvSelModel(kParametric).Value();
  frmPin->frmParSurvSel.SetVisible(parametric);
  frmPin->frmNonParSurvSel.SetVisible(!parametric);
  ShowLogGammaRow(frmPin->ORVFlexGrid1(kPinSurveyCurve), frmInput->opSurvSelParametric(kFlatTopped).Value());
}

void ApplySelectivityModels() {
  ApplyFishSelModel();
  ApplySurvSelModel();
}

void frmInput_opFSelModel_Click(int) {
  const bool parametric = frmInput->opFSelModel(kParametric).Value();
  EnableBoth(frmInput->opFishSelParametric, parametric);
  EnableBoth(frmInput->opFishSelNonPar, !parametric);
  if (parametric) {
    frmInput->chkEstimateFishGamma.SetEnabled(!frmInput->opFishSelParametric(kFlatTopped).Value());
    frmInput->chkEstimateFishBeta.SetEnabled(true);
    frmInput->chkEstimateFishA50.SetEnabled(true);
    UncheckAndDisable(frmInput->chkFishSelNonParEst);
  } else {
    UncheckAndDisable(frmInput->chkEstimateFishGamma);
    UncheckAndDisable(frmInput->chkEstimateFishBeta);
    UncheckAndDisable(frmInput->chkEstimateFishA50);
    frmInput->chkFishSelNonParEst.SetEnabled(true);
  }
  ApplyFishSelModel();
}

void frmInput_opSurvSelModel_Click(int) {
  const bool parametric = frmInput->opSurvSelModel(kParametric).Value();
  EnableBoth(frmInput->opSurvSelParametric, parametric);
  if (parametric) {
    frmInput->chkSurvSelParEst(kLogGamma).SetEnabled(!frmInput->opSurvSelParametric(kFlatTopped).Value());
    frmInput->chkSurvSelParEst(kLogBeta).SetEnabled(true);
    frmInput->chkSurvSelParEst(kLogA50).SetEnabled(true);
    UncheckAndDisable(frmInput->chkSurvSelNonParEst);
    TurnOn(frmInput->lblSurvSelNonParEst, frmInput->txtSurvSelNonParEst, false);
  } else {
    for (int i = 0; i <= 2; ++i) UncheckAndDisable(frmInput->chkSurvSelParEst(i));
    frmInput->chkSurvSelNonParEst.SetEnabled(true);
  }
  ApplySurvSelModel();
}

void frmInput_opFishSelParametric_Click(int) {
  const bool flat_topped = frmInput->opFishSelParametric(kFlatTopped).Value();
  if (frmInput->opFSelModel(kParametric).Value()) {
    if (flat_topped) frmInput->chkEstimateFishGamma.SetValue(0);
    frmInput->chkEstimateFishGamma.SetEnabled(!flat_topped);
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(kPinFisheryCurve), flat_topped);
}

void frmInput_opSurvSelParametric_Click(int) {
  const bool flat_topped = frmInput->opSurvSelParametric(kFlatTopped).Value();
  if (frmInput->opSurvSelModel(kParametric).Value()) {
    if (flat_topped) frmInput->chkSurvSelParEst(kLogGamma).SetValue(0);
    frmInput->chkSurvSelParEst(kLogGamma).SetEnabled(!flat_topped);
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(kPinSurveyCurve), flat_topped);
}

void frmInput_opFishSelNonPar_Click(int) { ApplyFishSelModel(); }

void frmInput_txtFishSelAge_LostFocus(int) { PaintFishGrids(); }

// --- Other couplings

void frmInput_chkShrink_Click(int) {
  const bool on = frmInput->chkShrink.IsChecked();
  TurnOn(frmInput->lblShrink, frmInput->txtShrink, on);
  TurnOn(frmInput->lblShrinkFactor, frmInput->txtShrinkFactor, on);
}

void frmInput_opBoot_Click(int) {
  const bool on = !frmInput->opBoot(kSingleRun).Value();
  TurnOn(frmInput->lblNBoot, frmInput->txtNBoot, on);
  TurnOn(frmInput->lblBootSeed, frmInput->txtBootSeed, on);
}

void frmInput_chkFitFishCPUE_Click(int) { ShowFitColumn(kGridCpue); }

void frmInput_chkSurvFit_Click(int) {
  ShowFitColumn(kGridSurveyIndex);
  const int survey = SelectedSurvey();
  if (survey >= 1 && survey <= SurvParametric.Size())
    SurvParametric(survey) = frmInput->chkSurvFit.IsChecked();
}

void frmInput_listSurvSample_Click(int) {
  TurnOn(frmInput->lblEstSurvSample, frmInput->txtEstSurvSample, frmInput->listSurvSample.AnySelected());
}

}  // namespace tarnvik
