// The questions that frmInput and frmPin ask when they close.
#pragma once

#include "platform/form.h"

namespace tarnvik {

void frmInput_Form_QueryUnload(bool& cancel, UnloadMode mode);
void frmPin_Form_QueryUnload(bool& cancel, UnloadMode mode);

}  // namespace tarnvik
