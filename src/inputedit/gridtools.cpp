#include "inputedit/gridtools.h"

namespace tarnvik {

void CondenseGrid(int) {}
void ExpandGrid(int) {}
void FillNoData(int, const std::string&) {}
void frmInput_cmdCondenseGrd_Click(int) {}
void frmInput_cmdExpandGrd_Click(int) {}
void frmInput_cmdFillBlanks_Click(int) {}
void frmInput_lblSurvTitle_Click(int) {}
void frmInput_ORVFlexGrid_event9(int) {}
void frmInput_ORVFlexGrid_event1(int) {}

}  // namespace tarnvik
