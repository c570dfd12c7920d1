#include "plots/drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/text.h"

namespace tarnvik {

namespace {

constexpr int kYValues = 1;
constexpr double kLargestDrawn = 1e307;

Points Numbers(int first, int count) {
  Points numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(first + i);
  return numbers;
}

void PutPoints(Chart& chart, const Drawing& drawing) {
  const int series = static_cast<int>(drawing.series.size());
  const int points = series > 0 ? static_cast<int>(drawing.series[0].y.size()) : 0;
  const bool with_x = !drawing.x.empty();
  if (with_x) {
    OpenPoints(chart, series, points);
  } else {
    chart.OpenData(kYValues, series, points);
  }
  for (int s = 0; s < series; ++s) {
    const DrawnSeries& one = drawing.series[static_cast<std::size_t>(s)];
    for (int i = 0; i < points; ++i) {
      const auto at = static_cast<std::size_t>(i);
      if (with_x) chart.SetXValue(s, i, drawing.x[at]);
      chart.SetValue(s, i, one.y[at]);
    }
    chart.Series(s).Legend = one.legend;
    chart.Series(s).Gallery = one.gallery;
  }
  if (with_x) {
    ClosePoints(chart);
  } else {
    chart.CloseData(kYValues);
  }
}

}  // namespace

void Drawing::TakeLimits() {
  for (const DrawnSeries& one : series) {
    for (const double y : one.y) {
      if (!IsHidden(y)) y_limits.Take(y);
    }
  }
}

double Drawable(double y) { return std::abs(y) <= kLargestDrawn ? y : Chart::Hidden; }

double PointOf(std::string_view text) { return text == kNotAvailable ? Chart::Hidden : Drawable(Val(text)); }

Points PointsDown(const Grid& grid, int row, int col, int count) {
  Points points;
  for (int i = 0; i < count; ++i) points.push_back(PointOf(grid.TextMatrix(row + i, col)));
  return points;
}

Points PointsAcross(const Grid& grid, int row, int col, int count) {
  Points points;
  for (int i = 0; i < count; ++i) points.push_back(PointOf(grid.TextMatrix(row, col + i)));
  return points;
}

Points YearsOfCase() { return Numbers(NFYear, NYears); }

Points Ages() { return Numbers(1, NAges); }

Points LabelYears(const Grid& grid) {
  Points years;
  for (int row = 1; row < grid.Rows(); ++row) {
    const double year = PointOf(grid.TextMatrix(row, 0));
    years.push_back(IsHidden(year) ? 0 : std::nearbyint(year));
  }
  return years;
}

Drawing YearDrawing(std::string title, std::optional<int> y_decimals) {
  return {.title = std::move(title), .x_title = "Year", .y_decimals = y_decimals, .x = YearsOfCase()};
}

Drawing AgeDrawing(std::string title) {
  return {.title = std::move(title), .x_title = "Age", .markers = kMarkersByAge, .x = Ages()};
}

void ClearChart(Chart& chart) {
  chart.ClearData();
  HideLegend(chart);
}

void PutDrawing(Chart& chart, Drawing drawing) {
  PutPoints(chart, drawing);
  drawing.y_limits.AddMargin();
  SetLimits(chart.AxisY, drawing.y_limits.min, drawing.y_limits.max);
  if (drawing.x.empty()) {
    chart.AxisX.Min.reset();
    chart.AxisX.Max.reset();
  } else {
    const auto [lowest, highest] = std::minmax_element(drawing.x.begin(), drawing.x.end());
    SetLimits(chart.AxisX, *lowest, *highest);
  }
  chart.AxisX.Title = drawing.x_title;
  chart.AxisY.Title = drawing.y_title;
  chart.AxisX.Decimals = drawing.x_decimals;
  chart.AxisY.Decimals = drawing.y_decimals;
  chart.Titles[0] = drawing.title;
  if (drawing.legend) {
    ShowLegend(chart);
  } else {
    HideLegend(chart);
  }
  FinishChart(chart, drawing.gallery, drawing.markers);
}

int SelectedOption(const ControlArray<OptionButton>& options) {
  int selected = 0;
  options.ForEach([&](const OptionButton& option) {
    if (option.Value()) selected = option.Index();
  });
  return selected;
}

}  // namespace tarnvik
