// frmAboutTARNVIK "About Tarnvik".
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct AboutForm : Form {
  AboutForm();
  Label lblTitle{this, "lblTitle"};
  Label lblVersion{this, "lblVersion"};
  Label lblDescription{this, "lblDescription"};
  Label lblLicence{this, "lblLicence"};
  CommandButton cmdOK{this, "cmdOK"};
};

inline FormOf<AboutForm> frmAboutTARNVIK{"frmAboutTARNVIK"};

void frmAboutTARNVIK_cmdOK_Click(int);

}  // namespace tarnvik
