// The data of frmInput, tab by tab.
#include <algorithm>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/checks.h"
#include "inputedit/frminput.h"
#include "inputedit/gridtools.h"
#include "inputedit/validation.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

// A field whose two messages differ in one word.
bool CheckNamed(int tab, const TextBox& field, TextTest invalid, const std::string& name) {
  if (Blank(field.Text())) return InputFault(tab, "Missing Value for " + name);
  if (invalid(field.Text())) return InputFault(tab, "Invalid Value for " + name);
  return true;
}

bool CheckEmphasis(int tab, std::initializer_list<int> factors) {
  for (const int i : factors) {
    const std::string name = frmInput->lblLikelihood(i).Caption() + " Likelihood Emphasis Factor";
    if (!CheckNamed(tab, frmInput->txtLikelihood(i), Negative, name)) return false;
  }
  return true;
}

// --- General

bool CheckGeneral() {
  const InputForm& form = *frmInput;
  const bool boot = form.opBoot(kBootstrap).Value();
  const FieldCheck checks[] = {
      {boot, form.txtNBoot, Blank, "Missing Value for the Number of Bootstrap Repetitions"},
      {boot, form.txtNBoot, NegativeOrNoNumber, "Invalid Value for the Number of Bootstrap Repetitions"},
      {boot, form.txtBootSeed, Blank, "Missing Value for Bootstrap Random Number Seed"},
      {boot, form.txtBootSeed, NegativeOrNoNumber, "Invalid Value for Bootstrap Random Number Seed"},
  };
  return CheckFields(kTabGeneral, checks);
}

// --- Fishery

// The words over the age cells are those of the Maturity tab, as users have always met them.
const GridCheck kFisheryAge[] = {
    {Column(kGridFisheryAge, 1),
     {Blank,
      "Fishery Age Data Incomplete\r\nMissing Choice for Fitting Fishery Age Compostition Data at Year %y"},
     {NotYesOrNo,
      "Invalid Value for Fitting Fishery Age Compostition Data at Year %y\r\n"
      "Please Enter Either 'y' for Yes or 'n' for No"}},
    {Column(kGridFisheryAge, 2),
     {Blank, "Fishery Age Composition Data Incomplete\r\nMissing Sample Size at Year %y"},
     {Negative, "Invalid Value for Fishery Age Data Sample Size for Year %y"}},
    {AgeColumns(kGridFisheryAge, 3),
     {Blank, "Maturity at Age Data Incomplete\r\nMissing Value for Age %n at Year %y"}},
};

bool CheckFisheryAge() { return CheckGrids(kTabFisheryAge, kFisheryAge); }

const GridCheck kCpue = {
    Column(kGridCpue, 1),
    {Blank, "Fishery CPUE Data Incomplete\r\nMissing Value for Observed Fishery CPUE at Year %y"}};
// The letter alone: the data file takes "yes" for a no here.
const GridCheck kCpueFit = {
    Column(kGridCpue, 2),
    {Blank, "Fishery CPUE Data Incomplete\r\nMissing Choice for Fitting Fishery CPUE Data at Year %y"},
    {NotJustYOrN,
     "Invalid Value for Fitting Fishery CPUE Data at Year %y\r\n"
     "Please Enter Either 'y' for Yes or 'n' for No"}};

bool CheckCpue() {
  const InputForm& form = *frmInput;
  const FieldCheck fraction[] = {
      {true, form.txtZCpue, Blank, "Missing Value for Fraction of Z Prior to CPUE Index"},
      {true, form.txtZCpue, NotAFraction, "Invalid Value for Fraction of Z Prior to CPUE Index"},
  };
  const bool fitted = form.chkFitFishCPUE.IsChecked();
  return CheckGrid(kTabCpue, kCpue) && (!fitted || CheckGrid(kTabCpue, kCpueFit)) &&
         CheckFields(kTabCpue, fraction);
}

bool PeriodFault(const char* words, int period) {
  return InputFault(kTabFisherySelectivity,
                    FillWords(words, {{'r', NumberText(period)}, {'f', NumberText(NewNFYear)}}));
}

