// What a chart's axes show: the ranges, the steps between labels, the decimals. Knows nothing of drawing.
#pragma once

#include <cstddef>
#include <optional>

#include "platform/chart.h"

namespace tarnvik {

// How a series is drawn.
enum class Look { Line, Bars, Points, FilledCurve, HorizontalBars };

// Whether the chart lies on its side: points go up the vertical axis, values to the right. All series of such
// a chart are horizontal bars, those of another never.
bool IsHorizontal(const Chart& chart);
Look LookOf(const Chart& chart, const ChartSeries& series);

// Whether a value has a place in a picture: not the hidden marker, a number, and one that leaves room for
// arithmetic.
bool IsDrawn(double value);

// Where a point stands: its x value or, where there is none and among rows, its number from 1.
double PlaceOf(const Chart& chart, const ChartSeries& series, std::size_t point);
// The smallest distance between neighbouring places of a chart's bars, 1 where there are no neighbours.
double BarSpacing(const Chart& chart);
// The points of the series with the most of them.
std::size_t PointCount(const Chart& chart);

struct Scale {
  double lower = 0;
  double upper = 1;             // always above lower, by enough to divide
  bool known = false;           // from the chart's limits or data; else there is nothing to label
  bool whole = false;           // years, ages: no labels between them
  std::optional<int> decimals;  // of the labels; as many as the step needs where nothing is set
  double Span() const { return upper - lower; }
};

// The axis of places (years, ages): the chart's limits, else those of the data; where there are bars, half a
// bar's room more on both sides.
Scale PlaceScale(const Chart& chart);
// The axis of values: the chart's limits, else those of the data with a margin.
Scale ValueScale(const Chart& chart);

// The smallest round step that gives at most that many.
double TickStep(const Scale& scale, int most);
// The decimals of labels that far apart.
int LabelDecimals(const Scale& scale, double step);

}  // namespace tarnvik
