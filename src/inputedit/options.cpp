#include "inputedit/options.h"

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/surveys.h"

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
  const bool fish_curve = f.opFSelModel(0).Value();
  const bool fish_ages = f.opFSelModel(1).Value();
  const bool surv_curve = f.opSurvSelModel(0).Value();
  const bool surv_ages = f.opSurvSelModel(1).Value();
  const bool surv_gamma = surv_curve && !f.opSurvSelParametric(0).Value();
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
      {&f.chkSurvSelParEst(0), &f.lblSurvSelParEst(0), &f.txtSurvSelParEst(0), surv_gamma, kMiddle},
      {&f.chkSurvSelParEst(1), &f.lblSurvSelParEst(1), &f.txtSurvSelParEst(1), surv_curve, kMiddle},
      {&f.chkSurvSelParEst(2), &f.lblSurvSelParEst(2), &f.txtSurvSelParEst(2), surv_curve, kMiddle},
      {&f.chkSurvSelNonParEst, &f.lblSurvSelNonParEst, &f.txtSurvSelNonParEst, surv_ages, kMiddle},
      {&check(1), &label(0), &text(0), kAlways, "Coefficient of variation of M"},
      {&check(1), &label(1), &text(1), kAlways,
       "Enter the phase at which to begin estimating M; must be 9 or larger"},
      {&check(2), &label(2), &text(2), kAlways,
       "Enter the phase at which to begin estimating Survey q; must be 8 or larger"},
      {&check(3), &label(3), &text(3), kAlways,
       "Enter the phase at which to begin estimating Survey exponent; must be 8 or larger"},
      {&check(4), &label(4), &text(4), kAlways,
       "Enter the phase at which to begin estimating the effective sample size"},
      {&check(5), &label(5), &text(5), kAlways, "Initial equilibrium catch biomass, in metric tons"},
      {&check(6), &label(12), &text(12), kAlways, "Target fishing mortality"},
      {&check(6), &label(13), &text(13), kAlways, "Limit fishing mortality"},
      {&check(6), &label(14), &text(14), kAlways, "Target spawning biomass, in metric tons"},
      {&check(6), &label(15), &text(15), kAlways, "Limit spawning biomass, in metric tons"},
      {&check(10), &label(10), &text(10), kAlways,
       "Enter the phase at which to begin estimating CPUE q; must be 3 or larger"},
      {&check(11), &label(11), &text(11), kAlways,
       "Enter the phase at which to begin estimating CPUE exponent; must be 4 or larger"},
  };
}

void frmInput_chkEstimate_Click(int index) {
  const CheckBox& check = frmInput->chkEstimate(index);
  ApplyEstimatePairs(check);
  if (index == 1) {
    frmInput->cmbMType.SetVisible(check.IsChecked());
    // A file that held M fixed has disabled the list.
    if (check.IsChecked()) frmInput->cmbMType.SetEnabled(true);
  }
  // With an initial equilibrium F the recruitment deviations reach back before the first year.
  if (index == 5) UpdateRecDevGrid();
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
  frmInput->ORVFlexGrid(11).SetVisible(!shown);
}

void UseCountsByPeriod() {
  if (!frmInput->txtFishSelAge.Visible()) return;
  ShowFishSelAge(false);
  Grid& counts = frmInput->ORVFlexGrid(11);
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
  const Grid& counts = frmInput->ORVFlexGrid(11);
  if (counts.Rows() > 1) frmInput->txtFishSelAge.SetText(counts.TextMatrix(1, 1));
  PaintFishGrids();
}

}  // namespace

void ShowLogGammaRow(Grid& parameters, bool flat_topped) {
  constexpr int kShownHeight = 300;
  if (parameters.Rows() > 1) parameters.SetRowHeight(1, flat_topped ? 0 : kShownHeight);
}

