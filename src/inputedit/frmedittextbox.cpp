#include "inputedit/frmedittextbox.h"

#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/labels.h"
#include "inputedit/surveys.h"

namespace tarnvik {

EditTextBoxForm::EditTextBoxForm() : Form("frmEditTextBox", "") {
  lblWhichBox.SetVisible(false);
  cmdOK.SetCaption("OK");
  cmdCancel.SetCaption("Cancel");
  cmdOK.OnClick = frmEditTextBox_cmdOK_Click;
  cmdCancel.OnClick = frmEditTextBox_cmdCancel_Click;
  Text1.OnKeyPress = frmEditTextBox_Text1_KeyPress;
}

void EditTextBoxForm::Activate() { frmEditTextBox_Form_Activate(); }

void frmEditTextBox_Form_Activate() {
  TextBox& box = frmEditTextBox->Text1;
  box.SelStart = 0;
  box.SelLength = static_cast<int>(box.Text().size());
}

void frmEditTextBox_cmdOK_Click(int) {
  const std::string title = frmEditTextBox->Text1.Text();
  const int survey = SelectedSurvey();
  if (frmEditTextBox->lblWhichBox.Caption() == "lblSurvTitle" && survey > 0) {
    frmInput->lblSurvTitle.SetCaption(title);
    SurvTitle(survey) = title;
    RelabelSurveys();
  }
  UnloadForm(frmEditTextBox);
}

void frmEditTextBox_cmdCancel_Click(int) { UnloadForm(frmEditTextBox); }

void frmEditTextBox_Text1_KeyPress(int code) {
  constexpr int kEnter = 13;
  if (code == kEnter) frmEditTextBox_cmdOK_Click(0);
}

}  // namespace tarnvik
