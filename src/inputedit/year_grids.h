// Grids whose rows are years: a refitted grid keeps each row's values with its year.
#pragma once

#include <cstdint>

namespace tarnvik {

// Refits a year-keyed grid to the wanted years, keeping rows by year; by its number in the case (CaseGrid).
void UpdateYearGrid(int index);

// First year of the recruitment deviations, from cmbNFYear, cmbRecYr, cmbNAges and chkEstimate(5). Raises 6.
std::int16_t RecDevStartYear();
// Refit frmPin grids 0 and 1 to the years selected on the General tab, keeping values by year. The first sets
// NewRecYr and RecYr. Each does nothing unless the combos that it needs have a selection.
void UpdateRecDevGrid();
void UpdateFMortDevGrid();

}  // namespace tarnvik
