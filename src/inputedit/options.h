// Selectivity and fitting options: what the check boxes and option groups of frmInput do to phases, labels,
// grids and the frames of frmPin. Each rule runs in a click handler; a reader that sets a value runs it too.
#pragma once

#include <vector>

#include "inputedit/frminput.h"

namespace tarnvik {

void frmInput_chkEstimate_Click(int index);
void frmInput_chkEstimateLogRec_Click(int);
void frmInput_chkEstimateRecDev_Click(int);
void frmInput_chkEstimateFMort_Click(int);
void frmInput_chkEstimateFMortDev_Click(int);
void frmInput_chkEstimateFishGamma_Click(int);
void frmInput_chkEstimateFishBeta_Click(int);
void frmInput_chkEstimateFishA50_Click(int);
void frmInput_chkFishSelNonParEst_Click(int);
void frmInput_chkSurvSelParEst_Click(int index);
void frmInput_chkSurvSelNonParEst_Click(int);
void frmInput_opFSelModel_Click(int);
void frmInput_opSurvSelModel_Click(int);
void frmInput_opFishSelParametric_Click(int);
void frmInput_opSurvSelParametric_Click(int);
void frmInput_opFishSelNonPar_Click(int);
void frmInput_chkShrink_Click(int);
void frmInput_opBoot_Click(int);
void frmInput_chkFitFishCPUE_Click(int);
void frmInput_chkSurvFit_Click(int);
void frmInput_listSurvSample_Click(int);
void frmInput_txtFishSelAge_LostFocus(int);

// Sets the fishery frames of frmPin, swaps ORVFlexGrid(11) and txtFishSelAge, hides or shows the row of log
// gamma.
void ApplyFishSelModel();
// Sets the survey frames of frmPin, hides or shows the log gamma row.
void ApplySurvSelModel();
// Both, when the grids of frmPin have been built anew.
void ApplySelectivityModels();
// Hides the log gamma row of a grid of curve parameters, which keeps what it holds, or shows it.
void ShowLogGammaRow(Grid& parameters, bool flat_topped);
// One estimated item of the form: its box, the label and the field of its phase.
struct EstimatePair {
  CheckBox* check;
  Label* label;
  TextBox* phase;
  bool in_model = true;  // whether the selectivity model in force has the item at all
  const char* tip = "";  // of the phase
};

// All of them, for the options as they are set. Takes the form, since its own design asks too.
std::vector<EstimatePair> EstimatePairs(InputForm& form);

}  // namespace tarnvik
