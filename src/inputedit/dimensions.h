// Changes of the dimensions of a case: years, ages, selectivity periods, recruitment year.
//
// A handler writes the wanted value (NewNFYear and its like), the update routines reshape the grids to it while the
// old one is still in force, and only then the value in force is overwritten. While LoadingForm is set the handlers
// do nothing: the reader that fills the form shapes the grids itself.
#pragma once

#include <cstdint>

namespace tarnvik {

void frmInput_cmbNFYear_Click(int);
void frmInput_cmbNXYear_Click(int);
void frmInput_cmbNAges_Click(int);
void frmInput_cmbSelPer_Click(int);
void frmInput_cmbRecYr_Click(int);

// Refills cmbNFYear, cmbNXYear, cmbNAges, cmbNIndex where they no longer match the general parameter ranges, keeps
// the selections as far as the ranges allow and selects anew, which runs the handlers unless LoadingForm is set.
void FillGeneralCombos();
// Refills cmbRecYr, cmbRefYr and cmbSelPer for the wanted years.
void RefreshYearCombos();
// First year of the recruitment deviations, from cmbNFYear, cmbRecYr, cmbNAges and chkEstimate(5).
std::int16_t RecDevStartYear();
// The whole reshaping after a change of first or last year.
void ApplyYearChange();
// Refits a year-keyed grid to the wanted years, keeping rows by year; 100 and more mean a grid of frmPin.
void UpdateYearGrid(int index);
void UpdatePeriodGrid();
void UpdateFishAgesGrid();
void UpdateSurvAgesGrid();
void UpdateFishParGrid();
void UpdateFishNonParGrid();
void UpdateSurvNonParGrid();
// Refit frmPin grids 0 and 1, keeping values by year; the first sets RecYr.
void UpdateRecDevGrid();
void UpdateFMortDevGrid();

}  // namespace tarnvik