// The start years of the fishery selectivity periods.
bool CheckPeriods() {
  const Grid& grid = frmInput->ORVFlexGrid(kGridPeriods);
  double previous = 0;
  for (int i = 1; i <= NewNSelPer; ++i) {
    const std::string& cell = grid.TextMatrix(i, 1);
    const double start = Val(cell);
    if (Blank(cell)) {
      return PeriodFault(
          "Years for Fishery Selectivity Periods are Incomplete\r\n"
          "Missing Value for Selectivity Period %r",
          i);
    }
    if (start < NewNFYear || start > NewNXYear) {
      return PeriodFault("Invalid Value for Fishery Selectivity Period %r", i);
    }
    if (i > 1 && start < previous) {
      return PeriodFault("Value for Fishery Selectivity Period %r Not in Chronological Order", i);
    }
    if (i == 1 && start != NewNFYear) {
      return PeriodFault(
          "Invalid Value in Fishery Selectivity Period Data:\r\n"
          "The Start Year for the First Selectivity Period Must Be\r\n"
          "the Same as the First Year in the Data Set (%f)",
          i);
    }
    previous = start;
  }
  return true;
}

const GridCheck kPeriodAgeCounts = {
    Column(kGridFisherySelAges, 1),
    {Blank, "Ages to Estimate Fishery Selectivity are Incomplete\r\nMissing Value for Selectivity Period %r"},
    {NotAnAgeCount, "Invalid Value for Age to Estimate Fishery Selectivity\r\nfor Selectivity Period %r"}};

// The count of ages to estimate stands in one box for the annual option, else in a grid by period.
bool CheckFisheryAgeCounts() {
  const TextBox& count = frmInput->txtFishSelAge;
  if (!count.Visible()) return CheckGrid(kTabFisherySelectivity, kPeriodAgeCounts);
  const FieldCheck checks[] = {
      {true, count, Blank, "Missing Value for Age to Estimate Fishery Selectivity"},
      {true, count, NotAnAgeCount, "Invalid Value for Age to Estimate Fishery Selectivity"},
  };
  return CheckFields(kTabFisherySelectivity, checks);
}

// The phase of a selectivity parameter, checked while its box is in view: while it is estimated.
FieldCheck PhaseInView(const TextBox& phase, const char* words) {
  return {phase.Visible(), phase, NegativeOrBlank, words};
}

bool CheckFisherySelectivity() {
  const InputForm& form = *frmInput;
  if (!form.opFSelModel(kParametric).Value() && !form.opFSelModel(kNonparametric).Value()) {
    return InputFault(kTabFisherySelectivity, "Please Specify a Fishery Selectivity Model");
  }
  const FieldCheck phases[] = {
      PhaseInView(form.txtPhaseFishGamma, "Invalid Value for Phase to Estimate Fishery log gamma"),
      PhaseInView(form.txtPhaseFishBeta, "Invalid Value for Phase to Estimate Fishery log beta"),
      PhaseInView(form.txtPhaseFishA50, "Invalid Value for Phase to Estimate Fishery log a50"),
      PhaseInView(form.txtPhaseFSelNonPar,
                  "Invalid Value for Phase to Estimate Nonparametric Fishery Selectivity"),
  };
  return CheckFields(kTabFisherySelectivity, phases) && CheckPeriods() && CheckFisheryAgeCounts();
}

// The phase of a parameter, checked while its box is ticked.
FieldCheck PhaseIf(const CheckBox& estimate, const TextBox& phase, const char* words) {
  return {estimate.IsChecked(), phase, NegativeOrBlank, words};
}

bool CheckFisheryOptions() {
  const InputForm& form = *frmInput;
  const auto& estimate = form.chkEstimate;
  const auto& phase = form.txtEstimate;
  const FieldCheck phases[] = {
      PhaseIf(estimate(kItemCpueQ), phase(kItemCpueQ), "Invalid Value for Phase to begin Estimating CPUE q"),
      PhaseIf(estimate(kItemCpueExponent), phase(kItemCpueExponent),
              "Invalid Value for Phase to begin Estimating CPUE exponent"),
      PhaseIf(estimate(kItemFisherySample), phase(kItemFisherySample),
              "Invalid Value for Phase to Estimate Effective Sample Size for Fishery"),
  };
  return CheckFields(kTabFisheryOptions, phases) && CheckEmphasis(kTabFisheryOptions, {0, 2, 4});
}