void ApplyFishSelModel() {
  const bool parametric = frmInput->opFSelModel(0).Value();
  const bool by_period = !parametric && frmInput->opFishSelNonPar(0).Value();
  const bool annual = !parametric && !by_period && frmInput->opFishSelNonPar(1).Value();
  frmPin->frmParFishSel.SetVisible(parametric);
  frmPin->frmNonParFishSel1.SetVisible(by_period);
  frmPin->frmNonParFishSel2.SetVisible(annual);
  if (annual) {
    UseOneCount();
  } else {
    UseCountsByPeriod();
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(2), frmInput->opFishSelParametric(0).Value());
}

void ApplySurvSelModel() {
  const bool parametric = frmInput->opSurvSelModel(0).Value();
  frmPin->frmParSurvSel.SetVisible(parametric);
  frmPin->frmNonParSurvSel.SetVisible(!parametric);
  ShowLogGammaRow(frmPin->ORVFlexGrid1(5), frmInput->opSurvSelParametric(0).Value());
}

void frmInput_opFSelModel_Click(int) {
  const bool parametric = frmInput->opFSelModel(0).Value();
  EnableBoth(frmInput->opFishSelParametric, parametric);
  EnableBoth(frmInput->opFishSelNonPar, !parametric);
  if (parametric) {
    frmInput->chkEstimateFishGamma.SetEnabled(!frmInput->opFishSelParametric(0).Value());
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
  const bool parametric = frmInput->opSurvSelModel(0).Value();
  EnableBoth(frmInput->opSurvSelParametric, parametric);
  if (parametric) {
    frmInput->chkSurvSelParEst(0).SetEnabled(!frmInput->opSurvSelParametric(0).Value());
    frmInput->chkSurvSelParEst(1).SetEnabled(true);
    frmInput->chkSurvSelParEst(2).SetEnabled(true);
    UncheckAndDisable(frmInput->chkSurvSelNonParEst);
    TurnOn(frmInput->lblSurvSelNonParEst, frmInput->txtSurvSelNonParEst, false);
  } else {
    for (int i = 0; i <= 2; ++i) UncheckAndDisable(frmInput->chkSurvSelParEst(i));
    frmInput->chkSurvSelNonParEst.SetEnabled(true);
  }
  ApplySurvSelModel();
}

void frmInput_opFishSelParametric_Click(int) {
  const bool flat_topped = frmInput->opFishSelParametric(0).Value();
  if (frmInput->opFSelModel(0).Value()) {
    if (flat_topped) frmInput->chkEstimateFishGamma.SetValue(0);
    frmInput->chkEstimateFishGamma.SetEnabled(!flat_topped);
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(2), flat_topped);
}

void frmInput_opSurvSelParametric_Click(int) {
  const bool flat_topped = frmInput->opSurvSelParametric(0).Value();
  if (frmInput->opSurvSelModel(0).Value()) {
    if (flat_topped) frmInput->chkSurvSelParEst(0).SetValue(0);
    frmInput->chkSurvSelParEst(0).SetEnabled(!flat_topped);
  }
  ShowLogGammaRow(frmPin->ORVFlexGrid1(5), flat_topped);
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
  const bool on = !frmInput->opBoot(0).Value();
  TurnOn(frmInput->lblNBoot, frmInput->txtNBoot, on);
  TurnOn(frmInput->lblBootSeed, frmInput->txtBootSeed, on);
}

void frmInput_chkFitFishCPUE_Click(int) { ShowFitColumn(5); }

void frmInput_chkSurvFit_Click(int) {
  ShowFitColumn(16);
  const int survey = SelectedSurvey();
  if (survey >= 1 && survey <= SurvParametric.Size())
    SurvParametric(survey) = frmInput->chkSurvFit.IsChecked();
}

void frmInput_listSurvSample_Click(int) {
  TurnOn(frmInput->lblEstSurvSample, frmInput->txtEstSurvSample, frmInput->listSurvSample.AnySelected());
}

}  // namespace tarnvik
