#include "inputedit/frmfillnodata.h"

namespace tarnvik {

void frmFillNoData_cmdOK_Click(int) {}
void frmFillNoData_cmdCancel_Click(int) {}
FillNoDataForm::FillNoDataForm() : Form("frmFillNoData", "Fill Blanks With No Data Values") {}

}  // namespace tarnvik