// --- Surveys

const GridCheck kSurveyIndex = {
    Column(kGridSurveyIndex, 1),
    {Blank, "Survey Biomass Index Data Incomplete for Survey %s\r\nMissing Value Year %y"}};
const GridCheck kSurveyIndexFit = {
    Column(kGridSurveyIndex, 2),
    {Blank,
     "Survey Biomass Index Data Incomplete for Survey %s\r\nMissing Choice to Fit Index Values for Year %y"},
    {NotYesOrNo, "Invalid Value for Choice to Fit Survey %s Index Values in Year %y"}};
const GridCheck kSurveyAge[] = {
    {Column(kGridSurveyAge, 1),
     {Blank, "Survey %s Data Incomplete\r\nMissing Sample Size Value at Year %y"},
     {Negative, "Invalid Value for Survey %s Sample Size\r\nat Year %y"}},
    {Column(kGridSurveyAge, 2),
     {Blank, "Survey %s Data Incomplete\r\nMissing Choice to Fit Age Composition Values  for Year %y"},
     {NotYesOrNo, "Invalid Value for Survey %s Choice to Fit Age Composition Values in Year %y"}},
    {AgeColumns(kGridSurveyAge, 3),
     {Blank, "Survey %s Data Incomplete\r\nMissing Value for Age %n at Year %y"}},
};

bool CheckSelectedSurvey() {
  const bool fitted = frmInput->chkSurvFit.IsChecked();
  return CheckGrid(kTabSurveyData, kSurveyIndex) && (!fitted || CheckGrid(kTabSurveyData, kSurveyIndexFit)) &&
         CheckGrids(kTabSurveyData, kSurveyAge);
}

// Each survey is selected in turn, which brings it into the grids; one at fault stays selected.
bool CheckSurveyData() {
  ComboBox& surveys = frmInput->cmbiSurv;
  const int selected = surveys.ListIndex();
  for (int survey = 1; survey <= NIndex; ++survey) {
    surveys.SetListIndex(survey - 1);
    if (!CheckSelectedSurvey()) return false;
  }
  surveys.SetListIndex(selected);
  return true;
}

const GridCheck kSurveyAgeCounts = {
    Column(kGridSurveySelAges, 1),
    {Blank, "Missing Value for Number of Age Groups to Estimate Survey Selectivity"},
    {NotAnAgeCount, "Invalid Value for Number of Age Groups to Estimate Survey Selectivity"}};

bool CheckSurveySelectivity() {
  const InputForm& form = *frmInput;
  const FieldCheck phases[] = {
      PhaseInView(form.txtSurvSelParEst(kLogGamma), "Invalid Value for Phase to Estimate Survey log gamma"),
      PhaseInView(form.txtSurvSelParEst(kLogBeta), "Invalid Value for Phase to Estimate Survey log beta"),
      PhaseInView(form.txtSurvSelParEst(kLogA50), "Invalid Value for Phase to Estimate Survey log a50"),
      PhaseInView(form.txtSurvSelNonParEst,
                  "Invalid Value for Phase to Estimate Nonparametric Survey Selectivity"),
  };
  return CheckFields(kTabSurveySelectivity, phases) && CheckGrid(kTabSurveySelectivity, kSurveyAgeCounts);
}

const GridCheck kSurveyAges = {
    AllColumns(kGridIndexAges, 1),
    {Blank, "Grid of Ages to Include in Surveys is Incomplete\r\nMissing Choice for Survey %n for %y"},
    {NotYesOrNo,
     "Invalid Value for Including %y in Survey %n\r\n"
     "Please Enter Either 'y' for Yes or 'n' for No"}};

// Fractions of Z stand in row 1, one column per survey; a blank one counts as 0.
bool CheckSurveyFractions() {
  const Grid& grid = frmInput->ORVFlexGrid(kGridSurveyZ);
  for (int col = 0; col < grid.Cols(); ++col) {
    if (!NotAFraction(grid.TextMatrix(1, col))) continue;
    return InputFault(kTabSurveyOptions,
                      "Invalid Value for " + grid.TextMatrix(0, col) + " for Fraction of Z");
  }
  return true;
}

