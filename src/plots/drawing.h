// A drawing as a whole: what a routine of the output plots collects from the tables before it goes into a
// chart.
//
// Everything that one drawing sets the next one sets too, so that no picture depends on the one before it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/chart.h"
#include "platform/grid.h"
#include "plots/plot_parts.h"

namespace tarnvik {

// Values in the order of the points; Chart::Hidden where there is nothing to draw.
using Points = std::vector<double>;

struct DrawnSeries {
  std::string legend = {};
  Points y = {};
  std::optional<int> gallery = {};  // that of the drawing where it has none
};

struct Drawing {
  std::string title = {};
  std::string x_title = {};
  std::string y_title = {};
  std::optional<int> x_decimals = {};
  std::optional<int> y_decimals = {};
  int gallery = kLines;
  int markers = kMarkersByYear;
  bool legend = false;
  Points x = {};  // empty where the points are placed by their index
  std::vector<DrawnSeries> series = {};
  YLimits y_limits = {};  // widened by the margin when the drawing is put into a chart

  // Widens the limits of y to all points that are not hidden.
  void TakeLimits();
};

// A number that can be drawn, else Chart::Hidden: a picture with a point near the end of the range of numbers
// shows nothing but that point.
double Drawable(double y);
// The point of a cell: hidden where the model gave no value.
double PointOf(std::string_view text);
inline bool IsHidden(double y) { return y == Chart::Hidden; }

// Points from cells below (row, col), and from cells beside it. Raise 9 "Subscript out of range" outside the
// table.
Points PointsDown(const Grid& grid, int row, int col, int count);
Points PointsAcross(const Grid& grid, int row, int col, int count);

// The x values of the years of the case, of the ages, and those that stand as labels in column 0 of a table.
Points YearsOfCase();
Points Ages();
Points LabelYears(const Grid& grid);

// What the plots by year and those by age have in common, with the x values of all years or all ages.
Drawing YearDrawing(std::string title, std::optional<int> y_decimals = {});
Drawing AgeDrawing(std::string title);

// Takes all data and the legend out of a chart.
void ClearChart(Chart& chart);
// Puts a drawing into a chart that was cleared. The x axis runs from the lowest to the highest x, and has no
// limits where there are none. Raises 380 for a drawing without points.
void PutDrawing(Chart& chart, Drawing drawing);

// The option of a group that is set.
int SelectedOption(const ControlArray<OptionButton>& options);

}  // namespace tarnvik
