// Changes of the dimensions of a case: years, ages, selectivity periods, recruitment year.
//
// A handler writes the wanted value (NewNFYear and its like), the update routines reshape the grids to it
// while the old one is still in force, and only then the value in force is overwritten. While LoadingForm is
// set the handlers do nothing: the reader that fills the form shapes the grids itself. A combo without a
// selection is no wish either.
//
// Selecting in a combo by code runs its handler, and the order of the steps relies on it.
#pragma once

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

// Refills cmbRecYr, cmbRefYr and cmbSelPer for the wanted years. A remembered year inside the span, but for
// its ends, and a remembered number of periods that still fits are selected again, else the first item. While
// LoadingForm is set the first item of each, with NewRecYr and NewNSelPer.
void RefreshYearCombos();
// The whole reshaping after a change of first or last year, from NFYear, NXYear, NYears to the wanted ones.
// Leaves FishAgeNYears and FishCPUENYears at the old number of years. Shows the selected survey anew.
void ApplyYearChange();
// The wanted dimensions become those in force; both grids that may be condensed have all years.
void CommitDimensions();
}  // namespace tarnvik
