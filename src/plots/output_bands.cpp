// Plots of an estimate with bands of standard deviations around it.
#include <string>
#include <utility>

#include "core/globals.h"
#include "core/text.h"
#include "plots/drawing.h"
#include "plots/output_drawings.h"
#include "results/frmoutput.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// How many standard deviations above and below the estimate a band lies; 0 for no band.
struct Levels {
  double plus;
  double minus;
};

// FormT is OutputForm or StdForm, which name these boxes alike.
template <class FormT>
Levels LevelsOf(const FormT& form, int band) {
  return {Val(form.txtSTDplus(band).Text()), Val(form.txtSTDminus(band).Text())};
}

struct Estimates {
  Points x;
  Points value;
  Points deviation;
};

// Values of a column and their deviations in the one beside it: a row for each year of the case, or for the
// years that the table names.
Estimates ByYear(const Grid& grid, int col) {
  return {YearsOfCase(), PointsDown(grid, 1, col, NYears), PointsDown(grid, 1, col + 1, NYears)};
}

Estimates ByLabelYear(const Grid& grid, int col) {
  const int rows = grid.Rows() - 1;
  return {LabelYears(grid), PointsDown(grid, 1, col, rows), PointsDown(grid, 1, col + 1, rows)};
}

double Shifted(double value, double level, double deviation) {
  return IsHidden(value) || IsHidden(deviation) ? Chart::Hidden : Drawable(value + level * deviation);
}

Points Band(const Estimates& estimates, double level) {
  Points points;
  for (std::size_t i = 0; i < estimates.value.size(); ++i) {
    points.push_back(Shifted(estimates.value[i], level, estimates.deviation[i]));
  }
  return points;
}

// The lower limit follows the band below, the upper one that above; an estimate without a deviation counts by
// itself.
void TakeBandLimits(YLimits& limits, const Estimates& estimates, Levels levels) {
  const Points low = Band(estimates, -levels.minus);
  const Points high = Band(estimates, levels.plus);
  for (std::size_t i = 0; i < estimates.value.size(); ++i) {
    const double value = estimates.value[i];
    if (IsHidden(value)) continue;
    limits.TakeLower(IsHidden(low[i]) ? value : low[i]);
    limits.TakeUpper(IsHidden(high[i]) ? value : high[i]);
  }
}

void DrawEstimates(Chart& chart, Drawing drawing, Estimates estimates, Levels levels,
                   const std::string& name) {
  TakeBandLimits(drawing.y_limits, estimates, levels);
  if (levels.plus != 0) {
    drawing.series.push_back(
        {"Value + " + NumberText(levels.plus) + " Std Deviations", Band(estimates, levels.plus)});
  }
  if (levels.minus != 0) {
    drawing.series.push_back(
        {"Value - " + NumberText(levels.minus) + " Std Deviations", Band(estimates, -levels.minus)});
  }
  drawing.series.push_back({name, std::move(estimates.value)});
  drawing.x = std::move(estimates.x);
  drawing.legend = true;
  PutDrawing(chart, std::move(drawing));
}

// The standardized residuals that share a chart with the estimates.
void DrawResiduals(Chart& chart, Drawing drawing, Points x, const Grid& grid, int col) {
  drawing.gallery = kBars;
  drawing.series = {{"", PointsDown(grid, 1, col, static_cast<int>(x.size()))}};
  drawing.x = std::move(x);
  drawing.TakeLimits();
  PutDrawing(chart, std::move(drawing));
}

}  // namespace

void DrawBiomassTotals() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart6);
    const int option = SelectedOption(form.Option6);
    const std::string& name = form.Option6(option).Caption();
    DrawEstimates(form.Chart6, YearDrawing(name + " (mt)", 0),
                  ByYear(ResultTable(kTableBiomass), 2 * option + 1), LevelsOf(form, 0), name);
  });
}

void DrawRecruits() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart9);
    const Grid& grid = ResultTable(kTableRecruitment);
    if (SelectedOption(form.Option9) == 1) {
      return DrawResiduals(form.Chart9, YearDrawing("Standardized Log-Scale Residuals for Recruitment", 2),
                           LabelYears(grid), grid, 3);
    }
    DrawEstimates(form.Chart9, YearDrawing("Recruitment (thousands of age-1 recruits)", 0),
                  ByLabelYear(grid, 1), LevelsOf(form, 3), "Recruitment");
  });
}

