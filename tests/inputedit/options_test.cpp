#include "inputedit/options.h"

#include "inputedit/grids.h"
#include "inputedit/period_case.h"

namespace tarnvik {
namespace {

constexpr const char* kFishWarning =
    "Number of Ages to Estimate Fishery Selectivity is Invalid|Resetting Value to 3";
constexpr const char* kSurveyWarning =
    "Number of Ages to Estimate Survey Selectivity is Invalid|Resetting Value to 3";
using Texts = std::vector<std::string>;

class OptionsTest : public PeriodCase {
 protected:
  void SetUp() override {
    PeriodCase::SetUp();
    for (const int number : {104, 106, 107}) Fill(CaseGrid(number));
  }
  static void Fill(Grid& grid) {
    for (int row = 1; row < grid.Rows(); ++row) {
      for (int col = 1; col < grid.Cols(); ++col) grid.SetTextMatrix(row, col, "0.1");
    }
  }
  // One row as cells in use ("x": filled, blue on window) and out of use ("-": empty, painted over).
  static std::string InUse(const Grid& grid, int row) {
    std::string text;
    for (int col = 1; col < grid.Cols(); ++col) {
      const bool used = grid.TextMatrix(row, col) == "0.1" && grid.CellForeColor(row, col) == kBlue &&
                        grid.CellBackColor(row, col) == kWindowBackground;
      const bool unused = grid.TextMatrix(row, col).empty() && grid.CellForeColor(row, col) == kButtonFace &&
                          grid.CellBackColor(row, col) == kButtonFace;
      text += used ? 'x' : unused ? '-' : '?';
    }
    return text;
  }
  static void ChooseAnnual() {
    frmInput->opFSelModel(1).UserChoose();
    frmInput->opFishSelNonPar(1).UserChoose();
  }
};

TEST_F(OptionsTest, a_phase_shows_while_its_box_is_checked) {
  struct Row {
    CheckBox& check;
    Label& label;
    TextBox& phase;
  };
  InputForm& f = *frmInput;
  f.opFishSelParametric(1).UserChoose();
  f.opSurvSelParametric(1).UserChoose();
  const Row parametric[] = {
      {f.chkEstimateLogRec, f.lblPhaseLogRec, f.txtPhaseLogRec},
      {f.chkEstimateRecDev, f.lblPhaseRecDev, f.txtPhaseRecDev},
      {f.chkEstimateFMort, f.lblPhaseFMort, f.txtPhaseFMort},
      {f.chkEstimateFMortDev, f.lblPhaseFMortDev, f.txtPhaseFMortDev},
      {f.chkEstimateFishGamma, f.lblPhaseFishGamma, f.txtPhaseFishGamma},
      {f.chkEstimateFishBeta, f.lblPhaseFishBeta, f.txtPhaseFishBeta},
      {f.chkEstimateFishA50, f.lblPhaseFishA50, f.txtPhaseFishA50},
      {f.chkSurvSelParEst(0), f.lblSurvSelParEst(0), f.txtSurvSelParEst(0)},
      {f.chkSurvSelParEst(2), f.lblSurvSelParEst(2), f.txtSurvSelParEst(2)},
      {f.chkEstimate(1), f.lblEstimate(0), f.txtEstimate(0)},
      {f.chkEstimate(1), f.lblEstimate(1), f.txtEstimate(1)},
      {f.chkEstimate(2), f.lblEstimate(2), f.txtEstimate(2)},
      {f.chkEstimate(5), f.lblEstimate(5), f.txtEstimate(5)},
      {f.chkEstimate(6), f.lblEstimate(12), f.txtEstimate(12)},
      {f.chkEstimate(6), f.lblEstimate(15), f.txtEstimate(15)},
      {f.chkEstimate(11), f.lblEstimate(11), f.txtEstimate(11)},
      {f.chkShrink, f.lblShrink, f.txtShrink},
      {f.chkShrink, f.lblShrinkFactor, f.txtShrinkFactor},
  };
  const Row nonparametric[] = {
      {f.chkFishSelNonParEst, f.lblPhaseFSelNonPar, f.txtPhaseFSelNonPar},
      {f.chkSurvSelNonParEst, f.lblSurvSelNonParEst, f.txtSurvSelNonParEst},
  };
  const auto expect_rule = [](const Row& row) {
    for (const int value : {1, 0}) {
      row.check.UserCheck(value);
      EXPECT_EQ(row.label.Enabled(), value == 1) << row.check.FullName();
      EXPECT_EQ(row.phase.Visible(), value == 1) << row.check.FullName();
    }
  };
  for (const Row& row : parametric) expect_rule(row);
  f.opFSelModel(1).UserChoose();
  f.opSurvSelModel(1).UserChoose();
  for (const Row& row : nonparametric) expect_rule(row);
  f.chkEstimate(1).UserCheck(1);
  EXPECT_TRUE(f.cmbMType.Visible());
}

TEST_F(OptionsTest, a_phase_of_the_other_model_stays_hidden) {
  InputForm& f = *frmInput;
  f.chkFishSelNonParEst.SetValue(1);  // as a file may
  f.chkSurvSelNonParEst.SetValue(1);
  f.chkSurvSelParEst(0).SetValue(1);  // flat-topped
  EXPECT_FALSE(f.txtPhaseFSelNonPar.Visible());
  EXPECT_FALSE(f.txtSurvSelNonParEst.Visible());
  EXPECT_FALSE(f.txtSurvSelParEst(0).Visible());
}

TEST_F(OptionsTest, initial_equilibrium_reaches_the_recruitment_deviations_back) {
  frmInput->cmbRecYr.UserSelect(2);  // 1992
  CaseGrid(100).SetTextMatrix(3, 1, "0.94");
  frmInput->chkEstimate(5).UserCheck(1);
  EXPECT_EQ(ColumnText(CaseGrid(100), 0), "1988|1989|1990|1991|1992|1993|1994");
  EXPECT_EQ(CaseGrid(100).TextMatrix(7, 1), "0.94");
  EXPECT_EQ(RecYr, 1988);
}

TEST_F(OptionsTest, the_nonparametric_model_unchecks_the_parameters_and_they_stay_unchecked) {
  InputForm& f = *frmInput;
  f.opFishSelParametric(1).UserChoose();
  for (CheckBox* check : {&f.chkEstimateFishGamma, &f.chkEstimateFishBeta, &f.chkEstimateFishA50})
    check->UserCheck(1);
  f.chkSurvSelParEst(1).UserCheck(1);
  f.opFSelModel(1).UserChoose();
  f.opSurvSelModel(1).UserChoose();
  EXPECT_FALSE(f.txtPhaseFishBeta.Visible());
  EXPECT_FALSE(f.txtSurvSelParEst(1).Visible());
  EXPECT_FALSE(f.chkEstimateFishA50.Enabled());
  EXPECT_FALSE(f.opFishSelParametric(1).Enabled());
  EXPECT_TRUE(f.opFishSelNonPar(1).Enabled());
  f.chkFishSelNonParEst.UserCheck(1);
  f.opFSelModel(0).UserChoose();
  f.opSurvSelModel(0).UserChoose();
  EXPECT_EQ(f.chkEstimateFishBeta.Value(), 0);
  EXPECT_TRUE(f.chkEstimateFishGamma.Enabled());
  EXPECT_FALSE(f.chkSurvSelParEst(0).Enabled()) << "the surveys are flat-topped";
  EXPECT_EQ(f.chkFishSelNonParEst.Value(), 0);
  EXPECT_FALSE(f.txtPhaseFSelNonPar.Visible());
  EXPECT_FALSE(f.chkSurvSelNonParEst.Enabled());
}

TEST_F(OptionsTest, a_flat_topped_curve_hides_log_gamma_and_keeps_its_cells) {
  struct Row {
    ControlArray<OptionButton>& curve;
    CheckBox& gamma;
    TextBox& phase;
    Grid& grid;
  };
  const Row rows[] = {{frmInput->opFishSelParametric, frmInput->chkEstimateFishGamma,
                       frmInput->txtPhaseFishGamma, CaseGrid(102)},
                      {frmInput->opSurvSelParametric, frmInput->chkSurvSelParEst(0),
                       frmInput->txtSurvSelParEst(0), CaseGrid(105)}};
  for (const Row& row : rows) {
    row.curve(1).UserChoose();
    EXPECT_EQ(row.grid.RowHeight(1), 300);
    row.gamma.UserCheck(1);
    row.grid.SetTextMatrix(1, 2, "-3");
    row.curve(0).UserChoose();
    EXPECT_EQ(row.grid.RowHeight(1), 0);
    EXPECT_EQ(row.grid.TextMatrix(1, 2), "-3");
    EXPECT_EQ(row.gamma.Value(), 0);
    EXPECT_FALSE(row.gamma.Enabled());
    EXPECT_FALSE(row.phase.Visible());
  }
}

TEST_F(OptionsTest, frames_of_the_parameters_follow_the_models) {
  const auto shown = [] {
    std::string names;
    for (const Frame* frame : {&frmPin->frmParFishSel, &frmPin->frmNonParFishSel1, &frmPin->frmNonParFishSel2,
                               &frmPin->frmParSurvSel, &frmPin->frmNonParSurvSel}) {
      if (frame->Visible()) names += frame->Name() + " ";
    }
    return names;
  };
  EXPECT_EQ(shown(), "frmParFishSel frmParSurvSel ");
  frmInput->opFSelModel(1).UserChoose();
  EXPECT_EQ(shown(), "frmNonParFishSel1 frmParSurvSel ");
  frmInput->opFishSelNonPar(1).UserChoose();
  frmInput->opSurvSelModel(1).UserChoose();
  EXPECT_EQ(shown(), "frmNonParFishSel2 frmNonParSurvSel ");
  UnloadForm(frmPin);
  EXPECT_EQ(shown(), "frmNonParFishSel2 frmNonParSurvSel ") << "a new record asks the options";
}

TEST_F(OptionsTest, the_annual_option_has_one_count_in_place_of_one_per_period) {
  Grid& counts = CaseGrid(11);
  TextBox& one = frmInput->txtFishSelAge;
  Type(counts, 1, 1, "2");
  ChooseAnnual();
  EXPECT_TRUE(one.Reachable());
  EXPECT_FALSE(counts.Visible());
  EXPECT_EQ(one.Text(), "2");
  EXPECT_EQ(InUse(CaseGrid(107), 5), "xx-");

  one.SetText("1");
  counts.SetTextMatrix(2, 1, "");
  host.messages.clear();
  frmInput->opFSelModel(0).UserChoose();
  EXPECT_FALSE(one.Reachable());
  EXPECT_TRUE(counts.Visible());
  EXPECT_EQ(counts.TextMatrix(1, 1) + "|" + counts.TextMatrix(2, 1), "1|3");
  EXPECT_EQ(InUse(CaseGrid(107), 5), "x--");
  EXPECT_EQ(host.TakeTexts(), Texts());
}

TEST_F(OptionsTest, counts_decide_which_cells_are_in_use) {
  Type(CaseGrid(11), 1, 1, "1");
  Type(CaseGrid(11), 2, 1, "2");
  CaseGrid(12).SetTextMatrix(1, 1, "3");
  CaseGrid(12).SetTextMatrix(2, 1, "1");
  host.messages.clear();
  ActivateForm(frmPin);
  EXPECT_EQ(host.TakeTexts(), Texts());
  EXPECT_EQ(InUse(CaseGrid(104), 1), "x--");
  EXPECT_EQ(InUse(CaseGrid(104), 2), "xx-");
  EXPECT_EQ(InUse(CaseGrid(106), 1), "xxx");
  EXPECT_EQ(InUse(CaseGrid(106), 2), "x--");

  Type(CaseGrid(11), 1, 1, "3");  // the lost values do not come back
  EXPECT_EQ(CaseGrid(104).CellForeColor(1, 3), kBlue);
  EXPECT_EQ(RowText(CaseGrid(104), 1), "Select. Period 1: 1990 - |0.1||");
}

TEST_F(OptionsTest, invalid_counts_are_reset_with_one_warning) {
  for (const char* bad : {"0", "4", "", "abc", "-1", "1e999"}) {
    for (int row = 1; row <= 2; ++row) {
      CaseGrid(11).SetTextMatrix(row, 1, bad);
      CaseGrid(12).SetTextMatrix(row, 1, bad);
    }
    ActivateForm(frmPin);
    EXPECT_EQ(host.TakeTexts(), (Texts{kFishWarning, kSurveyWarning})) << bad;
    for (const int grid : {11, 12}) {
      EXPECT_EQ(CaseGrid(grid).TextMatrix(1, 1) + CaseGrid(grid).TextMatrix(2, 1), "33") << bad;
    }
  }
  ChooseAnnual();
  host.messages.clear();
  frmInput->txtFishSelAge.SetText("9");
  CaseGrid(11).SetTextMatrix(2, 1, "7");
  frmInput->txtFishSelAge.OnLostFocus(0);
  EXPECT_EQ(host.TakeTexts(), Texts{kFishWarning});
  EXPECT_EQ(frmInput->txtFishSelAge.Text(), "3");
  EXPECT_EQ(CaseGrid(11).TextMatrix(2, 1), "3");
}

TEST_F(OptionsTest, paints_of_a_record_without_shapes_touch_no_missing_cell) {
  UnloadForm(frmPin);
  ActivateForm(frmPin);
  ChooseAnnual();
  EXPECT_EQ(CaseGrid(107).CellForeColor(1, 1), kBlue);
  EXPECT_EQ(CaseGrid(107).Cols(), 2);
}

TEST_F(OptionsTest, other_boxes_and_lists_show_what_they_govern) {
  InputForm& f = *frmInput;
  f.opBoot(1).UserChoose();
  EXPECT_TRUE(f.txtNBoot.Visible() && f.txtBootSeed.Visible() && f.lblNBoot.Enabled() &&
              f.lblBootSeed.Enabled());
  f.opBoot(0).UserChoose();
  EXPECT_FALSE(f.txtNBoot.Visible() || f.txtBootSeed.Visible() || f.lblNBoot.Enabled() ||
               f.lblBootSeed.Enabled());
  f.listSurvSample.UserMark(1, true);
  EXPECT_TRUE(f.txtEstSurvSample.Visible() && f.lblEstSurvSample.Enabled());
  f.listSurvSample.UserMark(1, false);
  EXPECT_FALSE(f.txtEstSurvSample.Visible() || f.lblEstSurvSample.Enabled());
  f.chkFitFishCPUE.UserCheck(1);
  EXPECT_EQ(CaseGrid(5).ColWidth(2), 1300);
  f.chkFitFishCPUE.UserCheck(0);
  EXPECT_EQ(CaseGrid(5).ColWidth(2), 0);
}

TEST_F(OptionsTest, the_fit_of_a_survey_index_belongs_to_the_survey) {
  frmInput->cmbiSurv.UserSelect(1);
  frmInput->chkSurvFit.UserCheck(1);
  EXPECT_EQ(CaseGrid(16).ColWidth(2), 850);
  frmInput->cmbiSurv.UserSelect(0);
  EXPECT_EQ(frmInput->chkSurvFit.Value(), 0);
  EXPECT_EQ(CaseGrid(16).ColWidth(2), 0);
  EXPECT_FALSE(SurvParametric(1));
  EXPECT_TRUE(SurvParametric(2));
  frmInput->cmbiSurv.UserSelect(1);
  EXPECT_EQ(CaseGrid(16).ColWidth(2), 850);
}

}  // namespace
}  // namespace tarnvik
