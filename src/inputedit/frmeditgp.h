// frmEditGP "Edit General Parameter Ranges": which years, how many ages and how many surveys the General tab
// of frmInput offers.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct EditGPForm : Form {
  EditGPForm();
  void Load() override;  // frmEditGP_Form_Load

  Label lblYr0{this, "lblYr0"};
  Label lblYr1{this, "lblYr1"};
  ControlArray<TextBox> txtYr{this, "txtYr", {0, 1}};  // first and last year
  CheckBox chkAuto{this, "chkAuto"};                   // the last year follows the calendar
  Label lblAges{this, "lblAges"};
  TextBox txtAges{this, "txtAges"};
  Label lblSurveys{this, "lblSurveys"};
  TextBox txtSurveys{this, "txtSurveys"};
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<EditGPForm> frmEditGP{"frmEditGP"};

// Shows the ranges in force.
void frmEditGP_Form_Load();
// Shows the current year in the box of the last year and locks it, or frees it.
void frmEditGP_chkAuto_Click(int);
// Checks the boxes, the first fault with a box of its own, and asks when the dimensions in force would not
// fit. Then sets the ranges, writes the settings file, refills the lists of the General tab, which may cut
// the case, and unloads the form. Raises what WriteSettingsFile raises and 7 "Out of memory" for a case
// beyond the bound of a table; the form stays open then.
void frmEditGP_cmdOK_Click(int);
void frmEditGP_cmdCancel_Click(int);

}  // namespace tarnvik
