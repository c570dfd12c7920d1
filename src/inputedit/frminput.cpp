#include "inputedit/frminput.h"

#include "core/globals.h"

namespace tarnvik {

InputForm::InputForm() : Form("frmInput", "Input Data") {
  Design();
  BindHandlers();
}

bool InputForm::CodeClicksRest() const { return LoadingForm == kTrue; }

void InputForm::QueryUnload(bool& cancel, UnloadMode mode) { frmInput_Form_QueryUnload(cancel, mode); }

FormLoading::FormLoading() { LoadingForm = kTrue; }

FormLoading::~FormLoading() { LoadingForm = kFalse; }

void ShowPath(Label& label, const std::string& path) {
  const bool none = IsNone(path);
  label.SetCaption(none ? kNoneSelected : path);
  label.SetForeColor(none ? kRed : kBlue);
}

}  // namespace tarnvik
