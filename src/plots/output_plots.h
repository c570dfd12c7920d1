// The plots of the results of a model run.
#pragma once

namespace tarnvik {

// Fills every list of frmOutput and draws all its charts, and those of the deviations of frmSTD, anew from
// the tables of results. Options stay as they are, lists come to their first entry. Does nothing unless the
// forms of results are open. Shows and raises nothing.
void RefreshOutputPlots();

}  // namespace tarnvik
