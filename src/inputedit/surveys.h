// The per-survey store and the selected survey.
//
// Row p of a survey's tables stands for year NFYear + p - 1, whatever the survey's own span is. Only the
// selected survey stands in ORVFlexGrid(15) and (16): its row r there is row SurvFYear - NFYear + r of the
// store.
#pragma once

namespace tarnvik {

// The handlers do nothing while LoadingForm is set.
void frmInput_cmbNIndex_Click(int);
void frmInput_cmbiSurv_Click(int);
// An end year before the start year is refused with a warning and the stored year selected again. The stored
// year itself changes nothing, whatever the other combo shows: a new survey's years are selected one after
// the other.
void frmInput_cmbSurvFYear_Click(int);
void frmInput_cmbSurvXYear_Click(int);

// Raises 7 "Out of memory" when the tables of a case of that size are beyond the bound of a table.
void CheckCaseSize(int years, int ages, int surveys);

// Sizes the store for NIndex surveys, NYears years and NAges ages and gives each survey its default title and
// span and no fit flag. The year cells of both tables stay empty. Beyond the bound of a table the store stays
// as it was, no dimension is in force any more (all 0) and 7 "Out of memory" is raised.
void ReDimSurveys();
// ReDimSurveys; then each survey has the years of the case in its year cells, and the combos of the surveys
// offer what the case has: the first survey, first and last year are selected. For the time that LoadingForm
// is set.
void SetUpSurveys();
// Refits the store to the wanted years: rows keep their year, those outside are lost, new ones are empty. A
// survey's own span is cut, never widened; a survey wholly outside keeps the one year at the near end.
// Refills cmbSurvFYear and cmbSurvXYear, with nothing selected. Does nothing unless cmbNFYear, cmbNXYear and
// cmbNIndex have a selection.
void RefitSurveyYears();
// Refits SurvAgeFit to the wanted ages: ages that remain keep their cells, added ones are empty.
void RefitSurveyAges();
// Applies NewNIndex: sets NIndex, resizes the store, rebuilds grids and lists, selects the first survey. Does
// nothing while LoadingForm is set.
void ChangeSurveyCount();
// Empties cmbiSurv and fills it with "Survey 1" to "Survey <NIndex>".
void FillSurveyCombo();
// Brings the survey selected in cmbiSurv into its controls and grids. A year that the combos do not list
// leaves them without selection.
void ShowSelectedSurvey();
// Brings one survey, the selected one, into ORVFlexGrid(15) and ORVFlexGrid(16).
void LoadSurveyGrids(int survey);
// Copies ORVFlexGrid(15) or (16) into the selected survey's part of the store, but for the years.
void StoreSurveyGrid(int grid);
// The survey selected in cmbiSurv, 0 when there is none.
int SelectedSurvey();

}  // namespace tarnvik
