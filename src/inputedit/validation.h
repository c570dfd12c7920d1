// Validation of the two input forms.
//
// Both walk the tabs in order and stop at the first fault: the form is shown, the tab selected, a warning
// names the fault. Both set InputValid, false from their start to their last line.
#pragma once

namespace tarnvik {

// Checks frmInput. Nothing changes but for condensed grids (those whose cmdCondenseGrd is enabled) and, when
// a survey is at fault, the survey selected in cmbiSurv. Needs LoadingForm false: each survey is selected in
// turn, and its handler brings it into the grids.
void ValidateInputData();
// Checks frmPin, and the counts of ages to estimate on frmInput, which say how many of its cells are in use.
void ValidateParameters();

}  // namespace tarnvik
