#include "inputedit/validation.h"

#include "core/frmmain.h"
#include "example_case.h"
#include "inputedit/gridtools.h"

namespace tarnvik {
namespace {

class Validation : public ExampleCase {
 protected:
  // What the user meets: the one message, "" when all is well. A fault has the warning sign and shows
  // frmInput.
  std::string Fault() {
    BringFormToFront(frmMain);
    frmInput->SSTab1.SetTab(kTabGeneral);
    ValidateInputData();
    EXPECT_EQ(InputValid, Flag(host.messages.empty()));
    if (host.messages.empty()) return "";
    EXPECT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(host.messages[0].icon, Icon::Exclamation);
    EXPECT_EQ(FrontForm(), &frmInput);
    return host.TakeTexts()[0];
  }
  TextBox& Field(const char* name, int index) { return dynamic_cast<TextBox&>(*frmInput->Find(name, index)); }
  // Every option under which a field counts, on or off.
  void UseAllFields(bool used) {
    InputForm& form = *frmInput;
    form.opBoot(used ? 1 : 0).SetValue(true);
    form.chkEstimate.ForEach([&](CheckBox& box) { box.SetValue(used); });
    for (CheckBox* box : {&form.chkEstimateLogRec, &form.chkEstimateRecDev, &form.chkEstimateFMort,
                          &form.chkEstimateFMortDev}) {
      box->SetValue(used);
    }
    form.listSurvSample.SetSelected(1, used);
    for (TextBox* box : {&form.txtPhaseFishGamma, &form.txtPhaseFishBeta, &form.txtPhaseFishA50,
                         &form.txtPhaseFSelNonPar, &form.txtSurvSelNonParEst, &form.txtFishSelAge}) {
      box->SetVisible(used);
    }
    form.txtSurvSelParEst.ForEach([&](TextBox& box) { box.SetVisible(used); });
    for (int row = 1; row < InputGrid(0).Rows(); ++row) InputGrid(0).SetTextMatrix(row, 1, "1");
  }
  // As a user types it.
  void Type(int grid, int row, int col, const char* text) {
    frmInput_ORVFlexGrid_event9(grid);
    InputGrid(grid).SetTextMatrix(row, col, text);
    frmInput_ORVFlexGrid_event1(grid);
  }
};

TEST_F(Validation, example_is_valid_and_stays_as_it_is) {
  frmInput->cmbiSurv.UserSelect(1);
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(frmInput->cmbiSurv.ListIndex(), 1);
  EXPECT_EQ(InputGrid(15).TextMatrix(1, 0), "1992");
  EXPECT_EQ(frmInput->SSTab1.Tab(), kTabGeneral);
}

// clang-format off
TEST_F(Validation, bad_cell_is_named) {
  const struct { int grid, row, col; const char* text; int tab; const char* message; } rows[] = {
      {1, 3, 1, " ", 1, "Fishery Age Data Incomplete|Missing Choice for Fitting Fishery Age Compostition Data at Year 1965"},
      {1, 3, 1, "1", 1, "Invalid Value for Fitting Fishery Age Compostition Data at Year 1965|"
                        "Please Enter Either 'y' for Yes or 'n' for No"},
      {1, 52, 2, "-1", 1, "Invalid Value for Fishery Age Data Sample Size for Year 2014"},
      {1, 2, 8, "", 1, "Maturity at Age Data Incomplete|Missing Value for Age 6 at Year 1964"},
      {8, 4, 1, "2015", 3, "Invalid Value for Fishery Selectivity Period 4"},
      {8, 3, 1, "1971", 3, "Value for Fishery Selectivity Period 3 Not in Chronological Order"},
      {8, 1, 1, "1964", 3, "Invalid Value in Fishery Selectivity Period Data:|The Start Year for the First Selectivity "
                           "Period Must Be|the Same as the First Year in the Data Set (1963)"},
      {11, 4, 1, "7", 3, "Invalid Value for Age to Estimate Fishery Selectivity|for Selectivity Period 4"},
      {12, 2, 1, "0", 6, "Invalid Value for Number of Age Groups to Estimate Survey Selectivity"},
      {10, 6, 2, "1", 7, "Invalid Value for Including Age 6 in Survey 2|Please Enter Either 'y' for Yes or 'n' for No"},
      {3, 1, 1, "1.01", 7, "Invalid Value for Survey 2: IBTS_Q3_gam for Fraction of Z"},
      {9, 2, 1, "", 7, "Missing Value for Age Composition Likelihood for Survey 2: IBTS_Q3_gam"},
      {0, 1, 1, "-1", 8, "Invalid Value for Catch Biomass for year 1963"},
      {6, 1, 6, "", 8, "Catch Weight at Age Data Incomplete|Missing Value for Age 6 at Year 1963"},
      {14, 2, 2, "", 10, "Spawning Weight at Age Data Incomplete|Missing Value for Age 2 at Year 1964"},
      {7, 52, 6, "-1", 11, "Invalid Value for Maturity at Age 6 at Year 2014"},
  };
  // clang-format on
  for (const auto& row : rows) {
    Grid& grid = InputGrid(row.grid);
    const std::string good = grid.TextMatrix(row.row, row.col);
    grid.SetTextMatrix(row.row, row.col, row.text);
    EXPECT_EQ(Fault(), row.message);
    EXPECT_EQ(frmInput->SSTab1.Tab(), row.tab) << row.message;
    grid.SetTextMatrix(row.row, row.col, good);
  }
  EXPECT_EQ(Fault(), "");
}

// clang-format off
TEST_F(Validation, bad_cell_of_a_survey_is_named_and_the_survey_stays_selected) {
  const struct { int survey, grid, row, col; const char* text; const char* message; } rows[] = {
      {2, 16, 1, 1, "", "Survey Biomass Index Data Incomplete for Survey 2|Missing Value Year 1992"},
      {1, 16, 1, 2, "x", "Invalid Value for Choice to Fit Survey 1 Index Values in Year 1983"},
      {2, 15, 2, 1, "-50", "Invalid Value for Survey 2 Sample Size|at Year 1993"},
      {1, 15, 32, 2, "0", "Invalid Value for Survey 1 Choice to Fit Age Composition Values in Year 2014"},
      {2, 15, 1, 8, "", "Survey 2 Data Incomplete|Missing Value for Age 6 at Year 1992"},
  };
  // clang-format on
  for (const auto& row : rows) {
    frmInput->cmbiSurv.UserSelect(row.survey - 1);
    const std::string good = InputGrid(row.grid).TextMatrix(row.row, row.col);
    Type(row.grid, row.row, row.col, row.text);
    frmInput->cmbiSurv.UserSelect(2 - row.survey);
    EXPECT_EQ(Fault(), row.message);
    EXPECT_EQ(frmInput->SSTab1.Tab(), kTabSurveyData) << row.message;
    EXPECT_EQ(frmInput->cmbiSurv.ListIndex(), row.survey - 1) << row.message;
    Type(row.grid, row.row, row.col, good.c_str());
  }
  frmInput->chkSurvFit.UserCheck(0);  // the index of survey 2 is not fitted: its flags are not needed
  Type(16, 1, 2, "");
  EXPECT_EQ(Fault(), "");
}

// clang-format off
TEST_F(Validation, bad_field_is_named_while_it_is_in_use) {
  const struct { const char* field; int index; const char* text; int tab; const char* message; } rows[] = {
      {"txtNBoot", -1, " ", 0, "Missing Value for the Number of Bootstrap Repetitions"},
      {"txtNBoot", -1, "10x", 0, "Invalid Value for the Number of Bootstrap Repetitions"},
      {"txtBootSeed", -1, "-1", 0, "Invalid Value for Bootstrap Random Number Seed"},
      {"txtPhaseFishGamma", -1, "", 3, "Invalid Value for Phase to Estimate Fishery log gamma"},
      {"txtPhaseFSelNonPar", -1, "", 3, "Invalid Value for Phase to Estimate Nonparametric Fishery Selectivity"},
      {"txtFishSelAge", -1, "abc", 3, "Invalid Value for Age to Estimate Fishery Selectivity"},
      {"txtEstimate", 10, "", 4, "Invalid Value for Phase to begin Estimating CPUE q"},
      {"txtSurvSelParEst", 0, "", 6, "Invalid Value for Phase to Estimate Survey log gamma"},
      {"txtSurvSelParEst", 1, "-1", 6, "Invalid Value for Phase to Estimate Survey log beta"},
      {"txtSurvSelParEst", 2, "", 6, "Invalid Value for Phase to Estimate Survey log a50"},
      {"txtSurvSelNonParEst", -1, "-3", 6, "Invalid Value for Phase to Estimate Nonparametric Survey Selectivity"},
      {"txtEstimate", 2, "", 7, "Invalid Value for Phase to begin Estimating Survey q"},
      {"txtEstSurvSample", -1, "", 7, "Invalid Value for Phase to begin Estimating Effective Sample Size for Surveys"},
      {"txtEstimate", 0, "", 12, "Invalid Value for CV for M"},
      {"txtPhaseLogRec", -1, "-1", 12, "Invalid Value for Phase to Estimate Mean Logscale Recruitment"},
      {"txtPhaseFMortDev", -1, "", 12, "Invalid Value for Phase to Estimate Fishing Mortality Deviations"},
      {"txtEstimate", 5, "", 12, "Missing Value for Initial Equilibrium for Catch Biomass"},
      {"txtEstimate", 13, "", 12, "Missing Value for Limit F"},
      {"txtEstimate", 15, "-1", 12, "Invalid Value for Limit Spawning Biomass"},
  };
  // clang-format on
  for (const auto& row : rows) Field(row.field, row.index).SetText(row.text);
  UseAllFields(false);
  EXPECT_EQ(Fault(), "");
  for (const auto& row : rows) Field(row.field, row.index).SetText("2");
  frmInput->txtEstimate.ForEach([](TextBox& box) { box.SetText("2"); });
  UseAllFields(true);
  EXPECT_EQ(Fault(), "");
  for (const auto& row : rows) {
    Field(row.field, row.index).SetText(row.text);
    EXPECT_EQ(Fault(), row.message);
    EXPECT_EQ(frmInput->SSTab1.Tab(), row.tab) << row.message;
    Field(row.field, row.index).SetText("2");
  }
}

// clang-format off
TEST_F(Validation, bad_field_is_named) {
  const struct { const char* field; int index; const char* text; int tab; const char* message; } rows[] = {
      {"txtZCpue", -1, "", 2, "Missing Value for Fraction of Z Prior to CPUE Index"},
      {"txtZCpue", -1, "1.1", 2, "Invalid Value for Fraction of Z Prior to CPUE Index"},
      {"txtLikelihood", 4, "-1", 4, "Invalid Value for Fishery Selectivity Likelihood Emphasis Factor"},
      {"txtFractionZ", -1, "", 10, "Invalid Value for Fraction of Z Prior to Spawning Season"},
      {"txtFractionZ", -1, "1.5", 10, "Invalid Value for Fraction of Z Prior to Spawning Season"},
      {"txtEpsilon", -1, "", 12, "Invalid Value for Small Positive Number to Prevent log(0)"},
      {"txtVarCoeff", 2, "", 12, "Missing Value for the Coefficient of Variation for the Catch Biomass Deviations"},
      {"txtVarCoeff", 3, "-1.1", 12, "Invalid Value for the Coefficient of Variation for the Fishing Mortality Deviations"},
      {"txtLikelihood", 5, "", 12, "Missing Value for F Penalty Likelihood Emphasis Factor"},
  };
  // clang-format on
  for (const auto& row : rows) {
    TextBox& field = Field(row.field, row.index);
    const std::string good = field.Text();
    field.SetText(row.text);
    EXPECT_EQ(Fault(), row.message);
    EXPECT_EQ(frmInput->SSTab1.Tab(), row.tab) << row.message;
    field.SetText(good);
  }
  for (OptionButton* model : {&frmInput->opFSelModel(0), &frmInput->opFSelModel(1)}) model->SetValue(false);
  EXPECT_EQ(Fault(), "Please Specify a Fishery Selectivity Model");
}

TEST_F(Validation, cpue_flag_is_the_letter_alone_and_read_only_when_fitted) {
  const std::string invalid =
      "Invalid Value for Fitting Fishery CPUE Data at Year 1964|"
      "Please Enter Either 'y' for Yes or 'n' for No";
  for (const auto& [text, message] : {std::pair{" Y ", std::string()}, {"yes", invalid}}) {
    InputGrid(5).SetTextMatrix(2, 2, text);
    for (const int fitted : {0, 1}) {
      frmInput->chkFitFishCPUE.UserCheck(fitted);
      EXPECT_EQ(Fault(), fitted ? message : "");
    }
  }
}

TEST_F(Validation, values_at_the_edge_pass) {
  InputForm& form = *frmInput;
  form.opBoot(1).SetValue(true);
  form.txtNBoot.SetText("0");
  form.txtBootSeed.SetText(" 1.5e3 ");
  form.txtZCpue.SetText("1");
  form.txtFractionZ.SetText("0");
  form.txtVarCoeff(1).SetText("-1");
  form.txtEpsilon.SetText("small");
  InputGrid(1).SetTextMatrix(1, 1, " Yes");
  InputGrid(1).SetTextMatrix(1, 2, "abc");
  InputGrid(1).SetTextMatrix(1, 3, "-9");
  InputGrid(3).SetTextMatrix(1, 0, "");
  InputGrid(7).SetTextMatrix(1, 1, "2");
  InputGrid(8).SetTextMatrix(3, 1, InputGrid(8).TextMatrix(2, 1));
  EXPECT_EQ(Fault(), "");
}

TEST_F(Validation, earlier_columns_and_tabs_come_first) {
  InputGrid(7).SetTextMatrix(1, 1, "");
  InputGrid(6).SetTextMatrix(1, 2, "");
  InputGrid(6).SetTextMatrix(52, 1, "-1");
  EXPECT_EQ(Fault(), "Invalid Value for Catch Weight at Age 1 at Year 2014");
  InputGrid(1).SetTextMatrix(1, 2, "-1");
  InputGrid(1).SetTextMatrix(52, 1, "");
  EXPECT_EQ(
      Fault(),
      "Fishery Age Data Incomplete|Missing Choice for Fitting Fishery Age Compostition Data at Year 2014");
}

TEST_F(Validation, equilibrium_catch_below_all_catches_is_doubted_only) {
  InputGrid(0).SetTextMatrix(20, 1, "500");
  frmInput->txtEstimate(5).SetText("500");
  EXPECT_EQ(Fault(), "");
  frmInput->txtEstimate(5).SetText("499.9");
  ValidateInputData();
  EXPECT_EQ(InputValid, kTrue);
  EXPECT_EQ(host.TakeTexts(),
            std::vector<std::string>{
                "Warning: The Value for Initial Equilibrium for Catch Biomass May be Too Small||"
                "Please Check"});
}

TEST_F(Validation, edited_grid_is_condensed_first) {
  for (int col = 1; col < InputGrid(1).Cols(); ++col) InputGrid(1).SetTextMatrix(1, col, "");
  EXPECT_NE(Fault(), "");  // as it was read, the grid is not condensed
  frmInput_ORVFlexGrid_event9(1);
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(InputGrid(1).TextMatrix(1, 0), "1964");
  EXPECT_EQ(FishAgeNYears, 51);
}

}  // namespace
}  // namespace tarnvik
