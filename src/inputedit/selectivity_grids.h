// Grids that follow the selectivity periods and the numbers of ages with a parameter.
#pragma once

namespace tarnvik {

// Refit ORVFlexGrid(8), (11), (12) and frmPin grids 2, 4, 6 to the wanted periods, ages and surveys. Each
// does nothing unless the combos that it needs have a selection. The two of ages to estimate reset counts
// beyond NewNAges with one warning.
void UpdatePeriodGrid();
void UpdateFishAgesGrid();
void UpdateSurvAgesGrid();
void UpdateFishParGrid();
void UpdateFishNonParGrid();
void UpdateSurvNonParGrid();

}  // namespace tarnvik
