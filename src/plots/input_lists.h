// The lists of frmPlotInput: what they offer and what a choice draws.
#pragma once

namespace tarnvik {

// A click clears the chart of the list, hands the choice over in PlotIndex, from 1, and draws. Nothing chosen
// leaves the chart cleared. cboPlot4a, the survey, also refills cboPlot4b with the survey's years; both put
// the survey into PlotSeriesSel(1).
void frmPlotInput_cboPlot2_Click(int);
void frmPlotInput_cboPlot4a_Click(int);
void frmPlotInput_cboPlot4b_Click(int);
void frmPlotInput_cboPlot5_Click(int);
void frmPlotInput_cboPlot6_Click(int);
void frmPlotInput_cboPlot7_Click(int);
void frmPlotInput_cboPlot8_Click(int);
void frmPlotInput_cboPlot11_Click(int);
void frmPlotInput_cboPlot12_Click(int);
void frmPlotInput_cboPlot13_Click(int);

namespace input_plots {

// Each refills a list from the forms of input and chooses the first entry, whose click draws; the chart of a
// list that stays empty is cleared. Whatever goes wrong ends the routine silently.
void FillFisheryAgeYears();  // condenses ORVFlexGrid(1) first while it may be condensed
void FillSurveyAgeCombos();  // cboPlot4a and cboPlot4b; zeroes PlotSeriesSel first
void FillSurveyAgeYears();   // cboPlot4b, for the survey chosen in cboPlot4a
void FillSurveyIndexCombo();
void FillCatchWeightYears();
void FillStockWeightYears();
void FillMaturityYears();
void FillSpawningWeightYears();
// Periods or years, whichever grid of nonparametric selectivity frmPin shows; zeroes PlotSeriesSel.
void FillFisherySelectivityCombo();
void FillSurveySelectivityCombo();

}  // namespace input_plots

}  // namespace tarnvik
