// The plot model of a chart as JSON.
#pragma once

#include <string>

#include "platform/chart.h"

namespace tarnvik {

// Titles, axes, settings and series. Hidden points and what was never set are null.
std::string ChartModel(const Chart& chart);

}  // namespace tarnvik
