// Plots of one curve or bar series per selection, and of up to five curves chosen by the user.
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "core/globals.h"
#include "inputedit/labels.h"
#include "plots/drawing.h"
#include "plots/output_drawings.h"
#include "results/frmoutput.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// The one series of a drawing; the limits are those of its points.
void PutCurve(Chart& chart, Drawing drawing, Points y) {
  drawing.series = {{"", std::move(y)}};
  drawing.TakeLimits();
  PutDrawing(chart, std::move(drawing));
}

double WholeNumber(double y) {
  const double whole = std::nearbyint(y);
  return std::abs(whole) <= std::numeric_limits<std::int32_t>::max() ? whole : Chart::Hidden;
}

}  // namespace

void DrawNumbersAtAge() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart1);
    Drawing drawing = AgeDrawing("Estimated Numbers (000s) of Fish at Age");
    drawing.y_decimals = 0;
    drawing.legend = true;
    for (int j = 1; j <= PlotIndex; ++j) {
      Points numbers = PointsAcross(ResultTable(kTableNumbers), PlotSeriesSel[j], 1, NAges);
      for (double& y : numbers) {
        y = WholeNumber(y);
        if (!IsHidden(y)) drawing.y_limits.TakeUpper(y);
      }
      drawing.series.push_back({form.lblPlot1(j - 1).Caption(), std::move(numbers)});
    }
    PutDrawing(form.Chart1, std::move(drawing));
  });
}

void DrawAgeF() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart2);
    if (PlotIndex == 0) return;
    PutCurve(form.Chart2, YearDrawing("Estimated Fishing Mortality for Age " + std::to_string(PlotIndex), 4),
             PointsDown(ResultTable(kTableAgeF), 1, PlotIndex, NYears));
    PlotIndex = 0;
  });
}

void DrawBiomassAtAge() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart7);
    const char* const names[] = {"Catch Biomass", "Population Biomass", "Spawning Biomass",
                                 "Exploitable Biomass"};
    const int option = SelectedOption(form.Option7);
    const bool by_year = option % 2 == 0;
    const int selected = form.Combo7(by_year ? 1 : 0).ListIndex() + 1;
    if (selected < 1) return;
    const Grid& grid = ResultTable(23 + option / 2);
    const std::string name = names[option / 2];
    Drawing drawing = by_year ? YearDrawing(name + " for Age " + std::to_string(selected))
                              : AgeDrawing(name + " for Year " + form.Combo7(0).Text());
    drawing.y_title = "Biomass (mt)";
    PutCurve(form.Chart7, std::move(drawing),
             by_year ? PointsDown(grid, 1, selected, NYears) : PointsAcross(grid, selected, 1, NAges));
  });
}

void output_plots::DrawFisherySelectivity() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart13);
    if (PlotIndex == 0) return;
    const bool by_period = SelectedOption(form.Option13) == 0;
    const std::string& item = form.cboPlot13(by_period ? 0 : 1).List(PlotIndex - 1);
    Drawing drawing =
        AgeDrawing((by_period ? "Fishery Selectivity for " : "Fishery Selectivity for Year ") + item);
    drawing.gallery = kBars;
    PutCurve(form.Chart13, std::move(drawing),
             by_period ? PointsDown(ResultTable(kTableFisherySelectivity), 1, PlotIndex, NAges)
                       : PointsAcross(ResultTable(kTableAnnualSelectivity), PlotIndex, 1, NAges));
    PlotIndex = 0;
  });
}

void output_plots::DrawSurveySelectivity() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart14);
    if (PlotIndex == 0) return;
    Drawing drawing = AgeDrawing("Selectivity for " + SurveyLabel(PlotIndex));
    drawing.gallery = kBars;
    PutCurve(form.Chart14, std::move(drawing),
             PointsDown(ResultTable(kTableSurveySelectivity), 1, PlotIndex, NAges));
    PlotIndex = 0;
  });
}

void DrawUnfished() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart8);
    const char* const x_titles[] = {"Ages", "Age", "Year"};
    const int option = SelectedOption(form.Option8);
    const std::string& title = form.Option8(option).Caption();
    Drawing drawing = option == 2 ? YearDrawing(title) : AgeDrawing(title);
    drawing.x_title = x_titles[option];
    drawing.x_decimals = 0;
    drawing.y_decimals = 4;
    const int points = option == 2 ? NYears : NAges;
    PutCurve(form.Chart8, std::move(drawing), PointsDown(ResultTable(20 + option), 1, 1, points));
  });
}

namespace {

// Input and estimated sample sizes stand beside each other, from column col on.
void DrawSampleSizes(Chart& chart, std::string title, const Grid& grid, int col) {
  const int rows = grid.Rows() - 1;
  Drawing drawing = YearDrawing(std::move(title), 0);
  drawing.y_title = "Sample Size";
  drawing.legend = true;
  drawing.x = LabelYears(grid);
  drawing.series = {{"Input", PointsDown(grid, 1, col, rows)},
                    {"Estimated", PointsDown(grid, 1, col + 1, rows)}};
  drawing.TakeLimits();
  PutDrawing(chart, std::move(drawing));
}

}  // namespace

void DrawFisherySampleSize() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart17);
    DrawSampleSizes(form.Chart17, "Fishery Age Composition Sample Size", ResultTable(kTableFisherySample), 1);
  });
}

// The name of a survey begins with the word that ends the title.
void DrawSurveySampleSize() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart18);
    if (PlotIndex == 0) return;
    DrawSampleSizes(form.Chart18, "Age Composition Sample Size for " + SurveyLabel(PlotIndex),
                    ResultTable(kTableSurveySample), 2 * PlotIndex - 1);
    PlotIndex = 0;
  });
}

void DrawFvsSsb() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart15);
    Points f = PointsDown(ResultTable(kTableAverageF), 1, 1, NYears);
    Points biomass = PointsDown(ResultTable(kTableBiomass), 1, 3, NYears);
    for (std::size_t i = 0; i < f.size(); ++i) {
      if (!IsHidden(biomass[i])) continue;
      biomass[i] = 0;
      f[i] = Chart::Hidden;
    }
    PutCurve(form.Chart15,
             {.title = "F vs. SSB",
              .x_title = "Spawning Stock Biomass (mt)",
              .y_title = "Estimated Average Annual Fishing Mortality",
              .x_decimals = 0,
              .y_decimals = 2,
              .gallery = kPoints,
              .x = std::move(biomass)},
             std::move(f));
    // The points themselves say how far this axis goes.
    form.Chart15.AxisX.Min.reset();
    form.Chart15.AxisX.Max.reset();
  });
}

}  // namespace tarnvik
