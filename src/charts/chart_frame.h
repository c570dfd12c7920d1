// Everything of a chart but its series: titles, axes, legend box, and where they stand.
#pragma once

#include <QString>
#include <string>
#include <utility>
#include <vector>

#include "charts/chart_scales.h"

class QCPAxisRect;
class QCPLegend;
class QCustomPlot;

namespace tarnvik {

struct ChartFrame {
  std::vector<QCPAxisRect*> panels;  // one; several side by side where horizontal bars are many
  QCPLegend* legend = nullptr;       // null where the chart shows none
};

// Empties the plot and builds the frame of the chart in it, its axes with their ranges.
ChartFrame BuildFrame(const Chart& chart, QCustomPlot& plot);

// The points whose rows stand in a panel of horizontal bars: the first and the one behind the last.
std::pair<std::size_t, std::size_t> PointsOfPanel(const Chart& chart, std::size_t panel);

// A text of the chart on one line, or on several of at most that many characters where it has blanks.
QString WrappedText(const std::string& text, int most);

}  // namespace tarnvik
