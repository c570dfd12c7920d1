#include "plots/input_draws.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/gridtools.h"
#include "inputedit/surveys.h"
#include "plots/frmplotinput.h"
#include "plots/plot_parts.h"

namespace tarnvik::input_plots {

namespace {

using F = PlotInputForm;

enum class Plot {
  CatchBiomass,
  FisheryAge,
  FisheryCpue,
  SurveyAge,
  SurveyIndex,
  CatchWeight,
  StockWeight,
  Maturity,
  SpawningWeight,
  RecruitmentDeviations,
  FishingMortalityDeviations,
  FisherySelectivity,
  SurveySelectivity
};

enum Along { ByAge, ByYear };
// Shares and rates of catch have no negative values: such a cell is no data, and the y axis begins at 0.
enum Sign { AnySign, NotNegative };
// An axis of nothing but zeros: from 0 to 0, or made 0.1 long.
enum AllZero { Flat, Widened };

struct InputPlot {
  Plot plot;
  Chart F::*chart;
  Label F::*no_data;
  int gallery;
  Along along;
  Sign sign;
  AllZero all_zero;
  const char* title;              // what has been chosen follows
  const char* y_title = nullptr;  // null leaves the axis without
  std::optional<int> y_decimals = std::nullopt;
};

const InputPlot kPlots[] = {
    {Plot::CatchBiomass, &F::Chart1, &F::lblNoData1, kLines, ByYear, AnySign, Flat,
     "Input Data: Catch Biomass", "Catch Biomass (metric tons)", 0},
    {Plot::FisheryAge, &F::Chart2, &F::lblFishNoData, kBars, ByAge, NotNegative, Flat,
     "Input Data: Fishery Proportion at Age for Year "},
    {Plot::FisheryCpue, &F::Chart3, &F::lblCPUENoData, kLines, ByYear, NotNegative, Widened,
     "Input Data: Observed Fishery CPUE"},
    {Plot::SurveyAge, &F::Chart4, &F::lblSurvNoData, kBars, ByAge, NotNegative, Flat,
     "Input Data: Proportion at Age for "},
    {Plot::SurveyIndex, &F::Chart5, &F::lblNoData5, kLines, ByYear, AnySign, Flat,
     "Input Data: Biomass Index for ", "Biomass Index (kg / tow * 1000)", 0},
    {Plot::CatchWeight, &F::Chart6, &F::lblNoData6, kLines, ByAge, AnySign, Flat,
     "Input Data: Catch Weight at Age for Year "},
    {Plot::StockWeight, &F::Chart7, &F::lblNoData7, kLines, ByAge, AnySign, Flat,
     "Input Data: Stock Weight at Age for Year "},
    {Plot::Maturity, &F::Chart8, &F::lblNoData8, kLines, ByAge, AnySign, Flat,
     "Input Data: Maturity at Age for Year "},
    {Plot::SpawningWeight, &F::Chart11, &F::lblNoData11, kLines, ByAge, AnySign, Flat,
     "Input Data: Spawning Weight at Age for Year "},
    // The deviations of recruitment speak through the note of the maturity page, and never through the one of
    // their own page: whoever looks after maturity's note knows it that way.
    {Plot::RecruitmentDeviations, &F::Chart9, &F::lblNoData8, kLines, ByYear, AnySign, Widened,
     "Input Data: Recruitment Deviations", "Log 1000's of Fish"},
    {Plot::FishingMortalityDeviations, &F::Chart10, &F::lblNoData10, kLines, ByYear, AnySign, Widened,
     "Input Data: Fishing Mortality Deviations", "Log F"},
    {Plot::FisherySelectivity, &F::Chart12, &F::lblNoData12, kLines, ByAge, AnySign, Flat,
     "Input Data: Fishery Selectivity for "},
    {Plot::SurveySelectivity, &F::Chart13, &F::lblNoData13, kLines, ByAge, AnySign, Flat,
     "Input Data: Survey Selectivity for "},
};

const InputPlot& Row(Plot plot) {
  return *std::find_if(std::begin(kPlots), std::end(kPlots),
                       [plot](const InputPlot& row) { return row.plot == plot; });
}

// Texts of cells. They are not written while a drawing reads them.
using Texts = std::vector<std::string_view>;

// The x values of the points, and the span of the x axis.
struct XValues {
  std::vector<double> points;
  double first;
  double last;
};

struct Source {
  Texts y;
  XValues x;
  std::string chosen;
  Texts scale = {};  // cells beside y over which the y axis reaches as well
};

bool IsMissing(const InputPlot& row, std::string_view text) {
  return IsBlank(text) || (row.sign == NotNegative && Val(text) < 0);
}

void ShowNote(const InputPlot& row, const Texts& y) {
  const bool none = std::all_of(y.begin(), y.end(), [&](std::string_view t) { return IsMissing(row, t); });
  (*frmPlotInput.*row.no_data).SetVisible(none);
}

YLimits Limits(const InputPlot& row, const Source& source) {
  YLimits limits;
  for (const Texts* texts : {&source.y, &source.scale}) {
    for (const std::string_view text : *texts) {
      if (row.sign == NotNegative) {
        limits.TakeUpper(Val(text));
      } else {
        limits.Take(Val(text));
      }
    }
  }
  limits.AddMargin();
  if (row.all_zero == Widened && limits.min == 0 && limits.max == 0) limits.max = 0.1;
  return limits;
}

void DrawPoints(Chart& chart, const InputPlot& row, const Source& source) {
  const int n = static_cast<int>(source.y.size());
  OpenPoints(chart, 1, n);
  for (int i = 0; i < n; ++i) {
    const auto at = static_cast<std::size_t>(i);
    chart.SetXValue(0, i, source.x.points[at]);
    chart.SetValue(0, i, IsMissing(row, source.y[at]) ? Chart::Hidden : Val(source.y[at]));
  }
  ClosePoints(chart);
}

// What all drawings have in common once their cells have been read. An empty chart keeps its axes and titles.
void Draw(const InputPlot& row, const Source& source) {
  Chart& chart = *frmPlotInput.*row.chart;
  ShowNote(row, source.y);
  const YLimits limits = Limits(row, source);
  DrawPoints(chart, row, source);
  SetLimits(chart.AxisY, limits.min, limits.max);
  chart.Titles[0] = row.title + source.chosen;
  if (row.y_title) chart.AxisY.Title = row.y_title;
  if (row.y_decimals) chart.AxisY.Decimals = row.y_decimals;
  chart.AxisX.Title = row.along == ByAge ? "Age" : "Year";
  SetLimits(chart.AxisX, source.x.first, source.x.last);
  HideLegend(chart);
  FinishChart(chart, row.gallery, row.along == ByAge ? kMarkersByAge : kMarkersByYear);
  PlotIndex = 0;
}

// Clears the chart, then has its cells read and draws them, unless there is nothing to read.
template <class Read>
void DrawPlot(Plot plot, Read&& read) {
  DrawSilently([&] {
    const InputPlot& row = Row(plot);
    (*frmPlotInput.*row.chart).ClearData();
    const std::optional<Source> source = read();
    if (source) Draw(row, *source);
  });
}

// The same for a plot of one entry of a list: nothing happens unless one is chosen.
template <class Read>
void DrawChosen(Plot plot, Read&& read) {
  if (PlotIndex != 0) DrawPlot(plot, read);
}

Texts RowTexts(const Grid& grid, int row, int first_col, int count) {
  Texts texts;
  for (int i = 0; i < count; ++i) texts.emplace_back(grid.TextMatrix(row, first_col + i));
  return texts;
}

Texts ColumnTexts(const Grid& grid, int col) {
  Texts texts;
  for (int row = 1; row < grid.Rows(); ++row) texts.emplace_back(grid.TextMatrix(row, col));
  return texts;
}

XValues Counted(int first, int last, int count) {
  XValues x{{}, static_cast<double>(first), static_cast<double>(last)};
  for (int i = 0; i < count; ++i) x.points.push_back(first + i);
  return x;
}

XValues Ages(int count) { return Counted(1, count, count); }

// The years in the first column of a grid.
XValues YearCells(const Grid& grid) {
  XValues x{{}, 0, 0};
  for (const std::string_view text : ColumnTexts(grid, 0)) x.points.push_back(Val(text));
  if (!x.points.empty()) {
    x.first = x.points.front();
    x.last = x.points.back();
  }
  return x;
}

// Column 1 of a grid whose first column says the years.
Source YearColumn(const Grid& grid) { return {ColumnTexts(grid, 1), YearCells(grid), ""}; }

// The row of PlotIndex, from a column on, of a grid with a row for each entry of a list.
Source AgeRow(const Grid& grid, int first_col, int ages, const ComboBox& list) {
  return {RowTexts(grid, PlotIndex, first_col, ages), Ages(ages), list.List(PlotIndex - 1)};
}

void DrawYear(Plot plot, const Grid& grid, const ComboBox& list) {
  DrawChosen(plot, [&] { return AgeRow(grid, 1, grid.Cols() - 1, list); });
}

// The ages that a text says, 0 when it says less than 1 or more than the case has.
int AgesToShow(std::string_view text) {
  const double ages = Val(text);
  return ages >= 1 && ages <= NAges ? Int16(ages) : 0;
}

// As many ages of the chosen row as a text says.
std::optional<Source> SelectivityRow(const Grid& grid, std::string_view ages_text, const ComboBox& list) {
  const int ages = AgesToShow(ages_text);
  if (ages == 0) return std::nullopt;
  return AgeRow(grid, 1, ages, list);
}

}  // namespace

void DrawCatchBiomass() {
  DrawPlot(Plot::CatchBiomass, [] {
    const Grid& grid = frmInput->ORVFlexGrid(kGridCatch);
    return Source{ColumnTexts(grid, 1), Counted(NFYear, NXYear, grid.Rows() - 1), ""};
  });
}

void DrawFisheryCpue() {
  DrawPlot(Plot::FisheryCpue, [] {
    if (frmInput->cmdCondenseGrd(kToolCpue).Enabled()) CondenseGrid(kToolCpue);
    return YearColumn(frmInput->ORVFlexGrid(kGridCpue));
  });
}

void DrawRecruitmentDeviations() {
  DrawPlot(Plot::RecruitmentDeviations, [] { return YearColumn(frmPin->ORVFlexGrid1(kPinRecDevs)); });
}

void DrawFishingMortalityDeviations() {
  DrawPlot(Plot::FishingMortalityDeviations, [] { return YearColumn(frmPin->ORVFlexGrid1(kPinFDevs)); });
}

// The axis reaches over all years, so that one year compares with another.
void DrawFisheryAge() {
  DrawChosen(Plot::FisheryAge, [] {
    constexpr int kFirstAgeColumn = 3;
    const Grid& grid = frmInput->ORVFlexGrid(kGridFisheryAge);
    const int ages = grid.Cols() - kFirstAgeColumn;
    Source source = AgeRow(grid, kFirstAgeColumn, ages, frmPlotInput->cboPlot2);
    for (int row = 1; row < grid.Rows(); ++row) {
      const Texts texts = RowTexts(grid, row, kFirstAgeColumn, ages);
      source.scale.insert(source.scale.end(), texts.begin(), texts.end());
    }
    return source;
  });
}

void DrawCatchWeight() {
  DrawYear(Plot::CatchWeight, frmInput->ORVFlexGrid(kGridCatchWeight), frmPlotInput->cboPlot6);
}

void DrawStockWeight() {
  DrawYear(Plot::StockWeight, frmInput->ORVFlexGrid(kGridStockWeight), frmPlotInput->cboPlot7);
}

void DrawMaturity() {
  DrawYear(Plot::Maturity, frmInput->ORVFlexGrid(kGridMaturity), frmPlotInput->cboPlot8);
}

void DrawSpawningWeight() {
  DrawYear(Plot::SpawningWeight, frmInput->ORVFlexGrid(kGridSpawnWeight), frmPlotInput->cboPlot11);
}

namespace {

Texts SurveyAges(int survey, int year) {
  Texts texts;
  for (int age = 1; age <= NAges; ++age) {
    texts.emplace_back(SurvAgeFit(survey, kStoreBeforeAges + age, year - NFYear + 1));
  }
  return texts;
}

// The axis reaches over all ages and years of the survey.
Source ChosenSurveyAges() {
  const ComboBox& surveys = frmPlotInput->cboPlot4a;
  const ComboBox& years = frmPlotInput->cboPlot4b;
  const int survey = surveys.ListIndex() + 1;
  Source source{SurveyAges(survey, ValInt(years.Text())), Ages(NAges),
                surveys.Text() + " for Year " + years.Text()};
  for (int year = SurvFYear(survey); year <= SurvXYear(survey); ++year) {
    const Texts texts = SurveyAges(survey, year);
    source.scale.insert(source.scale.end(), texts.begin(), texts.end());
  }
  return source;
}

Source ChosenSurveyIndex() {
  const int survey = PlotIndex;
  const int first = SurvFYear(survey);
  const int years = SurvNYears(survey);
  Texts index;
  for (int i = 1; i <= years; ++i) index.emplace_back(SurvYearFit(survey, kStoreValue, first - NFYear + i));
  return {index, Counted(first, SurvXYear(survey), years), frmPlotInput->cboPlot5.List(survey - 1)};
}

}  // namespace

void DrawSurveyAge() {
  DrawSilently([] {
    StoreSurveyGrid(kGridSurveyAge);
    DrawChosen(Plot::SurveyAge, ChosenSurveyAges);
  });
}

void DrawSurveyIndex() {
  if (PlotIndex == 0) return;
  DrawSilently([] {
    StoreSurveyGrid(kGridSurveyIndex);
    DrawPlot(Plot::SurveyIndex, ChosenSurveyIndex);
  });
}

void DrawFisherySelectivity() {
  DrawChosen(Plot::FisherySelectivity, []() -> std::optional<Source> {
    const ComboBox& list = frmPlotInput->cboPlot12;
    if (frmPin->frmNonParFishSel1.Visible()) {
      return SelectivityRow(frmPin->ORVFlexGrid1(kPinFisheryByPeriod),
                            frmInput->ORVFlexGrid(kGridFisherySelAges).TextMatrix(PlotIndex, 1), list);
    }
    if (frmPin->frmNonParFishSel2.Visible()) {
      return SelectivityRow(frmPin->ORVFlexGrid1(kPinFisheryAnnual), frmInput->txtFishSelAge.Text(), list);
    }
    return std::nullopt;
  });
}

void DrawSurveySelectivity() {
  DrawChosen(Plot::SurveySelectivity, [] {
    return SelectivityRow(frmPin->ORVFlexGrid1(kPinSurveyByAge),
                          frmInput->ORVFlexGrid(kGridSurveySelAges).TextMatrix(PlotIndex, 1),
                          frmPlotInput->cboPlot13);
  });
}

}  // namespace tarnvik::input_plots
