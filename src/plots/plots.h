// The plots of input and output.
#pragma once

#include "platform/form.h"

namespace tarnvik {

// frmPlotInput "Input Data and Parameter Values Plots". The record has no controls yet: nothing loads it, and
// the flows that unload it find it not loaded.
struct PlotInputForm : Form {
  PlotInputForm() : Form("frmPlotInput", "Input Data and Parameter Values Plots") {}
};

inline FormOf<PlotInputForm> frmPlotInput{"frmPlotInput"};

// Draws the input plots anew. There are none yet: pending events are processed, as before a drawing, and that
// is all.
void RefreshInputPlots();
// Draws the output plots anew. There are none yet.
void RefreshOutputPlots();

}  // namespace tarnvik
