// Charts on any surface.
#pragma once

#include "platform/chart.h"

class QPaintDevice;

namespace tarnvik {

enum class Painting { Pixels, Vectors };

// Draws the chart over a surface of that size, in its own units. Needs an application object. The series are
// released when the next chart is drawn.
void PaintChart(const Chart& chart, QPaintDevice& device, int width, int height, Painting painting);

}  // namespace tarnvik
