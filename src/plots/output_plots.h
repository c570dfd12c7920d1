// The plots of the results of a model run.
#pragma once

namespace tarnvik {

// Fills every list of frmOutput and draws all its charts, and that of the recruitment deviations of frmSTD,
// anew from the tables of results. Does nothing unless the forms of results are open.
void RefreshOutputPlots();

}  // namespace tarnvik
