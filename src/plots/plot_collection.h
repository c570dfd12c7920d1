// The plot collection: one HTML page with a picture of every plot chosen on frmPlotCollect.
#pragma once

namespace tarnvik {

// Writes the page beside the control file and the pictures into a folder beside it; asks before it replaces
// an older collection. Brings the charts of frmOutput and frmSTD into one state after the other by setting
// their selectors, as a user would, and draws all of them anew at the end. Shows the progress in the status
// bar of frmMain, tells where the page lies, and unloads frmPlotCollect. An error of any kind ends it
// silently: the page stays as far as it was written, frmPlotCollect stays open.
void GeneratePlotCollection();

}  // namespace tarnvik
