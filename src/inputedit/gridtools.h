// Tools around the grids of frmInput: condensing, expanding, filling blanks, survey titles, the edit events.
//
// A cell is blank when nothing but blanks stands in it. Surveys and fishery years are often sparse:
// ORVFlexGrid(1) and ORVFlexGrid(5) may show a shorter span than the case.
#pragma once

#include <string>

namespace tarnvik {

// Removes blank years at both ends: 0 for ORVFlexGrid(5), 1 for ORVFlexGrid(1). Fit flags count as data;
// without any data one row for NFYear stays. Blank years inside stay. Sets FishCPUENYears or FishAgeNYears.
void CondenseGrid(int which);
// Brings back all years of the case, NFYear to NXYear; rows are kept by year, those of other years go. Sets
// FishCPUENYears or FishAgeNYears.
void ExpandGrid(int which);
// Fills blank cells with a value: 0 observed CPUE, 1 fishery age composition (both condensed first), 2 age
// composition of the survey selected, also in the per-survey store. Fit flags and sample counts stay as they
// are.
void FillNoData(int which, const std::string& value);

void frmInput_cmdCondenseGrd_Click(int index);
void frmInput_cmdExpandGrd_Click(int index);
// Opens the modal dialog frmFillNoData for the grid of that button.
void frmInput_cmdFillBlanks_Click(int index);
// Opens the modal dialog frmEditTextBox for the title of the survey selected.
void frmInput_lblSurvTitle_Click(int);
// A cell begins to be edited: a condensable grid may be condensed from now on; the first edit of a period's
// start year shows a note, once in the life of the program.
void frmInput_ORVFlexGrid_event9(int index);
// A cell's edit has ended: period labels, the counts of ages to estimate and the per-survey store follow it.
void frmInput_ORVFlexGrid_event1(int index);

}  // namespace tarnvik
