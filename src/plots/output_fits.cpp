// Plots of what was observed beside what the model predicts, and of the residuals: option 0 of a page shows
// the former, every further option one kind of residuals.
#include <string>
#include <utility>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/labels.h"
#include "plots/drawing.h"
#include "plots/output_drawings.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// What the model writes for the residual of a year without catch.
constexpr double kNoCatch = -99999;

std::vector<DrawnSeries> ObservedAndPredicted(Points observed, Points predicted) {
  return {{"Observed", std::move(observed), kPoints}, {"Predicted", std::move(predicted), kLines}};
}

// What option k shows of a table by year: observed values from the cells below (row, col), in the columns
// beside it the predicted ones and the kinds of residuals.
std::vector<DrawnSeries> FitByYear(const Grid& grid, int row, int col, int k) {
  if (k > 0) return {{"", PointsDown(grid, row, col + 1 + k, NYears)}};
  return ObservedAndPredicted(PointsDown(grid, row, col, NYears), PointsDown(grid, row, col + 1, NYears));
}

void Hide(Drawing& drawing, bool (*without_data)(double y)) {
  for (DrawnSeries& one : drawing.series) {
    for (double& y : one.y) {
      if (without_data(y)) y = Chart::Hidden;
    }
  }
}

bool IsNegative(double y) { return y < 0; }
bool IsNoCatch(double y) { return y == kNoCatch; }

// A drawing with the settings that go with option k.
Drawing ForOption(int k, Drawing drawing) {
  drawing.gallery = k > 0 ? kBars : kLines;
  drawing.legend = k == 0;
  return drawing;
}

Drawing YearFitDrawing(std::string title, int k) {
  return ForOption(k, YearDrawing(std::move(title), k < 2 ? 0 : 2));
}

void DrawIndexFit(Chart& chart, const Grid& grid, int row, int col, int k, std::string title) {
  Drawing drawing = YearFitDrawing(std::move(title), k);
  drawing.series = FitByYear(grid, row, col, k);
  if (k == 0) Hide(drawing, IsNegative);
  drawing.TakeLimits();
  PutDrawing(chart, std::move(drawing));
}

}  // namespace

void DrawCpueIndex() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart27);
    const char* const titles[] = {"", "Residuals for ", "Log-Scale Residuals for ",
                                  "Standardized Log-Scale Residuals for "};
    const int k = SelectedOption(form.Option27);
    const std::string kind(Trim(form.SSTab1.TabCaption(kPlotCpue)));
    DrawIndexFit(form.Chart27, ResultTable(kTableCpue), 1, 1, k, titles[k] + kind);
  });
}

void output_plots::DrawSurveyIndex() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart3);
    const std::string caption(Trim(frmOutputData->SSTab1.TabCaption(kPageSurveyIndex)));
    form.SSTab1.SetTabCaption(kPlotSurveyIndex, caption);
    TokenFirst(caption);
    const std::string kind(TokenNext(caption));
    const int survey = form.cboPlot3.ListIndex() + 1;
    if (survey < 1) return;
    const int k = SelectedOption(form.Option3a);
    PlotSeriesSel[1] = Int16(k);
    const char* const before[] = {"", "", "Log-Scale ", "Standardized Log-Scale "};
    const std::string title =
        before[k] + kind + (k > 0 ? " Index Residuals for " : " Index for ") + SurveyLabel(survey);
    DrawIndexFit(form.Chart3, ResultTable(kTableSurveyIndex), (survey - 1) * NYears + 1, 2, k, title);
  });
}

// The limits see the mark of a year without catch, although it is not drawn.
void DrawTotalCatch() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart10);
    if (PlotIndex == 0) return;
    const char* const titles[] = {"Catch Biomass (mt)", "Residuals for Catch Biomass",
                                  "Standardized Log-Scale Residuals for Catch Biomass"};
    const int k = PlotIndex - 1;
    Drawing drawing = YearFitDrawing(titles[k], k);
    drawing.series = FitByYear(ResultTable(kTableCatch), 1, 1, k);
    drawing.TakeLimits();
    Hide(drawing, k == 0 ? IsNegative : IsNoCatch);
    if (k == 0) std::swap(drawing.series[0].gallery, drawing.series[1].gallery);
    PutDrawing(form.Chart10, std::move(drawing));
    PlotIndex = 0;
  });
}

namespace {

// Proportions at age: four blocks of NYears rows below row base, observed, predicted and two of residuals.
struct AgeFit {
  Chart& chart;
  const Grid& grid;
  int base;
  int first_age;  // column of age 1
  int year;       // position of the year to draw
  int k;
};

// The limits are those of all years, so that the scale does not jump from year to year.
void DrawAgeFit(const AgeFit& fit, std::string title) {
  const auto points = [&fit](int block, int year) {
    return PointsAcross(fit.grid, fit.base + block * NYears + year, fit.first_age, NAges);
  };
  const auto series = [&](int year) -> std::vector<DrawnSeries> {
    if (fit.k > 0) return {{"", points(fit.k + 1, year)}};
    return ObservedAndPredicted(points(0, year), points(1, year));
  };
  Drawing drawing = ForOption(fit.k, AgeDrawing(std::move(title)));
  for (int year = NYears; year >= 0; --year) {
    drawing.series = series(year > 0 ? year : fit.year);
    if (fit.k == 0) Hide(drawing, IsNegative);
    drawing.TakeLimits();
  }
  PutDrawing(fit.chart, std::move(drawing));
}

// The position of the year chosen in a list that may be limited to some years.
int ChosenYear(const CheckBox& limited, const ComboBox& years) {
  return limited.IsChecked() ? ValInt(years.Text()) - NFYear + 1 : PlotIndex;
}

}  // namespace

void DrawFisheryAgeFit() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart4);
    if (PlotIndex == 0) return;
    const char* const titles[] = {"Fishery Proportion at Age for Year ",
                                  "Fishery Proportion Residuals at Age for Year ",
                                  "Standardized Fishery Proportion Residuals at Age for Year "};
    const int year = ChosenYear(form.Check4, form.cboPlot4);
    const int k = SelectedOption(form.Option4);
    DrawAgeFit({form.Chart4, ResultTable(kTableFisheryAge), 0, 2, year, k},
               titles[k] + std::to_string(NFYear + year - 1));
    PlotIndex = 0;
  });
}

void DrawSurveyAgeFit() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart5);
    const int survey = form.cboPlot5a.ListIndex() + 1;
    if (PlotIndex == 0 || survey < 1) return;
    const char* const titles[] = {"Proportion at Age for Year ", "Proportion Residuals at Age for Year ",
                                  "Standardized Proportion Residuals at Age for Year "};
    const int year = ChosenYear(form.Check5, form.cboPlot5b);
    const int k = SelectedOption(form.Option5);
    DrawAgeFit({form.Chart5, ResultTable(kTableSurveyAge), (survey - 1) * 4 * NYears, 3, year, k},
               titles[k] + std::to_string(NFYear + year - 1) + " for " + SurveyLabel(survey));
    PlotIndex = 0;
  });
}

}  // namespace tarnvik
