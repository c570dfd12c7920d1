// The plots of what stands in frmInput and frmPin.
#pragma once

namespace tarnvik {

// Fills every list of frmPlotInput and draws all its charts anew from the forms of input; the pages of M and
// of the selectivities are enabled as the options of the case say. Does nothing unless a data file and a
// parameter file are open. Processes pending events first. Loads frmPlotInput; condenses the grids of fishery
// data while they may be condensed; leaves PlotSeriesSel changed. Shows and raises nothing.
void RefreshInputPlots();

}  // namespace tarnvik
