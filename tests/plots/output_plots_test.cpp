#include "plots/output_plots.h"

#include <cmath>

#include "modelrun/results_test.h"
#include "plots/frmplotcollect.h"
#include "results/result_tables.h"

namespace tarnvik {
namespace {

std::string Number(double y) { return y == Chart::Hidden ? "-" : NumberText(std::round(y * 1e6) / 1e6); }

std::string AxisText(const ChartAxis& axis) {
  std::string text = axis.Title;
  if (axis.Min) text += " " + Number(*axis.Min) + ".." + Number(*axis.Max);
  if (axis.Decimals) text += " ." + std::to_string(*axis.Decimals);
  return text;
}

// A chart in one line: title, axes with limits and decimals, gallery/markers, "legend" where it is shown,
// then each series with its gallery, and its points as x:y or label:y.
std::string Describe(const Chart& chart) {
  if (chart.AllSeries().empty()) return chart.SerLegBoxVisible ? "empty legend" : "empty";
  std::string text = chart.Titles[0] + " [" + AxisText(chart.AxisX) + "] [" + AxisText(chart.AxisY) + "] " +
                     std::to_string(*chart.Gallery) + "/" + std::to_string(*chart.MarkerSetting);
  if (chart.SerLegBoxVisible) text += chart.LegendBoxDocked == 0x102 ? " legend" : " legend elsewhere";
  if (!chart.ChartFinishFlag) text += " unfinished";
  for (const ChartSeries& series : chart.AllSeries()) {
    text += series.Legend.empty() ? " |" : " | " + series.Legend;
    text += (series.Gallery ? "/" + std::to_string(*series.Gallery) : "");
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      text += " " + (series.X.empty() ? chart.PointLabels().at(i) : Number(series.X.at(i))) + ":" +
              Number(series.Y[i]);
    }
  }
  return text;
}

class OutputPlots : public ResultsTest {
 protected:
  void SetUp() override {
    ResultsTest::SetUp();
    SurvTitle.ReDim(1);
    SurvTitle(1) = "Survey 1";
  }
  static Chart& ChartOf(int number) {
    const std::string name = "Chart" + std::to_string(number);
    Form& form = number == 19 || number == 20 ? static_cast<Form&>(*frmSTD) : *frmOutput;
    return static_cast<Chart&>(*form.Find(name, -1));
  }
  static std::string Drawn(int chart) { return Describe(ChartOf(chart)); }
  // What the chart shows after a click on an option.
  static std::string DrawnFor(const std::string& option, int index, int chart) {
    static_cast<OptionButton&>(*frmOutput->Find(option, index)).UserChoose();
    return Drawn(chart);
  }
  static std::string Entries(const ComboBox& list) {
    std::string text;
    for (int item = 0; item < list.ListCount(); ++item)
      text += (item == list.ListIndex() ? "*" : "") + list.List(item) + " ";
    return text;
  }
  static void PutRow(int table, int row, int col, const std::vector<std::string>& texts) {
    for (const std::string& text : texts) PutCell(table, row, col++, text);
  }
  static void PutCell(int table, int row, int col, const std::string& text) {
    frmOutputData->MSFlexGrid(table).SetTextMatrix(row, col, text);
  }
};

const int kCharts[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 23, 25, 26, 27};

// The file of expected drawings has a line for every chart after the scan, then one for each option chosen in
// turn.
TEST_F(OutputPlots, every_chart_and_option_draws_as_written_down) {
  EXPECT_EQ(Scan(), Texts());
  const std::pair<const ComboBox&, const char*> lists[] = {{frmOutput->cboPlot1, "2001 2002 2003 "},
                                                           {frmOutput->cboPlot2, "*Age 1 Age 2 Age 3 "},
                                                           {frmOutput->cboPlot4, "*2001 2002 2003 "},
                                                           {frmOutput->cboPlot5b, "*2001 2002 2003 "},
                                                           {frmOutput->Combo7(0), "*2001 2002 2003 "},
                                                           {frmOutput->Combo7(1), "*Age 1 Age 2 Age 3 "},
                                                           {frmOutput->cboPlot13(0), "*Period 1: 2001-2003 "},
                                                           {frmOutput->cboPlot13(1), "*2001 2002 2003 "},
                                                           {frmOutput->cboPlot18, "*Survey 1 "}};
  for (const auto& [list, entries] : lists) EXPECT_EQ(Entries(list), entries) << list.FullName();
  EXPECT_EQ(frmOutput->SSTab1.TabCaption(3), "Survey Biomass Index");
  InputFile expected;
  expected.Open(TARNVIK_TEST_DATA "/small/small.plots");
  int lines = 0;
  for (; !expected.AtEnd(); ++lines) {
    const std::string line(expected.ReadLine());
    int chart = 0, option = 0;
    char group[20] = "";
    ASSERT_GE(std::sscanf(line.c_str(), "Chart%d after %19[^( ](%d)", &chart, group, &option), 2) << line;
    const std::string drawing = group == std::string("the") ? Drawn(chart) : DrawnFor(group, option, chart);
    EXPECT_EQ(line.substr(line.find(": ") + 2), drawing) << line.substr(0, line.find(": "));
  }
  EXPECT_EQ(lines, 48);
  EXPECT_EQ(host.TakeTexts(), Texts());
}

TEST_F(OutputPlots, no_drawing_depends_on_the_one_before) {
  Scan();
  const std::pair<const char*, int> groups[] = {{"Option23", 23}, {"Option27", 27}, {"Option3a", 3},
                                                {"Option9", 9},   {"Option10", 10}, {"Option6", 6},
                                                {"Option7", 7},   {"Option26", 26}, {"Option8", 8},
                                                {"Option12", 12}, {"Option25", 25}, {"Option13", 13}};
  for (const auto& [group, chart] : groups) {
    for (int a = 0; frmOutput->Find(group, a); ++a) {
      const std::string first = DrawnFor(group, a, chart);
      for (int b = 0; frmOutput->Find(group, b); ++b) {
        const std::string between = DrawnFor(group, b, chart);
        EXPECT_EQ(between == first, a == b) << group << a << b;
        EXPECT_EQ(DrawnFor(group, a, chart), first) << group << a << b;
      }
    }
  }
}

TEST_F(OutputPlots, selectors_draw_what_is_selected) {
  Scan();
  SurvTitle(1) = "Spring";
  RefreshOutputPlots();
  const auto begins = [](int chart, const std::string& start) {
    EXPECT_EQ(Drawn(chart).substr(0, start.size()), start);
  };
  begins(3, "Biomass Index for Survey 1: Spring [");
  begins(5, "Proportion at Age for Year 2001 for Survey 1: Spring [");
  begins(14, "Selectivity for Survey 1: Spring [");
  begins(18, "Age Composition Sample Size for Survey 1: Spring [");
  frmOutput->cboPlot2.UserSelect(1);
  EXPECT_EQ(Drawn(2),
            "Estimated Fishing Mortality for Age 2 [Year 2001..2003] [ 0..0.623835 .4] 1/3 | "
            "2001:0.453768 2002:0.571365 2003:0.594128");
  frmOutput->cboPlot4.UserSelect(2);
  begins(4, "Fishery Proportion at Age for Year 2003 [Age 1..3] [ 0..0.441] 1/1 legend | Observed/4 1:0.28 ");
  frmOutput->cboPlot5b.UserSelect(1);
  begins(5,
         "Proportion at Age for Year 2002 for Survey 1: Spring [Age 1..3] [ 0..0.5775] 1/1 legend | "
         "Observed/4 1:0.44 2:0.34 ");
  frmOutput->Combo7(1).UserSelect(2);
  begins(7, "Catch Biomass for Age 3 [Year 2001..2003] [Biomass (mt) 0..325.7205] 1/3 | 2001:265.4283 ");
  EXPECT_FALSE(frmOutput->Combo7(0).Reachable());
  frmOutput->Option7(3).UserChoose();
  EXPECT_FALSE(frmOutput->Combo7(1).Reachable());
  frmOutput->Combo7(0).UserSelect(1);
  begins(7, "Population Biomass for Year 2002 [Age 1..3] [Biomass (mt) 0..557.18796] 1/1 | 1:163.7609 ");
  EXPECT_FALSE(frmOutput->cboPlot13(1).Enabled());
  frmOutput->Option13(1).UserChoose();
  EXPECT_TRUE(frmOutput->cboPlot13(1).Enabled());
  EXPECT_FALSE(frmOutput->cboPlot13(0).Enabled());
  PutCell(19, 3, 2, "0.5");
  frmOutput->cboPlot13(1).UserSelect(2);
  begins(13, "Fishery Selectivity for Year 2003 [Age 1..3] [ 0..1.05] 2/1 | 1:0.242743 2:0.5 3:1");
  frmOutput->cboPlot14.UserSelect(-1);
  EXPECT_EQ(Drawn(14), "empty");
}

TEST_F(OutputPlots, numbers_at_age_show_up_to_five_years) {
  Scan();
  const std::string maximum = "Maximum of 5 Series May Be Plotted Simulatneously";
  frmOutput->cmdPlot1.UserClick();
  EXPECT_EQ(Drawn(1), "empty");
  frmOutput->cboPlot1.UserSelect(0);
  frmOutput->cboPlot14.UserSelect(0);  // another plot, which uses the same values of the state
  frmOutput->cboPlot1.UserSelect(2);
  EXPECT_EQ(PlotIndex, 2);
  EXPECT_EQ(PlotSeriesSel[2], 3);
  PutCell(0, 1, 2, "410.5");
  PutCell(0, 1, 3, "3e9");
  frmOutput->Option3a(1).UserChoose();
  frmOutput->cmdPlot1.UserClick();
  EXPECT_EQ(Drawn(1),
            "Estimated Numbers (000s) of Fish at Age [Age 1..3] [ 0..742.35 .0] 1/1 legend | "
            "2001 1:707 2:410 3:- | 2003 1:678 2:325 3:321");
  for (int i = 0; i < 3; ++i) frmOutput->cboPlot1.UserSelect(1);
  EXPECT_EQ(host.TakeTexts(), Texts());
  frmOutput->cboPlot1.UserSelect(0);
  EXPECT_EQ(host.messages.back().icon, Icon::Information);
  EXPECT_EQ(host.TakeTexts(), Texts{maximum});
  EXPECT_EQ(PlotIndex, 5);
  EXPECT_EQ(frmOutput->lblPlot1(0).Caption() + frmOutput->lblPlot1(4).Caption(), "20012002");
  frmOutput->cmdPlot1.UserClick();
  EXPECT_EQ(ChartOf(1).AllSeries().size(), 5u);
  frmOutput->cmdClearPlot1.UserClick();
  EXPECT_EQ(Drawn(1), "empty");
  EXPECT_EQ(frmOutput->lblPlot1(4).Caption(), "");
  EXPECT_EQ(PlotIndex, 0);
  EXPECT_EQ(PlotSeriesSel[5], 0);
}

TEST_F(OutputPlots, bands_lie_around_the_value) {
  Scan();
  const struct {
    const char *value, *deviation, *plus, *minus;  // of the year 2002; 2001: 100 and 10, 2003: 300 and 30
    const char* drawing;
  } rows[] = {
      {"200", "20", "2", "0.5",
       "0..378 .0] 1/3 legend | Value + 2 Std Deviations 2001:120 2002:240 2003:360 | Value - 0.5 Std "
       "Deviations 2001:95 2002:190 2003:285 | "},
      {"200", "200", " 0", "2x",
       "-210..315 .0] 1/3 legend | Value - 2 Std Deviations 2001:80 2002:-200 2003:240 | "},
      {"400", "N/A", "1", "", "0..420 .0] 1/3 legend | Value + 1 Std Deviations 2001:110 2002:- 2003:330 | "},
      {"N/A", "50", "1", "1",
       "0..346.5 .0] 1/3 legend | Value + 1 Std Deviations 2001:110 2002:- 2003:330 | Value - 1 Std "
       "Deviations 2001:90 2002:- 2003:270 | "},
      {"200", "9e307", "1", "",
       "0..346.5 .0] 1/3 legend | Value + 1 Std Deviations 2001:110 2002:- 2003:330 | "},
      {"1e308", "", "0", "0", "0..315 .0] 1/3 legend | "},
  };
  for (const auto& row : rows) {
    PutRow(5, 1, 1, {"100", "10"});
    PutRow(5, 2, 1, {row.value, row.deviation});
    PutRow(5, 3, 1, {"300", "30"});
    frmOutput->txtSTDplus(0).SetText(row.plus);
    frmOutput->txtSTDminus(0).SetText(row.minus);
    frmOutput->cmdPlot6.UserClick();
    const bool hidden = row.value == std::string("N/A") || row.value == std::string("1e308");
    EXPECT_EQ(Drawn(6), std::string("Population Biomass (mt) [Year 2001..2003] [ ") + row.drawing +
                            "Population Biomass 2001:100 2002:" + (hidden ? "-" : row.value) + " 2003:300");
  }
  // Each page has its own boxes and its own button.
  struct BandRow {
    int band, chart, table, row;
    CommandButton& button;
  };
  for (const BandRow& row :
       {BandRow{3, 9, 6, 1, frmOutput->cmdPlot9}, BandRow{4, 11, 8, 1, frmOutput->cmdPlot11},
        BandRow{5, 12, 9, 1, frmOutput->cmdPlot12}, BandRow{6, 25, 10, 1, frmOutput->cmdPlot25},
        BandRow{7, 26, 12, 1, frmOutput->cmdPlot26}, BandRow{8, 23, 0, 3, frmOutput->cmdPlot23}}) {
    PutRow(row.table, row.row, 1, {"100", "7"});
    if (row.table == 0) PutCell(0, 5, 1, "7");
    frmOutput->txtSTDplus(row.band).SetText("1");
    row.button.UserClick();
    ASSERT_EQ(ChartOf(row.chart).AllSeries().size(), 2u) << row.chart;
    EXPECT_EQ(ChartOf(row.chart).Series(0).Y[0], 107) << row.chart;
  }
  frmSTD->txtSTDminus(2).SetText("1");
  frmSTD->cmdPlot20.UserClick();
  EXPECT_EQ(ChartOf(20).AllSeries().size(), 2u);
  EXPECT_EQ(ChartOf(19).AllSeries().size(), 1u);
}

TEST_F(OutputPlots, bands_are_for_values_with_standard_deviations) {
  Scan();
  const auto check = [](int band, const CommandButton& button, bool enabled) {
    for (const TextBox* box : {&frmOutput->txtSTDplus(band), &frmOutput->txtSTDminus(band)}) {
      EXPECT_EQ(box->Enabled(), enabled) << band;
      EXPECT_EQ(box->BackColor(), enabled ? kWindowBackground : kButtonFace) << band;
    }
    EXPECT_EQ(button.Enabled(), enabled) << band;
  };
  for (const bool read : {true, false}) {
    StdFileRead = Flag(read);
    frmOutput->Option9(1).UserChoose();
    frmOutput->Option12(1).UserChoose();
    check(3, frmOutput->cmdPlot9, false);
    check(5, frmOutput->cmdPlot12, false);
    frmOutput->Option9(0).UserChoose();
    frmOutput->Option12(0).UserChoose();
    check(3, frmOutput->cmdPlot9, read);
    check(5, frmOutput->cmdPlot12, read);
  }
  check(4, frmOutput->cmdPlot11, true);
  frmSTD->cmdPlot19.UserClick();
  EXPECT_EQ(Drawn(19), "empty");
  ParFileRead = kTrue;
  frmSTD->cmdPlot19.UserClick();
  EXPECT_NE(Drawn(19), "empty");
}

TEST_F(OutputPlots, points_without_data_are_gaps) {
  Scan();
  PutRow(2, 1, 2, {"-1", "N/A", "0", "N/A", "1e308"});
  PutRow(7, 2, 1, {"-99999", "N/A", "-99999", "N/A"});
  PutRow(6, 2, 1, {"N/A", "", "N/A"});
  PutRow(17, 2, 1, {"N/A"});
  PutRow(9, 1, 1, {"N/A"});
  PutRow(5, 2, 3, {"N/A"});
  PutRow(3, 3, 2, {"9", "N/A", "-7"});
  RefreshOutputPlots();
  const struct {
    const char* option;
    int index, chart;
    const char* part;
  } rows[] = {
      {"Option3a", 0, 3,
       "0..179.55 .0] 1/3 legend | Observed/4 2001:- 2002:150 2003:171 | Predicted/1 2001:- "},
      {"Option3a", 1, 3, "-11.548572..27.595586 .0] 2/3 | 2001:0 2002:"},
      {"Option3a", 2, 3, "-0.074299..0.175217 .2] 2/3 | 2001:- "},
      {"Option3a", 3, 3, "-0.627257..1.479245 .2] 2/3 | 2001:- "},
      {"Option10", 0, 10,
       "-104998.95..483 .0] 1/3 legend | Observed/1 2001:420 2002:- 2003:460 | Predicted/4 "
       "2001:427.6268 2002:- "},
      {"Option10", 1, 10, "-104998.95..4.25105 .0] 2/3 | 2001:-7.626776 2002:- "},
      {"Option10", 2, 10, "-0.18943..0.093055 .2] 2/3 | 2001:-0.180409 2002:- "},
      {"Option9", 0, 9, "1999:105.3898 2000:- 2001:707.2888"},
      {"Option9", 1, 9, "-2.676995..0.927902 .2] 2/3 | 1999:-2.549519 2000:- 2001:"},
      {"Option12", 0, 12, "| Full F 2001:- 2002:0.905792 "},
      {"Option12", 0, 18, "| Input 2001:50 2002:- 2003:50 |"},
      {"Option12", 0, 15, "| 632.0192:- 0:- 533.8627:0.94188"},
      {"Option4", 0, 4, "2001 [Age 1..3] [ 0..9.45] 1/1 legend"},
  };
  for (const auto& row : rows) {
    const std::string drawing = DrawnFor(row.option, row.index, row.chart);
    EXPECT_NE(drawing.find(row.part), std::string::npos) << drawing << "\nlacks " << row.part;
  }
  frmOutput->cboPlot4.UserSelect(2);
  EXPECT_NE(Drawn(4).find("Observed/4 1:9 2:- 3:- |"), std::string::npos) << Drawn(4);
}

TEST_F(OutputPlots, pages_of_ratios_come_and_go_with_their_tables) {
  Scan();
  const auto put_all = [](int table, const char* text) {
    for (int row = 1; row <= 3; ++row) PutCell(table, row, 1, text);
  };
  const struct {
    int table, page, chart;
    const char* option;
  } rows[] = {{10, 13, 25, "Option25"}, {12, 14, 26, "Option26"}};
  for (const auto& row : rows) {
    const int other_page = 27 - row.page;
    put_all(row.table, "N/A");
    RefreshOutputPlots();
    EXPECT_EQ(Drawn(row.chart), "empty");
    EXPECT_FALSE(frmOutput->SSTab1.TabEnabled(row.page));
    EXPECT_TRUE(frmOutput->SSTab1.TabEnabled(other_page));
    EXPECT_NE(DrawnFor(row.option, 1, row.chart), "empty");
    EXPECT_TRUE(frmOutput->SSTab1.TabEnabled(row.page));
    PutCell(row.table, 2, 1, "2");
    EXPECT_NE(DrawnFor(row.option, 0, row.chart).find("[ 0..2.1] 1/3 legend"), std::string::npos);
    EXPECT_NE(Drawn(row.chart).find("2001:- 2002:2 2003:-"), std::string::npos);
    EXPECT_TRUE(frmOutput->SSTab1.TabEnabled(row.page));
  }
}

constexpr const char* kPredictedOnly =
    "Current Year Selected Contains Predicted Values Only|Plot Will Reset to First Year With Both Observed "
    "and Predicted Values";

TEST_F(OutputPlots, fishery_years_can_be_limited_to_those_observed) {
  Scan();
  OutputForm& form = *frmOutput;
  PutRow(3, 1, 2, {"N/A", "0", "-1"});
  form.Check4.UserCheck(1);
  EXPECT_EQ(host.messages.back().icon, Icon::Information);
  EXPECT_EQ(host.TakeTexts(), Texts{kPredictedOnly});
  EXPECT_EQ(Entries(form.cboPlot4), "*2002 2003 ");
  EXPECT_NE(Drawn(4).find("for Year 2002 "), std::string::npos);
  form.cboPlot4.UserSelect(1);
  EXPECT_NE(Drawn(4).find("Observed/4 1:0.28 "), std::string::npos);
  form.Check4.UserCheck(0);
  EXPECT_EQ(Entries(form.cboPlot4), "2001 2002 *2003 ");
  form.Check4.UserCheck(1);
  EXPECT_EQ(Entries(form.cboPlot4), "2002 *2003 ");
  form.Option4(1).UserChoose();
  EXPECT_FALSE(form.Check4.Enabled());
  EXPECT_NE(Drawn(4).find("Residuals at Age for Year 2003 "), std::string::npos);
  form.Option4(0).UserChoose();
  EXPECT_TRUE(form.Check4.Enabled());
  EXPECT_TRUE(form.Check4.IsChecked());
  EXPECT_EQ(host.TakeTexts(), Texts());
  // Residuals check the box themselves; a collection in the making is not held up.
  form.Check4.UserCheck(0);
  form.cboPlot4.UserSelect(0);
  form.Option4(2).UserChoose();
  EXPECT_EQ(host.TakeTexts(), Texts{kPredictedOnly});
  EXPECT_EQ(Entries(form.cboPlot4), "*2002 2003 ");
  form.Option4(0).UserChoose();
  form.Check4.UserCheck(0);
  form.cboPlot4.UserSelect(0);
  frmPlotCollect->Shown = true;
  form.Check4.UserCheck(1);
  EXPECT_EQ(Entries(form.cboPlot4), "*2002 2003 ");
  EXPECT_EQ(host.TakeTexts(), Texts());
  UnloadForm(frmPlotCollect);
  // Without any year there is nothing to draw, until all are offered again.
  for (const int row : {2, 3}) PutRow(3, row, 2, {"N/A", "N/A", "N/A"});
  form.Check4.UserCheck(1);
  EXPECT_EQ(host.TakeTexts(), Texts{kPredictedOnly});
  EXPECT_EQ(Drawn(4) + Entries(form.cboPlot4), "empty");
  RefreshOutputPlots();
  EXPECT_EQ(host.TakeTexts(), Texts());
  form.Check4.UserCheck(0);
  EXPECT_EQ(Entries(form.cboPlot4), "*2001 2002 2003 ");
  EXPECT_EQ(host.TakeTexts(), Texts());
}

TEST_F(OutputPlots, survey_years_come_to_the_entry_behind_the_year_kept) {
  Scan();
  OutputForm& form = *frmOutput;
  const std::string error = "Error Plotting Survey Proportion at Age Output Data";
  PlotSeriesSel[2] = 7;
  form.Check5.UserCheck(1);
  EXPECT_EQ(Entries(form.cboPlot5b), "2001 *2002 2003 ");
  EXPECT_EQ(PlotSeriesSel[2], 0);
  EXPECT_NE(Drawn(5).find("for Year 2002 for Survey 1 "), std::string::npos);
  form.Check5.UserCheck(0);
  EXPECT_EQ(Entries(form.cboPlot5b), "2001 2002 *2003 ");
  EXPECT_EQ(host.TakeTexts(), Texts());
  form.Option5(1).UserChoose();
  EXPECT_EQ(host.messages.back().icon, Icon::Information);
  EXPECT_EQ(host.TakeTexts(), Texts{error});
  EXPECT_EQ(Entries(form.cboPlot5b), "2001 2002 2003 ");
  EXPECT_EQ(Drawn(5), "empty");
  EXPECT_FALSE(form.Check5.Enabled());
  form.cboPlot5b.UserSelect(2);
  EXPECT_NE(Drawn(5).find("Residuals at Age for Year 2003 "), std::string::npos);
  form.Option5(0).UserChoose();
  form.Check5.UserCheck(0);
  host.TakeTexts();
  PutRow(4, 1, 3, {"N/A", "N/A", "0"});
  form.cboPlot5b.UserSelect(0);
  form.Check5.UserCheck(1);
  EXPECT_EQ(host.TakeTexts(), Texts{kPredictedOnly});
  EXPECT_EQ(Entries(form.cboPlot5b), "2002 *2003 ");
  // A collection, which sets every entry by itself, is not held up.
  frmPlotCollect->Shown = true;
  form.Check5.UserCheck(0);
  EXPECT_EQ(Drawn(5), "empty");
  EXPECT_EQ(host.TakeTexts(), Texts());
  form.Check5.UserCheck(1);
  form.cboPlot5a.UserSelect(0);
  EXPECT_EQ(Entries(form.cboPlot5b), "*2002 2003 ");
  EXPECT_NE(Drawn(5).find("Observed/4 1:0.44 2:0.34 3:0.22 |"), std::string::npos) << Drawn(5);
}

TEST_F(OutputPlots, cpue_series_has_a_plot_and_a_bar) {
  Scan();
  frmOutput->SSTab1.SetTabCaption(2, " CPUE Numbers Index ");
  frmOutputData->SSTab1.SetTabCaption(2, "CPUE Numbers Index");
  frmOutputData->lblSumm(6).SetCaption("0.5");
  frmOutputData->Label8(12).SetCaption("Survey Numbers Index");
  for (int row = 1; row <= 3; row += 2) PutRow(18, row, 1, {"4", "5", "-1", "-0.2", "0.3"});
  PutRow(18, 2, 1, {"N/A", "6"});
  RefreshOutputPlots();
  EXPECT_EQ(
      Drawn(27),
      "CPUE Numbers Index [Year 2001..2003] [ 0..6.3 .0] 1/3 legend | Observed/4 2001:4 2002:- 2003:4 | "
      "Predicted/1 2001:5 2002:6 2003:5");
  EXPECT_EQ(DrawnFor("Option27", 1, 27),
            "Residuals for CPUE Numbers Index [Year 2001..2003] [ -1.05..0 .0] 2/3 | 2001:-1 2002:- 2003:-1");
  EXPECT_EQ(DrawnFor("Option27", 2, 27).substr(0, 44), "Log-Scale Residuals for CPUE Numbers Index [");
  EXPECT_NE(Drawn(16).find("Surv.1  Numbers Index:0.210457 Survey1 Age Comp.:0.292512 Fishing Mortality "
                           "Dev.:0.095055 CPUE Numbers Index:0.5 Catch Biomass:0.024413 "),
            std::string::npos)
      << Drawn(16);
}

// A chart that a renderer can draw: every number in it is one, and no axis runs backwards.
void ExpectDrawable(const Chart& chart, const std::string& what) {
  const auto sound = [](double y) { return std::abs(y) <= 1.06e307; };
  for (const ChartSeries& series : chart.AllSeries()) {
    for (const double x : series.X) EXPECT_TRUE(sound(x)) << what;
    for (const double y : series.Y) EXPECT_TRUE(sound(y) || y == Chart::Hidden) << what;
  }
  for (const ChartAxis* axis : {&chart.AxisX, &chart.AxisY}) {
    EXPECT_EQ(axis->Min.has_value(), axis->Max.has_value());
    EXPECT_TRUE(!axis->Min || (sound(*axis->Min) && sound(*axis->Max) && *axis->Min <= *axis->Max)) << what;
  }
}

TEST_F(OutputPlots, bad_cells_and_small_cases_leave_charts_that_can_be_drawn) {
  Scan();
  const auto fill = [](Grid& grid, const std::string& text) {
    for (int row = 0; row < grid.Rows(); ++row) {
      for (int col = 0; col < grid.Cols(); ++col) grid.SetTextMatrix(row, col, text);
    }
  };
  const auto click_through = [](const std::string& what) {
    for (Control* control : frmOutput->Controls()) {
      if (control->Kind() == ControlKind::OptionButton) static_cast<OptionButton*>(control)->UserChoose();
    }
    RefreshOutputPlots();
    for (const int chart : kCharts)
      ExpectDrawable(ChartOf(chart), what + " in chart " + std::to_string(chart));
  };
  const int dimensions[][4] = {{3, 3, 1, 1}, {1, 1, 1, 1}, {2, 1, 2, 2}, {1, 4, 0, 0}};
  for (const auto& [years, ages, surveys, periods] : dimensions) {
    SetDimensions(2001, years, ages, surveys, periods);
    SurvTitle.ReDim(surveys);
    for (int table = 0; table <= 26; ++table) PrepareResultTable(table);
    for (const int table : {0, 1}) PrepareParameterTable(table);
    PrepareLikelihoodTables();
    for (const char* text :
         {"", "N/A", "abc", "nan", "-inf", "1e308", "-9e306", "9e306", "1e999", "-5", "0"}) {
      for (int table = 0; table <= 26; ++table) fill(ResultTable(table), text);
      for (const int table : {0, 1}) fill(ParameterTable(table), text);
      frmOutputData->lblSumm.ForEach([&](Label& label) { label.SetCaption(text); });
      for (const char* level : {"", "2", "-1e300", "1e308"}) {
        frmOutput->txtSTDplus.ForEach([&](TextBox& box) { box.SetText(level); });
        frmSTD->txtSTDminus.ForEach([&](TextBox& box) { box.SetText(level); });
        click_through(std::to_string(years) + " years of " + text + ", bands of " + level);
      }
    }
  }
  // The case has grown beyond the tables, which are those of the last scan.
  SetDimensions(2001, 20, 9, 4, 3);
  click_through("larger case");
  UnloadForm(frmOutput);
  RefreshOutputPlots();
  EXPECT_FALSE(frmOutput.Loaded());
}

}  // namespace
}  // namespace tarnvik
