// Shape and labels of the grids of frmInput and frmPin.
//
// The build index names a grid of either form:
//   frmInput: 1 grid 0, 2 grid 1, 3 grid 15, 4 grid 3, 5 grid 6, 6 grid 4, 7 grid 7, 8 grid 8, 9 grid 9,
//             10 grid 5, 11 grid 10, 12 grid 11, 13 grid 12, 14 grid 14, 15 grid 13, 16 grid 16
//   frmPin:   32 grid 2, 33 grid 4, 34 grid 3, 35 grid 5, 36 grid 6, 37 grid 7
#pragma once

#include <string>
#include <string_view>

#include "platform/grid.h"

namespace tarnvik {

// A grid by one number: 0 to 16 of frmInput, 100 and more of frmPin (107 is its grid 7). Loads the form.
Grid& CaseGrid(int number);

// Sets rows, columns, alignment and headers of one grid from the committed dimensions. Cells already there
// stay where the new size still holds them; a condensed grid (1, 5) keeps its first year when its rows still
// fit. Forces the plus group's multiplier in grid 13 to "1.0", derives and paints the end years of grid 8,
// and shows the fit column of grids 5 and 16 as its box says. Raises 7 "Out of memory" for a table beyond the
// bound, 5-digit dimensions included, and 9 "Subscript out of range" for an index without a grid.
void BuildGrid(int build_index);
// BuildGrid for 1 to 16 and for 32 to 37: all grids of frmInput, all of frmPin but the two of deviations.
void BuildAllInputGrids();
void BuildAllPinGrids();

// Shows or hides column 2 of ORVFlexGrid(5) by chkFitFishCPUE, of ORVFlexGrid(16) by chkSurvFit.
void ShowFitColumn(int grid);

// "Survey <i>", with ": <title>" behind it when the survey has a title of its own.
std::string SurveyLabel(int survey);
// "Select. Period <i>:", the gap, and the span that ORVFlexGrid(8) shows as "<start> - <end>"; "Select.
// Period <i>" alone for a period that the grid does not have.
std::string PeriodLabel(int period, std::string_view gap);
// The two gaps in use: wide in column headers and where a grid is refitted, narrow in the row labels that
// LabelPeriods and BuildGrid write.
inline constexpr const char* kWideGap = "   ";
inline constexpr const char* kNarrowGap = " ";

// Writes survey labels into one grid or list, as far as it has rows or columns for them: 1 to 6 on frmInput,
// 11 to 13 on frmPin. The two lists (3, 4) lose their marks.
void LabelSurveys(int set);
// Rewrites every place that shows survey labels, after a title has changed.
void RelabelSurveys();
// Writes period labels from the spans in ORVFlexGrid(8): 2 frmPin grid 2, 3 ORVFlexGrid(11), 4 frmPin grid 4.
void LabelPeriods(int set);

// Refits ORVFlexGrid(10) (1) or lstCPUEages (2) to NAges; ages that remain keep what they have.
void RefreshAgeLists(int which);
// Empties lstCPUEages and fills it with all ages, all marked, none current.
void FillCpueAges();
// Refits listSurvSample (3) or listSurvFit (4) to NIndex; surveys that remain keep their marks.
void RefreshSurveyLists(int which);

}  // namespace tarnvik
