// Validation of the two input forms.
//
// Both walk the tabs in order and stop at the first fault: the form is shown, the tab selected, a warning names the
// fault. Both set InputValid, false from their start to their last line; nothing else changes, but for condensed
// grids and the survey selected in cmbiSurv when a survey is at fault.
#pragma once

namespace tarnvik {

void ValidateInputData();   // frmInput
void ValidateParameters();  // frmPin

}  // namespace tarnvik
