#include "plots/input_plots.h"

#include "core/frmmain.h"
#include "inputedit/example_case.h"
#include "inputedit/small_case.h"
#include "platform/chart.h"
#include "plots/frmplotinput.h"
#include "plots/input_draws.h"
#include "plots/input_lists.h"

namespace tarnvik {
namespace {

// "1995:0.5 1996:- ...": x and y of the points of a series, a hidden y as "-".
std::string Points(const Chart& chart) {
  std::string text;
  if (chart.AllSeries().empty()) return text;
  const ChartSeries& series = chart.AllSeries()[0];
  for (std::size_t i = 0; i < series.Y.size(); ++i) {
    text += (i > 0 ? " " : "") + NumberText(series.X.at(i)) + ":";
    text += series.Y[i] == Chart::Hidden ? "-" : NumberText(series.Y[i]);
  }
  return text;
}

std::string Span(const ChartAxis& axis) {
  return NumberText(axis.Min.value()) + ".." + NumberText(axis.Max.value());
}

// "title / y axis / x axis / gallery markers / first points".
std::string Face(const Chart& chart) {
  std::string y = Span(chart.AxisY) + " " + chart.AxisY.Title;
  if (chart.AxisY.Decimals) y += " (" + NumberText(*chart.AxisY.Decimals) + ")";
  return chart.Titles[0] + " / " + y + " / " + Span(chart.AxisX) + " " + chart.AxisX.Title + " / " +
         NumberText(chart.Gallery.value()) + " " + NumberText(chart.MarkerSetting.value()) + " / " +
         Points(chart).substr(0, 15);
}

std::string Items(const ComboBox& list) {
  std::string text = NumberText(list.ListCount()) + ":";
  for (int i = 0; i < list.ListCount(); ++i) text += " " + list.List(i) + ";";
  return text + " at " + NumberText(list.ListIndex());
}

using F = PlotInputForm;

using InputPlotsOfExample = ExampleCase;

TEST_F(InputPlotsOfExample, every_page_is_drawn_when_both_files_are_read) {
  ASSERT_EQ(PlotInputOpen, kTrue);
  // The example has one table of weights for all three uses.
  InputGrid(4).SetTextMatrix(1, 1, "0.4");
  InputGrid(14).SetTextMatrix(1, 1, "0.14");
  frmPin->frmParFishSel.SetVisible(false);
  frmPin->frmNonParFishSel1.SetVisible(true);
  RefreshInputPlots();
  const struct {
    Chart F::*chart;
    const char* face;  // behind "Input Data: "
  } rows[] = {
      {&F::Chart1,
       "Catch Biomass / 0..616814.88519 Catch Biomass (metric tons) (0) / 1963..2014 Year / 1 3 / "
       "1963:128102.135"},
      {&F::Chart2,
       "Fishery Proportion at Age for Year 1963 / 0..0.9337587  / 1..6 Age / 2 1 / 1:0.199985 2:0."},
      {&F::Chart3, "Observed Fishery CPUE / 0..1.05  / 1963..2014 Year / 1 3 / 1963:1 1964:1 1"},
      {&F::Chart4,
       "Proportion at Age for Survey 1: IBTS_Q1_gam for Year 1983 / 0..0.8354451  / 1..6 Age / 2 1 / "
       "1:0.179424 2:0."},
      {&F::Chart5,
       "Biomass Index for Survey 1: IBTS_Q1_gam / 0..23913.843702 Biomass Index (kg / tow * 1000) (0) / "
       "1983..2014 Year / 1 3 / 1983:22775.0892"},
      {&F::Chart6,
       "Catch Weight at Age for Year 1963 / 0..10.7513030415  / 1..6 Age / 1 1 / 1:0.314 2:0.809"},
      {&F::Chart7,
       "Stock Weight at Age for Year 1963 / 0..10.7513030415  / 1..6 Age / 1 1 / 1:0.4 2:0.809 3"},
      {&F::Chart11,
       "Spawning Weight at Age for Year 1963 / 0..10.7513030415  / 1..6 Age / 1 1 / 1:0.14 2:0.809 "},
      {&F::Chart8, "Maturity at Age for Year 1963 / 0..1.05  / 1..6 Age / 1 1 / 1:0.01 2:0.05 3"},
      {&F::Chart9,
       "Recruitment Deviations / 0..0.1 Log 1000's of Fish / 1958..2014 Year / 1 3 / 1958:0 1959:0 1"},
      {&F::Chart10, "Fishing Mortality Deviations / 0..0.1 Log F / 1963..2014 Year / 1 3 / 1963:0 1964:0 1"},
      {&F::Chart12,
       "Fishery Selectivity for Select. Period 1: 1963-1971 / 0..1.05  / 1..6 Age / 1 1 / 1:1 2:1 3:1 4:1"},
      {&F::Chart13,
       "Survey Selectivity for Survey 1: IBTS_Q1_gam / 0..1.05  / 1..5 Age / 1 1 / 1:1 2:1 3:1 4:1"},
  };
  for (const auto& row : rows) {
    const Chart& chart = *frmPlotInput.*row.chart;
    EXPECT_EQ(Face(chart), std::string("Input Data: ") + row.face);
    EXPECT_TRUE(chart.ChartFinishFlag && !chart.SerLegBoxVisible) << chart.Name();
  }
  for (const Control* control : frmPlotInput->Controls()) {
    EXPECT_FALSE(control->Kind() == ControlKind::Label && control->Visible()) << control->Name();
  }
  EXPECT_EQ(PlotIndex, 0);
}

TEST_F(InputPlotsOfExample, a_choice_redraws_its_chart_alone) {
  frmPlotInput->cboPlot4a.UserSelect(1);
  EXPECT_EQ(frmPlotInput->cboPlot4b.ListCount(), 23);
  EXPECT_EQ(PlotSeriesSel[1], 2);
  EXPECT_EQ(Points(frmPlotInput->Chart4), "1:0.882418 2:0.082387 3:0.01896 4:0.016235 5:0 6:0");
  frmPlotInput->cboPlot4b.UserSelect(22);
  EXPECT_EQ(frmPlotInput->Chart4.Titles[0],
            "Input Data: Proportion at Age for Survey 2: IBTS_Q3_gam for Year 2014");
  frmPlotInput->cboPlot5.UserSelect(1);
  EXPECT_EQ(Points(frmPlotInput->Chart5).rfind("1992:10810.713 ", 0), 0u);
  frmPlotInput->cboPlot6.UserSelect(51);
  EXPECT_EQ(frmPlotInput->Chart6.Titles[0], "Input Data: Catch Weight at Age for Year 2014");
  EXPECT_EQ(Span(frmPlotInput->Chart6.AxisY), "0..8.31426236235");
  EXPECT_EQ(Points(frmPlotInput->Chart7).rfind("1:0.314 ", 0), 0u);
  frmPlotInput->cboPlot13.UserSelect(1);
  EXPECT_EQ(Points(frmPlotInput->Chart13), "1:1 2:1 3:1 4:1");
  // Nothing chosen leaves the chart cleared, with its axes.
  frmPlotInput->cboPlot4a.UserSelect(-1);
  EXPECT_EQ(frmPlotInput->cboPlot4b.ListCount(), 0);
  EXPECT_EQ(Points(frmPlotInput->Chart4) + Span(frmPlotInput->Chart4.AxisY), "0..0.9588285");
  EXPECT_EQ(PlotIndex, 0);
}

TEST_F(InputPlotsOfExample, the_menu_opens_the_form_only_on_valid_input) {
  UnloadForm(frmPlotInput);
  EXPECT_EQ(PlotInputOpen, kFalse);
  const std::string weight = InputGrid(6).TextMatrix(1, 1);
  InputGrid(6).SetTextMatrix(1, 1, "");
  frmMain->mnuDataPlotInput.UserClick();
  EXPECT_EQ(host.TakeTexts().back(), "Cannot Plot Input Data|Please Correct Input Data Before Continuing");
  InputGrid(6).SetTextMatrix(1, 1, weight);
  frmPin->txtParmFile(0).SetText("");
  frmMain->mnuDataPlotInput.UserClick();
  EXPECT_EQ(host.TakeTexts().back(),
            "Cannot Plot Input Data|Please Correct Input Parameters Before Continuing");
  EXPECT_FALSE(frmPlotInput.Loaded());
  frmPin->txtParmFile(0).SetText("0.2");
  frmMain->mnuDataPlotInput.UserClick();
  EXPECT_TRUE(host.TakeTexts().empty());
  ASSERT_EQ(FrontForm(), &frmPlotInput);
  // Typed since: the next return to the form shows it.
  frmPlotInput->SSTab1.SetTab(kInputCatch);
  InputGrid(0).SetTextMatrix(1, 1, "-5");
  ActivateForm(frmPlotInput);
  EXPECT_EQ(Points(frmPlotInput->Chart1).rfind("1963:-5 ", 0), 0u);
  EXPECT_EQ(frmPlotInput->Chart1.AxisY.Min, -5.25);
  EXPECT_EQ(frmPlotInput->SSTab1.Tab(), kInputCatch);
  UnloadForm(frmPin);
  EXPECT_FALSE(frmPlotInput.Loaded());
  RefreshInputPlots();
  EXPECT_FALSE(frmPlotInput.Loaded());
}

// 1995 to 1997, 3 ages, 2 surveys.
class InputPlots : public SmallCase {
 protected:
  void SetUp() override {
    SmallCase::SetUp();
    Choose(frmInput->cmbNXYear, 1997);
    Open();
  }
  // Both files count as open, and the deviations have their rows.
  void Open() {
    for (const int grid : {0, 1}) frmPin->ORVFlexGrid1(grid).Resize(NYears + 1, 2);
    for (int row = 1; row <= NYears; ++row) {
      for (const int grid : {0, 1}) {
        frmPin->ORVFlexGrid1(grid).SetTextMatrix(row, 0, NumberText(NFYear + row - 1));
      }
    }
    for (const int button : {0, 1}) frmInput->cmdCondenseGrd(button).SetEnabled(false);
    DatFileOpen = PinFileOpen = kTrue;
    host.messages.clear();
    RefreshInputPlots();
  }
};

TEST_F(InputPlots, cells_without_data_are_hidden_points) {
  const struct {
    const char* cells[3];
    const char* shares;   // as an age composition: points, y axis, and whether the note shows
    const char* weights;  // as weights, which may be negative
  } rows[] = {
      {{"", "   ", ""}, "1:- 2:- 3:- 0..2.1 note", "1:- 2:- 3:- 0..0 note"},
      {{"0", "-0.5", "4"}, "1:0 2:- 3:4 0..4.2", "1:0 2:-0.5 3:4 -0.525..4.2"},
      {{"-1", "-2", ""}, "1:- 2:- 3:- 0..2.1 note", "1:-1 2:-2 3:- -2.1..0"},
      {{"N/A", "x", "nan"}, "1:0 2:0 3:0 0..2.1", "1:0 2:0 3:0 0..0"},
      {{" 3 kg", "1e1", ".5"}, "1:3 2:10 3:0.5 0..10.5", "1:3 2:10 3:0.5 0..10.5"},
      {{"1e308", "1", "1"}, "1:- 2:1 3:1 0..1.05e+308", "1:- 2:1 3:1 0..1.05e+308"},
  };
  const auto shown = [](const Chart& chart, const Label& note) {
    return Points(chart) + " " + Span(chart.AxisY) + (note.Visible() ? " note" : "");
  };
  Grid& age = frmInput->ORVFlexGrid(1);
  Grid& weight = frmInput->ORVFlexGrid(6);
  // Another year's share counts for the axis, another year's weight does not.
  age.SetTextMatrix(2, 3, "2");
  weight.SetTextMatrix(2, 1, "99");
  for (const auto& row : rows) {
    for (int i = 0; i < 3; ++i) {
      age.SetTextMatrix(1, i + 3, row.cells[i]);
      weight.SetTextMatrix(1, i + 1, row.cells[i]);
    }
    frmPlotInput->cboPlot2.UserSelect(0);
    EXPECT_EQ(shown(frmPlotInput->Chart2, frmPlotInput->lblFishNoData), row.shares);
    frmPlotInput->cboPlot6.UserSelect(0);
    EXPECT_EQ(shown(frmPlotInput->Chart6, frmPlotInput->lblNoData6), row.weights);
  }
  // An axis beyond the range of numbers: the drawing ends, silently.
  weight.SetTextMatrix(1, 2, "1e999");
  frmPlotInput->cboPlot6.UserSelect(0);
  EXPECT_EQ(Points(frmPlotInput->Chart6), "");
  EXPECT_EQ(PlotIndex, 0);
}

TEST_F(InputPlots, empty_input_gives_empty_charts_with_their_notes) {
  EXPECT_EQ(Points(frmPlotInput->Chart1), "1995:- 1996:- 1997:-");
  EXPECT_EQ(Points(frmPlotInput->Chart4), "1:- 2:- 3:-");
  EXPECT_EQ(Points(frmPlotInput->Chart5), "1995:- 1996:- 1997:-");
  for (const auto chart : {&F::Chart3, &F::Chart9, &F::Chart10}) {
    EXPECT_EQ(Span((*frmPlotInput.*chart).AxisY), "0..0.1");
  }
  for (const auto chart : {&F::Chart1, &F::Chart2, &F::Chart4, &F::Chart5, &F::Chart8}) {
    EXPECT_EQ(Span((*frmPlotInput.*chart).AxisY), "0..0");
  }
  for (const auto note :
       {&F::lblFishNoData, &F::lblCPUENoData, &F::lblSurvNoData, &F::lblNoData5, &F::lblNoData1,
        &F::lblNoData6, &F::lblNoData7, &F::lblNoData8, &F::lblNoData10, &F::lblNoData11}) {
    EXPECT_TRUE((*frmPlotInput.*note).Visible()) << (*frmPlotInput.*note).Name();
  }
  // Maturity's note is the one of the recruitment deviations too, which are drawn later.
  EXPECT_FALSE(frmPlotInput->lblNoData9.Visible());
  frmPin->ORVFlexGrid1(0).SetTextMatrix(2, 1, "-0.5");
  RefreshInputPlots();
  EXPECT_FALSE(frmPlotInput->lblNoData8.Visible());
  EXPECT_EQ(Span(frmPlotInput->Chart9.AxisY), "-0.525..0");
  frmPlotInput->cboPlot8.UserSelect(1);
  EXPECT_TRUE(frmPlotInput->lblNoData8.Visible());
}

TEST_F(InputPlots, lists_offer_what_the_input_has) {
  SurvTitle(2) = "Spring";
  SurvFYear(2) = 1996;
  RefreshInputPlots();
  EXPECT_EQ(Items(frmPlotInput->cboPlot6), "3: 1995; 1996; 1997; at 0");
  for (const auto list : {&F::cboPlot4a, &F::cboPlot5}) {
    EXPECT_EQ(Items(*frmPlotInput.*list), "2: Survey 1; Survey 2: Spring; at 0");
  }
  frmPlotInput->cboPlot4a.UserSelect(1);
  EXPECT_EQ(Items(frmPlotInput->cboPlot4b), "2: 1996; 1997; at 0");
  // The grids of the survey on the form of input are taken over before they are read.
  frmInput->ORVFlexGrid(15).SetTextMatrix(2, 3, "7");
  frmPlotInput->cboPlot4a.UserSelect(0);
  frmPlotInput->cboPlot4b.UserSelect(1);
  EXPECT_EQ(Points(frmPlotInput->Chart4), "1:7 2:- 3:-");
  EXPECT_EQ(Span(frmPlotInput->Chart4.AxisY), "0..7.35");
  frmInput->ORVFlexGrid(16).SetTextMatrix(3, 1, "-3");
  frmPlotInput->cboPlot5.UserSelect(0);
  EXPECT_EQ(Points(frmPlotInput->Chart5), "1995:- 1996:- 1997:-3");
  // Grids of fishery data are read condensed while their button is enabled.
  for (const int button : {0, 1}) frmInput->cmdCondenseGrd(button).SetEnabled(true);
  frmInput->ORVFlexGrid(1).SetTextMatrix(2, 3, "1");
  frmInput->ORVFlexGrid(5).SetTextMatrix(3, 1, "2");
  RefreshInputPlots();
  EXPECT_EQ(Items(frmPlotInput->cboPlot2), "1: 1996; at 0");
  EXPECT_EQ(Points(frmPlotInput->Chart3) + " " + Span(frmPlotInput->Chart3.AxisX), "1997:2 1997..1997");
}

TEST_F(InputPlots, selectivity_is_drawn_for_as_many_ages_as_are_estimated) {
  TabStrip& tabs = frmPlotInput->SSTab1;
  EXPECT_EQ(tabs.TabEnabled(kInputFisherySelectivity), !frmPin->frmParFishSel.Visible());
  EXPECT_EQ(tabs.TabEnabled(kInputSurveySelectivity), !frmPin->frmParSurvSel.Visible());
  for (Frame* frame : {&frmPin->frmParFishSel, &frmPin->frmParSurvSel}) frame->SetVisible(false);
  frmPin->frmNonParFishSel1.SetVisible(true);
  frmPin->frmNonParFishSel2.SetVisible(false);
  for (const int grid : {4, 6, 7}) {
    for (int age = 1; age <= 3; ++age) {
      frmPin->ORVFlexGrid1(grid).SetTextMatrix(1, age, NumberText(grid * 10 + age));
    }
  }
  RefreshInputPlots();
  EXPECT_TRUE(tabs.TabEnabled(kInputFisherySelectivity) && tabs.TabEnabled(kInputSurveySelectivity));
  EXPECT_EQ(Items(frmPlotInput->cboPlot12), "1: Select. Period 1: 1995-1997; at 0");
  EXPECT_EQ(frmPlotInput->frmPlot12.Caption(), "Select a Period to Plot");
  for (std::int16_t selected : PlotSeriesSel) EXPECT_EQ(selected, 0);
  const struct {
    const char* text;
    std::size_t length;  // of "1:x 2:x 3:x"
  } rows[] = {{"3", 14},  {" 2 ", 9}, {"1.5", 9}, {"0.9", 0},  {"", 0},
              {"3.1", 0}, {"x", 0},   {"-1", 0},  {"1e999", 0}};
  for (const auto& row : rows) {
    frmInput->ORVFlexGrid(11).SetTextMatrix(1, 1, row.text);
    frmInput->ORVFlexGrid(12).SetTextMatrix(1, 1, row.text);
    frmInput->txtFishSelAge.SetText(row.text);
    for (const bool annual : {false, true}) {
      frmPin->frmNonParFishSel1.SetVisible(!annual);
      frmPin->frmNonParFishSel2.SetVisible(annual);
      frmPlotInput->cboPlot12.UserSelect(0);
      EXPECT_EQ(Points(frmPlotInput->Chart12),
                std::string(annual ? "1:71 2:72 3:73" : "1:41 2:42 3:43", row.length));
    }
    frmPlotInput->cboPlot13.UserSelect(0);
    EXPECT_EQ(Points(frmPlotInput->Chart13), std::string("1:61 2:62 3:63", row.length)) << row.text;
    EXPECT_FALSE(frmPlotInput->lblNoData12.Visible());
  }
  frmInput->txtFishSelAge.SetText("3");
  RefreshInputPlots();
  EXPECT_EQ(Items(frmPlotInput->cboPlot12), "3: 1995; 1996; 1997; at 0");
  EXPECT_EQ(frmPlotInput->frmPlot12.Caption(), "Select a Year to Plot");
  frmPlotInput->cboPlot12.UserSelect(2);
  EXPECT_EQ(frmPlotInput->Chart12.Titles[0], "Input Data: Fishery Selectivity for 1997");
  EXPECT_TRUE(frmPlotInput->lblNoData12.Visible());
}

TEST_F(InputPlots, the_smallest_case_and_tables_of_no_size_are_borne) {
  Choose(frmInput->cmbNXYear, 1995);
  Choose(frmInput->cmbNAges, 1);
  Choose(frmInput->cmbNIndex, 1);
  Open();
  EXPECT_EQ(Points(frmPlotInput->Chart1) + " " + Span(frmPlotInput->Chart1.AxisX), "1995:- 1995..1995");
  EXPECT_EQ(Points(frmPlotInput->Chart4) + " " + Span(frmPlotInput->Chart4.AxisX), "1:- 1..1");
  // A survey beyond the years of the case, and tables without rows.
  SurvXYear(1) = 1999;
  SurvNYears(1) = 5;
  frmInput->ORVFlexGrid(6).Resize(1, 1);
  frmPin->ORVFlexGrid1(1).Resize(1, 1);
  frmPin->frmParSurvSel.SetVisible(false);
  RefreshInputPlots();
  for (const auto chart : {&F::Chart4, &F::Chart5, &F::Chart6, &F::Chart10}) {
    EXPECT_EQ(Points(*frmPlotInput.*chart), "") << (*frmPlotInput.*chart).Name();
  }
  EXPECT_EQ(Points(frmPlotInput->Chart11), "1:-");
  for (const int surveys : {3, 0}) {
    NIndex = Int16(surveys);
    RefreshInputPlots();
  }
  EXPECT_EQ(Items(frmPlotInput->cboPlot4b) + Items(frmPlotInput->cboPlot5), "0: at -10: at -1");
  EXPECT_TRUE(host.TakeTexts().empty());
}

}  // namespace
}  // namespace tarnvik
