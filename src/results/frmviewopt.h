// frmViewOpt "File Viewing Options": chooses the program that shows result files.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct ViewOptForm : Form {
  ViewOptForm();
  void Load() override;                                         // frmViewOpt_Form_Load
  ControlArray<OptionButton> optView{this, "optView", {0, 1}};  // built-in viewer, a program of the user's
  Frame framView{this, "framView"};
  Label lblFile{this, "lblFile"};  // the program chosen, "None Selected" when there is none
  CommandButton cmdBrowse{this, "cmdBrowse"};
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<ViewOptForm> frmViewOpt{"frmViewOpt"};

// Shows FileViewerPath in the controls.
void frmViewOpt_Form_Load();
void frmViewOpt_optView_Click(int index);
void frmViewOpt_cmdBrowse_Click(int);
// Sets FileViewerPath, writes the settings file and unloads the form. A program that does not exist means the
// built-in viewer. Raises what WriteSettingsFile raises; the form stays open then.
void frmViewOpt_cmdOK_Click(int);
void frmViewOpt_cmdCancel_Click(int);

}  // namespace tarnvik
