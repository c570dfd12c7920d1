// Which cells of the nonparametric selectivity on frmPin are in use.
#pragma once

namespace tarnvik {

// The warning of a count of ages to estimate that is reset to NewNAges; fleet is "Fishery" or "Survey".
void WarnOfAgeCount(const char* fleet);
// Colour and clear frmPin grids 4, 7 and 6 by the counts of ages to estimate; an invalid count is reset with
// one warning. Only cells that exist are touched.
void PaintFishPeriodGrid();
void PaintFishAnnualGrid();
void PaintSurvGrid();

}  // namespace tarnvik