const GridCheck kSurveyEmphasis[] = {
    {Column(kGridSurveyEmphasis, 1),
     {Blank, "Missing Value for Age Composition Likelihood for %y"},
     {Negative, "Invalid Value for Age Composition Likelihood for %y"}},
    {Column(kGridSurveyEmphasis, 2),
     {Blank, "Missing Value for Biomass Index Likelihood for %y"},
     {Negative, "Invalid Value for Biomass Index Likelihood for %y"}},
};

bool CheckSurveyOptions() {
  const InputForm& form = *frmInput;
  const FieldCheck phases[] = {
      PhaseIf(form.chkEstimate(kItemSurveyQ), form.txtEstimate(kItemSurveyQ),
              "Invalid Value for Phase to begin Estimating Survey q"),
      PhaseIf(form.chkEstimate(kItemSurveyExponent), form.txtEstimate(kItemSurveyExponent),
              "Invalid Value for Phase to begin Estimating Survey Exponent"),
      {form.listSurvSample.AnySelected(), form.txtEstSurvSample, NegativeOrBlank,
       "Invalid Value for Phase to begin Estimating Effective Sample Size for Surveys"},
  };
  return CheckGrid(kTabSurveyOptions, kSurveyAges) && CheckSurveyFractions() &&
         CheckFields(kTabSurveyOptions, phases) && CheckGrids(kTabSurveyOptions, kSurveyEmphasis);
}

// --- Catch, weights, maturity

bool CatchFault(const char* words, int row) {
  return InputFault(kTabCatch, words + NumberText(NewNFYear + row - 1));
}

bool CheckCatchBiomass() {
  const Grid& grid = frmInput->ORVFlexGrid(kGridCatch);
  for (int row = 1; row < grid.Rows(); ++row) {
    const std::string& cell = grid.TextMatrix(row, 1);
    if (Blank(cell)) return CatchFault("Catch Data is Incomplete\r\nMissing Value for year ", row);
    if (Negative(cell)) return CatchFault("Invalid Value for Catch Biomass for year ", row);
  }
  return true;
}

const GridCheck kCatchWeight = {
    AgeColumns(kGridCatchWeight, 1),
    {Blank, "Catch Weight at Age Data Incomplete\r\nMissing Value for Age %n at Year %y"},
    {Negative, "Invalid Value for Catch Weight at Age %n at Year %y"}};
const GridCheck kStockWeight = {
    AgeColumns(kGridStockWeight, 1),
    {Blank, "Stock Weight at Age Data Incomplete\r\nMissing Value for Age %n at Year %y"},
    {Negative, "Invalid Value for Stock Weight at Age %n at Year %y"}};
const GridCheck kSpawnWeight = {
    AgeColumns(kGridSpawnWeight, 1),
    {Blank, "Spawning Weight at Age Data Incomplete\r\nMissing Value for Age %n at Year %y"},
    {Negative, "Invalid Value for Spawning Weight at Age %n at Year %y"}};
const GridCheck kMaturity = {
    AgeColumns(kGridMaturity, 1),
    {Blank, "Maturity at Age Data Incomplete\r\nMissing Value for Age %n at Year %y"},
    {Negative, "Invalid Value for Maturity at Age %n at Year %y"}};

bool CheckCatch() { return CheckCatchBiomass() && CheckGrid(kTabCatch, kCatchWeight); }
bool CheckStockWeight() { return CheckGrid(kTabStockWeight, kStockWeight); }
bool CheckMaturity() { return CheckGrid(kTabMaturity, kMaturity); }

bool CheckSpawnWeight() {
  const TextBox& fraction = frmInput->txtFractionZ;
  const char* words = "Invalid Value for Fraction of Z Prior to Spawning Season";
  const FieldCheck checks[] = {{true, fraction, NotAFraction, words}, {true, fraction, Blank, words}};
  return CheckGrid(kTabSpawnWeight, kSpawnWeight) && CheckFields(kTabSpawnWeight, checks);
}

// --- Fitting options

