#include "inputedit/dimensions.h"

namespace tarnvik {

void frmInput_cmbNFYear_Click(int) {}
void frmInput_cmbNXYear_Click(int) {}
void frmInput_cmbNAges_Click(int) {}
void frmInput_cmbSelPer_Click(int) {}
void frmInput_cmbRecYr_Click(int) {}
void RefreshYearCombos() {}
std::int16_t RecDevStartYear() { return 0; }
void ApplyYearChange() {}
void UpdateYearGrid(int) {}
void UpdatePeriodGrid() {}
void UpdateFishAgesGrid() {}
void UpdateSurvAgesGrid() {}
void UpdateFishParGrid() {}
void UpdateFishNonParGrid() {}
void UpdateSurvNonParGrid() {}
void UpdateRecDevGrid() {}
void UpdateFMortDevGrid() {}

}  // namespace tarnvik
