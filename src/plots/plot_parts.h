// What drawing routines share: the error trap, the limits of the y axis, the blocks of points, titles, the
// names of surveys.
//
// A routine reads texts from tables, fills a chart and keeps nothing. Whatever goes wrong ends it silently
// and leaves the chart as far as it was drawn.
#pragma once

#include <string>

#include "core/globals.h"
#include "platform/chart.h"
#include "platform/grid.h"

namespace tarnvik {

enum Gallery : int { kLines = 1, kBars = 2, kPoints = 4, kFilledCurve = 19, kHorizontalBars = 20 };
// Settings of the markers.
inline constexpr int kMarkersByAge = 1;
inline constexpr int kMarkersByYear = 3;
// The place of a legend box.
inline constexpr int kDockedRight = 0x102;

// The result of an arithmetic, if it is a number. Raises 6 "Overflow" for what a division by zero, a
// logarithm of a number that is not positive or a result beyond the range leaves: such faults end a drawing.
double Finite(double result);

// The limits of the y axis. Both start at 0, so that 0 always lies on the axis.
struct YLimits {
  double min = 0;
  double max = 0;
  void Take(double y);       // widens both limits
  void TakeLower(double y);  // widens the lower limit alone
  void TakeUpper(double y);  // widens the upper limit alone
  void AddMargin();          // 5 % more on both sides; raises 6 "Overflow" beyond the range of numbers
  void AddUpperMargin();     // 5 % more on the upper side alone; the same
};

// Runs a drawing. An error of any kind ends it silently and sets PlotIndex to 0.
template <class Draw>
void DrawSilently(Draw&& draw) noexcept {
  try {
    draw();
  } catch (...) {
    PlotIndex = 0;
  }
}

// Opens the blocks of x and y values, in this order, for that many series and points.
void OpenPoints(Chart& chart, int series, int points);
// Closes both blocks, x first.
void ClosePoints(Chart& chart);
void SetLimits(ChartAxis& axis, double min, double max);
// Shows the legend box of the series at its place, or hides it.
void ShowLegend(Chart& chart);
void HideLegend(Chart& chart);
// The last step of a drawing.
void FinishChart(Chart& chart, int gallery, int marker_setting);

// Whether a row of a table of proportions at age has a share that was observed: at least one cell from a
// column on, of as many as there are ages, that is not "N/A" and above 0. A row beyond the table has none.
bool HasObservedShare(const Grid& shares, int row, int first_age_col);

}  // namespace tarnvik
