#include "plots/m_prior.h"

#include "core/text.h"
#include "inputedit/small_case.h"
#include "plots/frmplotinput.h"
#include "plots/input_plots.h"

namespace tarnvik {
namespace {

class MPrior : public SmallCase {
 protected:
  struct Inputs {
    const char *m0, *cv, *eps;
    int form;
  };
  // Types the four inputs and draws.
  static const Chart& Draw(const Inputs& in) {
    frmPin->txtParmFile(0).SetText(in.m0);
    frmInput->txtEstimate(0).SetText(in.cv);
    frmInput->txtEpsilon.SetText(in.eps);
    frmInput->cmbMType.SetListIndex(in.form);
    DrawMPrior();
    return frmPlotInput->Chart14;
  }
  // The first and the last M that a series shows, in steps of 0.005: "37-44".
  static std::string Band(const ChartSeries& series) {
    int first = -1, last = -1;
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      if (series.Y[i] == Chart::Hidden) continue;
      last = static_cast<int>(i);
      if (first < 0) first = last;
    }
    return NumberText(first) + "-" + NumberText(last);
  }
};

// The numbers come from the formulas written down once more in another language.
TEST_F(MPrior, curves_and_bands_have_the_values_of_their_formulas) {
  const struct {
    Inputs in;
    const char *form, *title;
    std::size_t points;
    double y[5];  // of points 0, 40, 100 and the last, and the upper end of the axis
    const char* bands[4];
  } rows[] = {
      {{"0.2", " 0.5 ", "0.01", 0},
       "Lognormal",
       "M = 0.2, CV = 0.5, Epsilon = 0.01",
       201,
       {1.05575841028e-201, 0.0949862572384, 3.13441489547e-19, 5.37214765124e-56, 0.0997355701004},
       {"37-44", "33-48", "30-53", "0-200"}},
      {{"0.2", "0.50", "0.01", 1},
       "Normal",
       "M = 0.2, CV = 0.5, Epsilon = 0.01",
       201,
       {0.00275864640224, 0.0203837930233, 0.000226443486132, 2.58143729365e-16, 0.0214029826745},
       {"20-60", "0-80", "0-100", "0-200"}},
      {{".2", "4", "0.01", 2},
       "Gamma",
       "M = 0.2, CV = 4, Epsilon = 0.01",
       200,
       {0.000333410439136, 0.0179822018582, 0.000612607464735, 2.318511999e-07, 0.0235273704907},
       {"0-199"}},
      {{"1.5", "0.3", "1.0e-2", 0},
       "Lognormal",
       "M = 1.5, CV = 0.3, Epsilon = 1.0e-2",
       201,
       {2.40105357002e-27, 7.56536221288e-06, 0.00253114605917, 0.0157242055603, 0.0165104158383},
       {"192-200", "122-200", "78-200", "0-200"}},
      {{"0.3", "5", "", 1},
       "Normal",
       "M = 0.3, CV = 5, Epsilon = ",
       201,
       {0.00501070188778, 0.00510057756023, 0.00506668680454, 0.00458452780622, 0.00536752101941},
       {"0-200", "0-200", "0-200", "0-200"}},
  };
  for (const auto& row : rows) {
    frmPlotInput->lblMNoData.SetVisible(true);
    const Chart& chart = Draw(row.in);
    const bool banded = row.in.form != 2;
    ASSERT_EQ(chart.AllSeries().size(), banded ? 4u : 1u) << row.title;
    for (std::size_t s = 0; s < chart.AllSeries().size(); ++s) {
      EXPECT_EQ(Band(chart.AllSeries()[s]), row.bands[s]) << row.title << " series " << s;
      EXPECT_EQ(chart.AllSeries()[s].Legend, banded ? "+/- " + NumberText(int(s) + 1) + " STD" : "");
    }
    const ChartSeries& whole = chart.AllSeries().back();
    ASSERT_EQ(whole.Y.size(), row.points);
    const double shown[] = {whole.Y[0], whole.Y[40], whole.Y[100], whole.Y.back(), chart.AxisY.Max.value()};
    for (int k = 0; k < 5; ++k) EXPECT_NEAR(shown[k] / row.y[k], 1, 1e-9) << row.title << " " << k;
    EXPECT_EQ(chart.AxisY.Min, 0);
    EXPECT_EQ(whole.X.front(), banded ? 0 : 0.005);
    EXPECT_EQ(whole.X.back(), 1.0);
    EXPECT_EQ(chart.Titles[0], std::string("Input M, ") + row.form + " Distribution");
    EXPECT_EQ(chart.Titles[1], row.title);
    EXPECT_EQ(chart.SerLegBoxVisible, banded);
    EXPECT_FALSE(frmPlotInput->lblMNoData.Visible());
    for (const double y : whole.Y) EXPECT_TRUE(!banded || y == Val(NumberText(y))) << y;
  }
  const Chart& chart = frmPlotInput->Chart14;
  EXPECT_EQ(chart.AxisY.Title + "/" + chart.AxisX.Title, "Probability/Natural Mortality");
  EXPECT_TRUE(chart.AxisX.Min == 0 && chart.AxisX.Max == 1 && chart.AxisX.Decimals == 4);
  EXPECT_TRUE(chart.AxisY.Decimals == 4 && chart.Gallery == 19 && chart.MarkerSetting == 3);
  EXPECT_TRUE(chart.LegendBoxDocked == 0x102 && chart.ChartFinishFlag);
}

TEST_F(MPrior, without_inputs_the_note_shows_and_faults_of_arithmetic_leave_it) {
  const Inputs missing[] = {
      {"", "0.5", "0.01", 0}, {"  ", "0.5", "0.01", 2}, {"0.2", " ", "0.01", 1}, {"0.2", "0.5", "0.01", -1}};
  const Inputs faults[] = {
      {"0.2", "0.5", "0", 0},    {"0.2", "0.5", "-0.1", 0},    {"0.2", "0", "0.01", 0},
      {"0.2", "0", "0.01", 1},   {"0.2", "0", "0.01", 2},      {"0", "0.5", "0.01", 0},
      {"-1", "0.5", "0.01", 0},  {"0", "0.5", "0.01", 1},      {"0", "4", "0.01", 2},
      {"-0.2", "4", "0.01", 2},  {"0.2", "-2", "0.01", 2},     {"0.2", "200", "0.01", 2},
      {"0.2", "1e5", "0.01", 0}, {"0.2", "1e-200", "0.01", 1}, {"1e300", "1e300", "0.01", 1},
      {"abc", "N/A", "nan", 0},  {"1e-310", "0.5", "0", 2},    {"0.2021", "1e-4", "0.01", 0}};
  const auto expect_empty = [](const Inputs& in, bool note_before, bool note) {
    Draw({"0.2", "0.5", "0.01", 0});
    frmPlotInput->lblMNoData.SetVisible(note_before);
    const Chart& chart = Draw(in);
    EXPECT_TRUE(chart.AllSeries().empty()) << in.m0 << " " << in.cv << " " << in.eps << " " << in.form;
    EXPECT_EQ(frmPlotInput->lblMNoData.Visible(), note) << in.m0 << " " << in.cv;
    EXPECT_EQ(chart.Titles[1], "M = 0.2, CV = 0.5, Epsilon = 0.01");
  };
  for (const bool note_before : {false, true}) {
    for (const Inputs& in : missing) expect_empty(in, note_before, true);
    for (const Inputs& in : faults) expect_empty(in, note_before, note_before);
  }
}

TEST_F(MPrior, the_page_is_offered_while_M_is_estimated) {
  DatFileOpen = PinFileOpen = kTrue;
  Draw({"0.2", "0.5", "0.01", 0});
  for (const int estimated : {1, 0, 1}) {
    frmPlotInput->Chart14.ClearData();
    frmInput->chkEstimate(1).SetValue(estimated);
    frmInput->txtEstimate(0).SetText("0.5");
    RefreshInputPlots();
    EXPECT_EQ(frmPlotInput->SSTab1.TabEnabled(kInputM), estimated == 1);
    EXPECT_EQ(frmPlotInput->Chart14.AllSeries().empty(), estimated == 0);
  }
}

}  // namespace
}  // namespace tarnvik
