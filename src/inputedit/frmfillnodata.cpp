#include "inputedit/frmfillnodata.h"

#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/gridtools.h"

namespace tarnvik {

FillNoDataForm::FillNoDataForm() : Form("frmFillNoData", "Fill Blanks With No Data Values") {
  Label1.SetCaption("Current Grid:");
  txtWhichGrid.SetEnabled(false);  // tells which grid is meant; nothing to be typed
  lblNote.SetCaption("Any negative number may be used.");
  cmdOK.SetCaption("Fill Blanks");
  cmdCancel.SetCaption("Cancel");
  cmdOK.OnClick = frmFillNoData_cmdOK_Click;
  cmdCancel.OnClick = frmFillNoData_cmdCancel_Click;
}

void frmFillNoData_cmdOK_Click(int) {
  const std::string which = frmFillNoData->txtWhichGrid.Text();
  const std::string value = frmFillNoData->txtDataVal.Text();
  if (which == "Fishery Age Composition Data") {
    FillNoData(kToolFisheryAge, value);
  } else if (TokenFirst(which) == "Survey") {
    FillNoData(kToolSurveyAge, value);
  } else if (which == "Observed Fishery CPUE Data") {
    FillNoData(kToolCpue, value);
  }
  UnloadForm(frmFillNoData);
}

void frmFillNoData_cmdCancel_Click(int) { UnloadForm(frmFillNoData); }

}  // namespace tarnvik