bool CheckPhases() {
  const InputForm& form = *frmInput;
  const CheckBox& estimate_m = form.chkEstimate(kItemM);
  const FieldCheck checks[] = {
      {true, form.txtEpsilon, NegativeOrBlank, "Invalid Value for Small Positive Number to Prevent log(0)"},
      PhaseIf(estimate_m, form.txtEstimate(kItemMCv), "Invalid Value for CV for M"),
      PhaseIf(estimate_m, form.txtEstimate(kItemM), "Invalid Value for Phase to Begin Estimating M"),
      PhaseIf(form.chkEstimateLogRec, form.txtPhaseLogRec,
              "Invalid Value for Phase to Estimate Mean Logscale Recruitment"),
      PhaseIf(form.chkEstimateRecDev, form.txtPhaseRecDev,
              "Invalid Value for Phase to Estimate Recruitment Deviations"),
      PhaseIf(form.chkEstimateFMort, form.txtPhaseFMort,
              "Invalid Value for Phase to Estimate Mean Logscale Fishing Mortality"),
      PhaseIf(form.chkEstimateFMortDev, form.txtPhaseFMortDev,
              "Invalid Value for Phase to Estimate Fishing Mortality Deviations"),
  };
  return CheckFields(kTabFittingOptions, checks);
}

double SmallestCatch() {
  const Grid& grid = frmInput->ORVFlexGrid(kGridCatch);
  double smallest = grid.Rows() > 1 ? Val(grid.TextMatrix(1, 1)) : 0.0;
  for (int row = 2; row < grid.Rows(); ++row) smallest = std::min(smallest, Val(grid.TextMatrix(row, 1)));
  return smallest;
}

// An equilibrium catch below all catches is doubtful, not wrong: the one warning that stops nothing.
bool CheckEquilibriumCatch() {
  const TextBox& field = frmInput->txtEstimate(kItemInitialF);
  if (!frmInput->chkEstimate(kItemInitialF).IsChecked()) return true;
  const FieldCheck checks[] = {
      {true, field, Blank, "Missing Value for Initial Equilibrium for Catch Biomass"},
      {true, field, Negative, "Invalid Value for Initial Equilibrium for Catch Biomass"},
  };
  if (!CheckFields(kTabFittingOptions, checks)) return false;
  if (Val(field.Text()) < SmallestCatch()) {
    InputFault(kTabFittingOptions,
               "Warning: The Value for Initial Equilibrium for Catch Biomass May be Too Small\r\n\r\n"
               "Please Check");
  }
  return true;
}

bool CheckDeterminationCriteria() {
  if (!frmInput->chkEstimate(kItemCriteria).IsChecked()) return true;
  const char* names[] = {"Target F", "Limit F", "Target Spawning Biomass", "Limit Spawning Biomass"};
  for (int i = 0; i < 4; ++i) {
    if (!CheckNamed(kTabFittingOptions, frmInput->txtEstimate(12 + i), Negative, names[i])) return false;
  }
  return true;
}

bool BeyondOneEitherSide(const std::string& text) {
  const double value = Val(text);
  return value > 1 || value < -1;
}

bool CheckVariationCoefficients() {
  for (int i = 1; i <= 3; ++i) {
    const std::string name = "the Coefficient of Variation for the " + frmInput->lblVarCoeff(i).Caption();
    if (!CheckNamed(kTabFittingOptions, frmInput->txtVarCoeff(i), BeyondOneEitherSide, name)) return false;
  }
  return true;
}

bool CheckFittingOptions() {
  return CheckPhases() && CheckEquilibriumCatch() && CheckDeterminationCriteria() &&
         CheckVariationCoefficients() && CheckEmphasis(kTabFittingOptions, {1, 3, 5});
}

}  // namespace

void ValidateInputData() {
  InputValid = kFalse;
  for (const int which : {kToolCpue, kToolFisheryAge}) {
    if (frmInput->cmdCondenseGrd(which).Enabled()) CondenseGrid(which);
  }
  const bool valid = CheckGeneral() && CheckFisheryAge() && CheckCpue() && CheckFisherySelectivity() &&
                     CheckFisheryOptions() && CheckSurveyData() && CheckSurveySelectivity() &&
                     CheckSurveyOptions() && CheckCatch() && CheckStockWeight() && CheckSpawnWeight() &&
                     CheckMaturity() && CheckFittingOptions();
  InputValid = Flag(valid);
}

}  // namespace tarnvik
