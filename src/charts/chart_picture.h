// Charts as pictures: one drawing for the screen and for files.
#pragma once

#include <string>

#include "platform/chart.h"

class QCustomPlot;

namespace tarnvik {

// Fills the plot from the chart, in place of whatever it showed, and asks for a redraw. May be called again
// and again. Changes nothing in the chart.
void ShowChart(const Chart& chart, QCustomPlot& plot);

// Draws the chart into a file of 900 x 600: SVG or PDF by the path's ending, in upper or lower case, else
// PNG. A file is replaced only when the new picture is whole. Creates the application object when there is
// none. Raises 75 "Path/File access error", 76 "Path not found", 70 "Permission denied", and 61 "Disk full".
void WriteChartPicture(const Chart& chart, const std::string& path);

}  // namespace tarnvik
