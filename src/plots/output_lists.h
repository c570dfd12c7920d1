// The lists of frmOutput from which the user selects what to plot. To fill a list brings it to its first
// entry, whose click handler draws; a list without entries leaves an empty chart. Errors end a routine
// silently.
#pragma once

namespace tarnvik {

void FillNumbersYears();  // cboPlot1; no entry is selected, the years chosen before are dropped
void FillAges();          // cboPlot2
void FillSurveyIndices();
void FillFisheryYears();          // cboPlot4: all years or those with observations, as Check4 says
void FillSurveyAges();            // cboPlot5a
void FillSurveyYears();           // cboPlot5b, for the survey of cboPlot5a: likewise, as Check5 says
void FillSurveySamples();         // cboPlot18
void FillBiomassAtAge();          // Combo7(0) and (1); shows the one that goes with Option7
void FillFisherySelectivities();  // cboPlot13(0) and (1); enables the one that goes with Option13
void FillSurveySelectivities();   // cboPlot14

// Show the list of Combo7 that goes with the option set, enable the one of cboPlot13.
void ShowBiomassSelector();
void EnableSelectivityList();

// After a click on Check4 or Check5: fill the list of years anew and keep the year that is selected, if it is
// still offered. If not, the user is told, unless a plot collection is being made, and another year is
// selected. RefillSurveyYears sets PlotSeriesSel(2) to the survey, from 0.
void RefillFisheryYears();
void RefillSurveyYears();

}  // namespace tarnvik
