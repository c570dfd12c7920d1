#include "plots/plot_collection.h"

#include "plots/frmplotcollect.h"
#include "results/results_test.h"

namespace tarnvik {
namespace {

class PlotCollection : public ResultsTest {
 protected:
  // "0 2 25": the boxes that are ticked.
  static std::string Ticked() {
    std::string list;
    frmPlotCollect->chkPlots.ForEach([&](const CheckBox& box) {
      if (box.IsChecked()) list += (list.empty() ? "" : " ") + std::to_string(box.Index());
    });
    return list;
  }
  static const std::string& Caption(int box) { return frmPlotCollect->chkPlots(box).Caption(); }
  static void SetTabs(bool cpue, bool f_ratios, bool biomass_ratios) {
    frmOutput->SSTab1.SetTabEnabled(2, cpue);
    frmOutput->SSTab1.SetTabEnabled(13, f_ratios);
    frmOutput->SSTab1.SetTabEnabled(14, biomass_ratios);
  }
};

TEST_F(PlotCollection, boxes_tell_how_many_plots_they_stand_for) {
  Scan();
  NAges = 4;
  NIndex = 6;
  NSelPer = 5;
  FishAgeNYears = 1;
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 2, "0");
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 3, "N/A");
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 4, "-1");
  const struct {
    int box;
    const char* caption;
  } rows[] = {
      {0, "Plots of Numbers at Age  (3 Plots)"},
      {1, "Time Series Plots of Age Specific Fishing Mortality  (4 Plots)"},
      {2, "Time Series Plots of Biomass Index for Surveys  (24 Plots)"},
      {4, "Residuals  (1 Plots)"},
      {6, "Observed/Predicted  (18 Plots)"},
      {8, "Standardized Residuals  (2 Plots)"},
      {13, "Time Series Plots of Total Catch Biomass  (3 Plots)"},
      {16, "Plots of Fishery Selectivity by Period  (5 Plots)"},
      {17, "Plot of Survey Sample Size  (6 Plots)"},
      {23, "Plot of Survey Sample Size"},
      {28, "Plots of Fishery Selectivity by Year  (3 Plots)"},
  };
  for (const auto& row : rows) EXPECT_EQ(Caption(row.box), row.caption);
  frmPlotCollect_Form_Load();
  EXPECT_EQ(Caption(17), "Plot of Survey Sample Size  (6 Plots)");
}

TEST_F(PlotCollection, buttons_tick_what_the_results_have) {
  Scan();
  const std::string to_23 = "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23";
  const std::string defaults = "2 4 5 7 8 13 15 16 17 19 25";
  const struct {
    bool cpue, f_ratios, biomass_ratios;
    std::string at_load, all, by_default;
  } rows[] = {
      {true, true, true, "26 27", to_23 + " 24 25 26 27 28", defaults + " 26 27 28"},
      {false, true, false, "26", to_23 + " 26 28", defaults + " 26 28"},
      {true, false, true, "27", to_23 + " 24 25 27 28", defaults + " 27 28"},
  };
  for (const auto& row : rows) {
    UnloadForm(frmPlotCollect);
    SetTabs(row.cpue, row.f_ratios, row.biomass_ratios);
    EXPECT_EQ(Ticked(), row.at_load);
    EXPECT_EQ(frmPlotCollect->chkPlots(24).Enabled(), row.cpue);
    EXPECT_EQ(frmPlotCollect->chkPlots(26).Enabled(), row.f_ratios);
    EXPECT_EQ(frmPlotCollect->chkPlots(27).Enabled(), row.biomass_ratios);
    frmPlotCollect->chkPlots(28).UserCheck(1);
    frmPlotCollect->cmdAll.UserClick();
    EXPECT_EQ(Ticked(), row.all);
    frmPlotCollect->cmdDefault.UserClick();
    EXPECT_EQ(Ticked(), row.by_default);
    frmPlotCollect->cmdNone.UserClick();
    EXPECT_EQ(Ticked(), "28");
  }
}

TEST_F(PlotCollection, wants_results_and_a_choice_among_the_first_boxes) {
  Scan();
  frmPlotCollect->cmdNone.UserClick();
  frmPlotCollect->chkPlots(28).UserCheck(1);
  frmPlotCollect->cmdGenerate.UserClick();
  frmPlotCollect->chkPlots(9).UserCheck(1);
  StdFileRead = ParFileRead = kFalse;
  frmPlotCollect->cmdGenerate.UserClick();
  EXPECT_EQ(host.TakeTexts(), (Texts{"No Plots Selected", "Please Scan In Model Results Before Proceding"}));
  EXPECT_TRUE(host.pictures.empty());
  frmPlotCollect->cmdCancel.UserClick();
  EXPECT_FALSE(frmPlotCollect.Loaded());
}

}  // namespace
}  // namespace tarnvik
