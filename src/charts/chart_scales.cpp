#include "charts/chart_scales.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace tarnvik {

namespace {

constexpr double kLargest = 1e200;  // beyond that there is no room for arithmetic on pixels
constexpr double kMargin = 0.05;
constexpr int kMostDecimals = 12;

struct Limits {
  double lower = std::numeric_limits<double>::infinity();
  double upper = -std::numeric_limits<double>::infinity();
  void Take(double value) {
    lower = std::min(lower, value);
    upper = std::max(upper, value);
  }
  bool Any() const { return lower <= upper; }
};

Limits PlacesOf(const Chart& chart) {
  Limits limits;
  for (const ChartSeries& series : chart.AllSeries()) {
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      if (IsDrawn(PlaceOf(chart, series, i))) limits.Take(PlaceOf(chart, series, i));
    }
  }
  return limits;
}

// Bars and fills begin at 0, so that 0 is part of them.
Limits ValuesOf(const Chart& chart) {
  Limits limits;
  for (const ChartSeries& series : chart.AllSeries()) {
    const Look look = LookOf(chart, series);
    if (look != Look::Line && look != Look::Points) limits.Take(0);
    for (const double value : series.Y) {
      if (IsDrawn(value)) limits.Take(value);
    }
  }
  return limits;
}

bool AllPlacesWhole(const Chart& chart) {
  bool any = false;
  for (const ChartSeries& series : chart.AllSeries()) {
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      const double place = PlaceOf(chart, series, i);
      if (!IsDrawn(place)) continue;
      if (std::abs(place) > 1e9 || place != std::floor(place)) return false;
      any = true;
    }
  }
  return any;
}

bool IsTitleOfWholeNumbers(const std::string& title) {
  return title == "Year" || title == "Years" || title == "Age" || title == "Ages";
}

// Puts the chart's own limits over those of the data and sees that something lies between them. `room` is
// what a range without extent gets on both sides.
Scale ScaleOf(const ChartAxis& axis, Limits data, double room) {
  Scale scale;
  if (axis.Decimals) scale.decimals = std::clamp(*axis.Decimals, 0, kMostDecimals);
  Limits limits = data;
  const bool has_min = axis.Min && IsDrawn(*axis.Min);
  const bool has_max = axis.Max && IsDrawn(*axis.Max);
  if (has_min) limits.lower = *axis.Min;
  if (has_max) limits.upper = *axis.Max;
  if (!std::isfinite(limits.lower) && !std::isfinite(limits.upper)) return scale;
  if (!std::isfinite(limits.lower)) limits.lower = limits.upper;
  if (!std::isfinite(limits.upper)) limits.upper = limits.lower;
  // Limits that leave nothing between them, over data that has an extent, are no limits.
  if (limits.lower == limits.upper && data.Any()) {
    limits.Take(data.lower);
    limits.Take(data.upper);
  }
  // A limit of the chart's and one of the data may lie the wrong way round.
  scale.lower = std::min(limits.lower, limits.upper);
  scale.upper = std::max(limits.lower, limits.upper);
  scale.known = true;
  const double size = std::max(std::abs(scale.lower), std::abs(scale.upper));
  if (scale.Span() <= std::max(size * 1e-9, 1e-200)) {
    scale.lower -= std::max(room, size * 1e-6);
    scale.upper += std::max(room, size * 1e-6);
  }
  return scale;
}

}  // namespace

bool IsHorizontal(const Chart& chart) { return chart.Gallery == 20; }

Look LookOf(const Chart& chart, const ChartSeries& series) {
  if (IsHorizontal(chart)) return Look::HorizontalBars;
  switch (series.Gallery.value_or(chart.Gallery.value_or(1))) {
    case 2:
    case 20:
      return Look::Bars;
    case 4:
      return Look::Points;
    case 19:
      return Look::FilledCurve;
    default:
      return Look::Line;
  }
}

bool IsDrawn(double value) { return std::abs(value) < kLargest; }

double PlaceOf(const Chart& chart, const ChartSeries& series, std::size_t point) {
  return !IsHorizontal(chart) && point < series.X.size() ? series.X[point] : static_cast<double>(point) + 1;
}

double BarSpacing(const Chart& chart) {
  std::vector<double> places;
  for (const ChartSeries& series : chart.AllSeries()) {
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      if (IsDrawn(PlaceOf(chart, series, i))) places.push_back(PlaceOf(chart, series, i));
    }
  }
  std::sort(places.begin(), places.end());
  double spacing = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < places.size(); ++i) {
    if (places[i] > places[i - 1]) spacing = std::min(spacing, places[i] - places[i - 1]);
  }
  return std::isfinite(spacing) ? spacing : 1;
}

std::size_t PointCount(const Chart& chart) {
  std::size_t count = 0;
  for (const ChartSeries& series : chart.AllSeries()) count = std::max(count, series.Y.size());
  return count;
}

Scale PlaceScale(const Chart& chart) {
  const auto& all = chart.AllSeries();
  const bool bars =
      std::any_of(all.begin(), all.end(), [&](const auto& s) { return LookOf(chart, s) == Look::Bars; });
  Scale scale = ScaleOf(chart.AxisX, PlacesOf(chart), bars ? 0 : 0.5);
  scale.whole = IsTitleOfWholeNumbers(chart.AxisX.Title) || AllPlacesWhole(chart);
  if (bars && scale.known) {
    scale.lower -= BarSpacing(chart) / 2;
    scale.upper += BarSpacing(chart) / 2;
  }
  return scale;
}

Scale ValueScale(const Chart& chart) {
  Limits data = ValuesOf(chart);
  if (data.Any()) {
    const double margin = kMargin * (data.upper - data.lower);
    // Nothing lies below a value axis that begins at 0, nor above one that ends there.
    if (data.lower != 0) data.lower -= margin;
    if (data.upper != 0) data.upper += margin;
  }
  const double size = data.Any() ? std::max(std::abs(data.lower), std::abs(data.upper)) : 0;
  Scale scale = ScaleOf(chart.AxisY, data, size > 0 ? size / 2 : 1);
  // All values are 0: upwards only.
  if (scale.lower == -1 && scale.upper == 1 && size == 0) scale.lower = 0;
  return scale;
}

double TickStep(const Scale& scale, int most) {
  const double least = scale.Span() / std::max(most, 1);
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  double step = 10 * power;
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1 - 1e-9)) {
      step = factor * power;
      break;
    }
  }
  if (scale.whole) return std::max(step, 1.0);
  // Labels closer than their decimals would repeat; an axis with a single label would tell nothing.
  const double smallest = scale.decimals ? std::pow(10.0, -*scale.decimals) : 0;
  return step < smallest && smallest <= scale.Span() ? smallest : step;
}

int LabelDecimals(const Scale& scale, double step) {
  const int needed = std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, kMostDecimals);
  if (!scale.decimals) return needed;
  return std::pow(10.0, -*scale.decimals) <= scale.Span() ? *scale.decimals : needed;
}

}  // namespace tarnvik
