// The plots of what stands in frmInput and frmPin.
#pragma once

namespace tarnvik {

// Fills every list of frmPlotInput and draws all its charts anew from the forms of input. Does nothing unless
// a data file and a parameter file are open. Processes pending events first. Loads frmPlotInput.
void RefreshInputPlots();

}  // namespace tarnvik
