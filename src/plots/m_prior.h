// The plot of the prior distribution of natural mortality.
#pragma once

namespace tarnvik {

// Draws frmPlotInput.Chart14: the probability of natural mortality M from 0 to 1, in steps of 0.005, that
// sums to 1 over the steps. Reads M and its CV (frmPin.txtParmFile(0), frmInput.txtEstimate(0)),
// frmInput.txtEpsilon and the form of the distribution from frmInput.cmbMType. The lognormal and the normal
// form show bands of standard deviations; for the gamma form the CV is its shape. Without M, CV or form the
// chart stays empty and lblMNoData shows. A fault of arithmetic ends the routine silently: the chart stays
// empty and lblMNoData as it was.
void DrawMPrior();

}  // namespace tarnvik
