// The renderer of charts, loaded when the first picture is asked for: the windowing library that it needs
// takes longer to load than all else that a session does.
#pragma once

#include <string>

#include "platform/chart.h"

namespace tarnvik {

// Draws a chart into a picture file of 900 x 600: SVG or PDF by the path's ending, else PNG. Raises 53 when
// the renderer does not lie beside the program or cannot be loaded, else what WriteChartPicture of the
// renderer raises.
void DrawWithRenderer(const Chart& chart, const std::string& path);

}  // namespace tarnvik
