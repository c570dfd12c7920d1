#include "results/frmviewopt.h"

#include "core/globals.h"
#include "core/settings.h"
#include "platform/paths.h"
#include "results/viewers.h"

namespace tarnvik {

ViewOptForm::ViewOptForm() : Form("frmViewOpt", "File Viewing Options") {
  optView(0).SetCaption("Use Default File Viewer");
  optView(0).SetValue(true);
  optView(1).SetCaption("Select Program for File Viewing");
  framView.SetCaption("Program Selected for File Viewing");
  lblFile.SetContainer(&framView);
  cmdBrowse.SetContainer(&framView);
  cmdBrowse.SetCaption("Browse");
  cmdOK.SetCaption("Save");
  cmdCancel.SetCaption("Cancel");
  optView.SetHandler(&OptionButton::OnClick, frmViewOpt_optView_Click);
  cmdBrowse.OnClick = frmViewOpt_cmdBrowse_Click;
  cmdOK.OnClick = frmViewOpt_cmdOK_Click;
  cmdCancel.OnClick = frmViewOpt_cmdCancel_Click;
}

void ViewOptForm::Load() { frmViewOpt_Form_Load(); }

void frmViewOpt_Form_Load() {
  if (FileViewerPath.empty()) {
    frmViewOpt->optView(0).SetValue(true);
  } else {
    frmViewOpt->optView(1).SetValue(true);
    frmViewOpt->lblFile.SetCaption(FileViewerPath);
  }
}

void frmViewOpt_optView_Click(int index) {
  if (index == 0) frmViewOpt->lblFile.SetCaption(kNoneSelected);
  frmViewOpt->cmdBrowse.SetEnabled(index != 0);
}

void frmViewOpt_cmdBrowse_Click(int) { BrowseFileViewer(); }

void frmViewOpt_cmdOK_Click(int) {
  const std::string& program = frmViewOpt->lblFile.Caption();
  const bool chosen = frmViewOpt->optView(1).Value() && FileExists(program);
  FileViewerPath = chosen ? program : "";
  WriteSettingsFile();
  UnloadForm(frmViewOpt);
}

void frmViewOpt_cmdCancel_Click(int) { UnloadForm(frmViewOpt); }

}  // namespace tarnvik
