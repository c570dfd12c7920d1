// frmPlotInput "Input Data and Parameter Values Plots": the state record of 14 tabs, each with one chart.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct PlotInputForm : Form {
  PlotInputForm() : Form("frmPlotInput", "Input Data and Parameter Values Plots") {}
};

inline FormOf<PlotInputForm> frmPlotInput{"frmPlotInput"};

}  // namespace tarnvik
