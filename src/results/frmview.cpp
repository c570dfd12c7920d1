#include "results/frmview.h"

#include "platform/host.h"

namespace tarnvik {

ViewForm::ViewForm() : Form("frmView", "Text Viewer") {
  cmdCopy.SetCaption("Copy");
  cmdCopy.OnClick = frmView_cmdCopy_Click;
  cmdCancel.SetCaption("Cancel");
  cmdCancel.OnClick = frmView_cmdCancel_Click;
}

void ViewForm::Load() { frmView_Form_Load(); }

void frmView_Form_Load() { frmView->rtfView.RightMargin = 2.0; }

void frmView_cmdCopy_Click(int) { TheHost().SetClipboard(frmView->rtfView.SelText()); }

void frmView_cmdCancel_Click(int) { UnloadForm(frmView); }

}  // namespace tarnvik
