#include "inputedit/surveys.h"

namespace tarnvik {

void frmInput_cmbNIndex_Click(int) {}
void frmInput_cmbiSurv_Click(int) {}
void frmInput_cmbSurvFYear_Click(int) {}
void frmInput_cmbSurvXYear_Click(int) {}
void ReDimSurveys() {}
void RefitSurveyYears() {}
void ChangeSurveyCount() {}
void FillSurveyCombo() {}
void ShowSelectedSurvey() {}
void LoadSurveyGrids(int) {}
void StoreSurveyGrid(int) {}
int SelectedSurvey() { return 0; }

}  // namespace tarnvik
