// frmEditTextBox: one line of text, edited for whoever opens it.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct EditTextBoxForm : Form {
  EditTextBoxForm();
  void Activate() override;  // frmEditTextBox_Form_Activate
  TextBox Text1{this, "Text1"};
  Label lblWhichBox{this, "lblWhichBox"};  // the name of the control whose text is edited
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<EditTextBoxForm> frmEditTextBox{"frmEditTextBox"};

// Marks the whole text.
void frmEditTextBox_Form_Activate();
// Takes the text over as the title of the survey selected, with all labels that show it, and closes the
// dialog.
void frmEditTextBox_cmdOK_Click(int);
void frmEditTextBox_cmdCancel_Click(int);
void frmEditTextBox_Text1_KeyPress(int code);  // Enter acts as cmdOK

}  // namespace tarnvik
