#include "program/frmabout.h"

namespace tarnvik {

AboutForm::AboutForm() : Form("frmAboutTARNVIK", "About Tarnvik") {
  lblTitle.SetCaption("Tarnvik");
  lblVersion.SetCaption("Version 1.4");
  lblDescription.SetCaption("Statistical Catch-at-Age Model");
  lblLicence.SetCaption(
      "Free software under the GNU General Public License, version 3 or later; no warranty");
  cmdOK.SetCaption("OK");
  cmdOK.OnClick = frmAboutTARNVIK_cmdOK_Click;
}

void frmAboutTARNVIK_cmdOK_Click(int) { UnloadForm(frmAboutTARNVIK); }

}  // namespace tarnvik
