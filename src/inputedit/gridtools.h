// Tools around the grids of frmInput: condensing, expanding, filling blanks, survey titles, the edit events.
#pragma once

#include <string>

namespace tarnvik {

// Removes blank years at both ends: 0 for ORVFlexGrid(5), 1 for ORVFlexGrid(1). Changes FishCPUENYears or
// FishAgeNYears.
void CondenseGrid(int which);
// Brings back all years of the case; rows are kept by year.
void ExpandGrid(int which);
// Fills blank cells with a value: 0 CPUE, 1 fishery age composition (both condensed first), 2 survey ages.
void FillNoData(int which, const std::string& value);

void frmInput_cmdCondenseGrd_Click(int index);
void frmInput_cmdExpandGrd_Click(int index);
void frmInput_cmdFillBlanks_Click(int index);
void frmInput_lblSurvTitle_Click(int);
void frmInput_ORVFlexGrid_event9(int index);  // a cell begins to be edited
void frmInput_ORVFlexGrid_event1(int index);  // a cell's edit has ended

}  // namespace tarnvik
