// frmView "Text Viewer": shows one text file.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct ViewForm : Form {
  ViewForm();
  void Load() override;  // frmView_Form_Load
  RichText rtfView{this, "rtfView"};
  CommandButton cmdCopy{this, "cmdCopy"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<ViewForm> frmView{"frmView"};

// Makes the lines wrap at twice the width of the box only, so that the long lines of a report stay whole.
void frmView_Form_Load();
// Puts the marked part of the text on the clipboard.
void frmView_cmdCopy_Click(int);
void frmView_cmdCancel_Click(int);

}  // namespace tarnvik
