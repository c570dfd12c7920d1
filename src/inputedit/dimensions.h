// Changes of the dimensions of a case: years, ages, selectivity periods, recruitment year.
//
// A handler writes the wanted value (NewNFYear and its like), the update routines reshape the grids to it
// while the old one is still in force, and only then the value in force is overwritten. While LoadingForm is
// set the handlers do nothing: the reader that fills the form shapes the grids itself. A combo without a
// selection is no wish either.
//
// Selecting in a combo by code runs its handler, and the order of the steps relies on it.
#pragma once

#include <cstdint>

#include "platform/lists.h"

namespace tarnvik {

// When the first year lies behind the last one, the last year becomes the first year itself, with a box that
// says so; and the other way round.
void frmInput_cmbNFYear_Click(int);
void frmInput_cmbNXYear_Click(int);
void frmInput_cmbNAges_Click(int);
void frmInput_cmbSelPer_Click(int);
void frmInput_cmbRecYr_Click(int);

// Selects a number in a combo of consecutive whole numbers; nothing, when it does not list that number.
void SelectNumber(ComboBox& combo, int number);
// Refuses a change to a case beyond the bound of a table while nothing has been reshaped: the combos of the
// General tab show what is in force again and 7 "Out of memory" is raised.
void CheckWantedSize(int years, int ages, int surveys);

// Refills cmbNFYear, cmbNXYear, cmbNAges, cmbNIndex where they no longer match the general parameter ranges,
// keeps the selections as far as the ranges allow and selects anew, which runs the handlers unless
// LoadingForm is set.
void FillGeneralCombos();
// Refills cmbRecYr, cmbRefYr and cmbSelPer for the wanted years. A remembered year inside the span, but for
// its ends, and a remembered number of periods that still fits are selected again, else the first item. While
// LoadingForm is set the first item of each, with NewRecYr and NewNSelPer.
void RefreshYearCombos();
// First year of the recruitment deviations, from cmbNFYear, cmbRecYr, cmbNAges and chkEstimate(5). Raises 6.
std::int16_t RecDevStartYear();
// The whole reshaping after a change of first or last year, from NFYear, NXYear, NYears to the wanted ones.
// Leaves FishAgeNYears and FishCPUENYears at the old number of years. Shows the selected survey anew.
void ApplyYearChange();
// Refits a year-keyed grid to the wanted years, keeping rows by year; 100 and more mean a grid of frmPin.
void UpdateYearGrid(int index);

// Refit ORVFlexGrid(8), (11), (12) and frmPin grids 2, 4, 6 to the wanted periods, ages and surveys. Each
// does nothing unless the combos that it needs have a selection. The two of ages to estimate reset counts
// beyond NewNAges with one warning.
void UpdatePeriodGrid();
void UpdateFishAgesGrid();
void UpdateSurvAgesGrid();
void UpdateFishParGrid();
void UpdateFishNonParGrid();
void UpdateSurvNonParGrid();

// Refit frmPin grids 0 and 1 to the years selected on the General tab, keeping values by year. The first sets
// NewRecYr and RecYr. Each does nothing unless the combos that it needs have a selection.
void UpdateRecDevGrid();
void UpdateFMortDevGrid();

}  // namespace tarnvik
