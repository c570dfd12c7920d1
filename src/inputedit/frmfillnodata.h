// frmFillNoData "Fill Blanks With No Data Values".
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct FillNoDataForm : Form {
  FillNoDataForm();
  Label Label1{this, "Label1"};  // "Current Grid:"
  TextBox txtWhichGrid{this, "txtWhichGrid"};
  Label lblExplain{this, "lblExplain"};  // what will be done
  Label lblNote{this, "lblNote"};        // what values will do
  TextBox txtDataVal{this, "txtDataVal"};
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<FillNoDataForm> frmFillNoData{"frmFillNoData"};

// Fills the grid named in txtWhichGrid with the text of txtDataVal and closes the dialog.
void frmFillNoData_cmdOK_Click(int);
void frmFillNoData_cmdCancel_Click(int);

}  // namespace tarnvik
