#include "inputedit/options.h"

namespace tarnvik {

void frmInput_chkEstimate_Click(int) {}
void frmInput_chkEstimateLogRec_Click(int) {}
void frmInput_chkEstimateRecDev_Click(int) {}
void frmInput_chkEstimateFMort_Click(int) {}
void frmInput_chkEstimateFMortDev_Click(int) {}
void frmInput_chkEstimateFishGamma_Click(int) {}
void frmInput_chkEstimateFishBeta_Click(int) {}
void frmInput_chkEstimateFishA50_Click(int) {}
void frmInput_chkFishSelNonParEst_Click(int) {}
void frmInput_chkSurvSelParEst_Click(int) {}
void frmInput_chkSurvSelNonParEst_Click(int) {}
void frmInput_opFSelModel_Click(int) {}
void frmInput_opSurvSelModel_Click(int) {}
void frmInput_opFishSelParametric_Click(int) {}
void frmInput_opSurvSelParametric_Click(int) {}
void frmInput_opFishSelNonPar_Click(int) {}
void frmInput_chkShrink_Click(int) {}
void frmInput_opBoot_Click(int) {}
void frmInput_chkFitFishCPUE_Click(int) {}
void frmInput_chkSurvFit_Click(int) {}
void frmInput_listSurvSample_Click(int) {}
void frmInput_txtFishSelAge_LostFocus(int) {}
void ApplyFishSelModel() {}
void ApplySurvSelModel() {}
void PaintFishPeriodGrid() {}
void PaintFishAnnualGrid() {}
void PaintSurvGrid() {}

}  // namespace tarnvik
