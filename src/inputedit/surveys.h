// The per-survey store and the selected survey.
#pragma once

namespace tarnvik {

void frmInput_cmbNIndex_Click(int);
void frmInput_cmbiSurv_Click(int);
void frmInput_cmbSurvFYear_Click(int);
void frmInput_cmbSurvXYear_Click(int);

// Sizes the store for NIndex surveys, NYears years and NAges ages and gives each survey its default title and span
// and no fit flag. Raises 7 "Out of memory" beyond the bound of a table. The year cells of both tables stay empty.
void ReDimSurveys();
// Refits the store to the wanted years; a survey's own span is cut, never widened.
void RefitSurveyYears();
// Applies NewNIndex.
void ChangeSurveyCount();
// Empties cmbiSurv and fills it with "Survey 1" to "Survey <NIndex>".
void FillSurveyCombo();
// Brings the survey selected in cmbiSurv into its controls and grids.
void ShowSelectedSurvey();
// Brings one survey into ORVFlexGrid(15) and ORVFlexGrid(16).
void LoadSurveyGrids(int survey);
// Copies ORVFlexGrid(15) or (16) into the selected survey's part of the store.
void StoreSurveyGrid(int grid);
// The survey selected in cmbiSurv, 0 when there is none.
int SelectedSurvey();

}  // namespace tarnvik
