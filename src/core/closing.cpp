#include "core/closing.h"

namespace tarnvik {

void frmInput_Form_QueryUnload(bool&, UnloadMode) {}
void frmPin_Form_QueryUnload(bool&, UnloadMode) {}

}  // namespace tarnvik