void DrawSurplusProduction() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart11);
    DrawEstimates(form.Chart11, YearDrawing("Annual Surplus Production (mt)", 0),
                  ByLabelYear(ResultTable(kTableSurplus), 1), LevelsOf(form, 4), "Annual Surplus Production");
  });
}

void DrawAverageF() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart12);
    const Grid& grid = ResultTable(kTableAverageF);
    if (SelectedOption(form.Option12) == 1) {
      return DrawResiduals(form.Chart12,
                           YearDrawing("Standardized Log-Scale Residuals for Fishing Mortality"),
                           YearsOfCase(), grid, 3);
    }
    DrawEstimates(form.Chart12, YearDrawing("Estimated Average Annual Fishing Mortality"), ByYear(grid, 1),
                  LevelsOf(form, 5), "Full F");
  });
}

namespace {

// Where the plot collection looks whether there are ratios of F and of biomass to show. They are not the
// pages on which these plots stand.
constexpr int kPageOfFRatio = 13;
constexpr int kPageOfBiomassRatio = 14;

struct RatioPlot {
  int table;
  const char* name;
  const char* title;
};

// By the option: the target, the limit.
const RatioPlot kFRatios[] = {
    {10, "Ratio Annual F/Target F", "Ratio of Annual Fishing Mortality to Target F"},
    {11, "Ratio Annual F/Limit F", "Ratio of Annual Fishing Mortality to Limit F"}};
const RatioPlot kBiomassRatios[] = {
    {12, "Ratio Annual SB/Target SB", "Ratio of Annual Spawning Biomass to Target Biomass"},
    {13, "Ratio Annual SB/Limit SB", "Ratio of Annual Spawning Biomass to Limit Biomass"}};

bool HasValues(const Grid& grid) {
  for (int row = 1; row < grid.Rows(); ++row) {
    if (grid.TextMatrix(row, 1) != kNotAvailable) return true;
  }
  return false;
}

void DrawRatio(Chart& chart, int page, const RatioPlot& plot, Levels levels) {
  ClearChart(chart);
  const Grid& grid = ResultTable(plot.table);
  const bool available = HasValues(grid);
  frmOutput->SSTab1.SetTabEnabled(page, available);
  if (available) DrawEstimates(chart, YearDrawing(plot.title), ByYear(grid, 1), levels, plot.name);
}

}  // namespace

void DrawFRatio() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    DrawRatio(form.Chart25, kPageOfFRatio, kFRatios[SelectedOption(form.Option25)], LevelsOf(form, 6));
  });
}

void DrawBiomassRatio() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    DrawRatio(form.Chart26, kPageOfBiomassRatio, kBiomassRatios[SelectedOption(form.Option26)],
              LevelsOf(form, 7));
  });
}

void DrawEndNumbers() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart23);
    const bool next_year = SelectedOption(form.Option23) == 1;
    const Grid& grid = ResultTable(kTableNumbers);
    const int row = next_year ? NYears + 1 : NYears;
    Drawing drawing = AgeDrawing(next_year ? "Numbers at Age (Thousands) in Last Year Plus One"
                                           : "Numbers at Age (Thousands) in Last Year");
    drawing.y_decimals = 0;
    DrawEstimates(form.Chart23, std::move(drawing),
                  {Ages(), PointsAcross(grid, row, 1, NAges), PointsAcross(grid, row + 2, 1, NAges)},
                  LevelsOf(form, 8), next_year ? "End+1 N" : "End N");
  });
}

namespace {

void DrawDeviations(Chart StdForm::*chart, int table, int band, const char* name, const char* y_title) {
  StdForm* form = frmSTD.IfLoaded();
  if (!form) return;
  ClearChart(form->*chart);
  if (StdFileRead == kFalse && ParFileRead == kFalse) return;
  Drawing drawing = YearDrawing(name);
  drawing.y_title = y_title;
  DrawEstimates(form->*chart, std::move(drawing), ByLabelYear(ParameterTable(table), 1),
                LevelsOf(*form, band), name);
}

}  // namespace

void DrawStdRecruitDevs() {
  DrawSilently(
      [] { DrawDeviations(&StdForm::Chart19, 0, 1, "Recruitment Deviations", "log 1000's of fish"); });
}

void DrawStdFDevs() {
  DrawSilently([] { DrawDeviations(&StdForm::Chart20, 1, 2, "Fishing Mortality Deviations", "log F"); });
}

}  // namespace tarnvik
