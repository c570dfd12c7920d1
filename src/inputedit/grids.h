// Shape and labels of the grids of frmInput and frmPin.
//
// A grid has three numbers: its index on its form (InputGrid, PinGrid), its number in the case (CaseGrid) and
// the build index by which it is shaped.
#pragma once

#include "platform/grid.h"

namespace tarnvik {

// Build indices: 1 to 16 the grids of frmInput, 32 to 37 those of frmPin but the two of deviations.
enum BuildIndex : int {
  kBuildCatch = 1,
  kBuildFisheryAge = 2,
  kBuildSurveyAge = 3,
  kBuildSurveyZ = 4,
  kBuildCatchWeight = 5,
  kBuildStockWeight = 6,
  kBuildMaturity = 7,
  kBuildPeriods = 8,
  kBuildSurveyEmphasis = 9,
  kBuildCpue = 10,
  kBuildIndexAges = 11,
  kBuildFisherySelAges = 12,
  kBuildSurveySelAges = 13,
  kBuildSpawnWeight = 14,
  kBuildMMultiplier = 15,
  kBuildSurveyIndex = 16,
  kBuildFisheryCurve = 32,
  kBuildFisheryByPeriod = 33,
  kBuildPinSurveyIndex = 34,
  kBuildSurveyCurve = 35,
  kBuildSurveyByAge = 36,
  kBuildFisheryAnnual = 37,
};

// The number in the case of a grid of frmPin; a grid of frmInput has its index.
inline constexpr int kPinGrids = 100;
constexpr int OnPin(int grid) { return kPinGrids + grid; }
// A grid by its number in the case. Loads the form.
Grid& CaseGrid(int number);

// Sets rows, columns, alignment and headers of one grid from the committed dimensions. Cells already there
// stay where the new size still holds them; a condensed grid (1, 5) keeps its first year when its rows still
// fit. Forces the plus group's multiplier in grid 13 to "1.0", derives and paints the end years of grid 8,
// and shows the fit column of grids 5 and 16 as its box says. Raises 7 "Out of memory" for a table beyond the
// bound, 5-digit dimensions included, and 9 "Subscript out of range" for an index without a grid.
void BuildGrid(int build_index);
// BuildGrid for all grids of frmInput; for all of frmPin, whose deviations are refitted to the years before
// that.
void BuildAllInputGrids();
void BuildAllPinGrids();

// Shows or hides column 2 of ORVFlexGrid(5) by chkFitFishCPUE, of ORVFlexGrid(16) by chkSurvFit.
void ShowFitColumn(int grid);

}  // namespace tarnvik
