#include "inputedit/frmedittextbox.h"

namespace tarnvik {

void frmEditTextBox_cmdOK_Click(int) {}
void frmEditTextBox_cmdCancel_Click(int) {}
void frmEditTextBox_Text1_KeyPress(int) {}
EditTextBoxForm::EditTextBoxForm() : Form("frmEditTextBox", "") {}
void EditTextBoxForm::Activate() {}

}  // namespace tarnvik
