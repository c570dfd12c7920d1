#include "inputedit/frmpin.h"

#include "core/closing.h"
#include "core/globals.h"

namespace tarnvik {

PinForm::PinForm() : Form("frmPin", "Input Parameter Values") { Design(); }

bool PinForm::CodeClicksRest() const { return LoadingForm == kTrue; }

void PinForm::QueryUnload(bool& cancel, UnloadMode mode) { frmPin_Form_QueryUnload(cancel, mode); }

void PinForm::Design() {}
void PinForm::Load() {}
void PinForm::Activate() {}

}  // namespace tarnvik
