// The click handlers of frmOutput. Each finds out what is selected, notes it where its drawing routine looks
// for it, and draws; it shows nothing and raises nothing but where that is said.
#pragma once

namespace tarnvik {

// --- Numbers at age. The labels hold the years chosen: PlotIndex and PlotSeriesSel, which every other plot
// uses too, are set from them.
// Adds the year of the list to the years chosen; says so when there are five already.
void frmOutput_cboPlot1_Click(int);
void frmOutput_cmdPlot1_Click(int);  // draws the years chosen, if any
void frmOutput_cmdClearPlot1_Click(int);

// --- Lists
void frmOutput_cboPlot2_Click(int);
void frmOutput_cboPlot3_Click(int);
void frmOutput_cboPlot4_Click(int);
void frmOutput_cboPlot5a_Click(int);  // fills cboPlot5b, which draws
void frmOutput_cboPlot5b_Click(int);
void frmOutput_cboPlot13_Click(int);
void frmOutput_cboPlot14_Click(int);
void frmOutput_cboPlot18_Click(int);
void frmOutput_Combo7_Click(int);

// --- Limits to the years with observations. They may show what RefillFisheryYears and RefillSurveyYears do.
void frmOutput_Check4_Click(int);
void frmOutput_Check5_Click(int);
// Residuals there are only for years with observations: checks Check4, Check5 for them and disables it.
void frmOutput_Option4_Click(int);
void frmOutput_Option5_Click(int);

// --- Options
void frmOutput_Option3a_Click(int);
void frmOutput_Option6_Click(int);
void frmOutput_Option7_Click(int);  // shows the list that goes with the option
void frmOutput_Option8_Click(int);
void frmOutput_Option9_Click(int);  // enables the bands or disables them; so does Option12
void frmOutput_Option10_Click(int);
void frmOutput_Option12_Click(int);
void frmOutput_Option13_Click(int);  // enables the list that goes with the option
void frmOutput_Option23_Click(int);
void frmOutput_Option25_Click(int);
void frmOutput_Option26_Click(int);
void frmOutput_Option27_Click(int);

// --- "Update Plot" beside the bands
void frmOutput_cmdPlot6_Click(int);
void frmOutput_cmdPlot9_Click(int);
void frmOutput_cmdPlot11_Click(int);
void frmOutput_cmdPlot12_Click(int);
void frmOutput_cmdPlot23_Click(int);
void frmOutput_cmdPlot25_Click(int);
void frmOutput_cmdPlot26_Click(int);

// The list of Combo7 and of cboPlot13 that goes with the option set.
void ShowBiomassSelector();
void EnableSelectivityList();

}  // namespace tarnvik
