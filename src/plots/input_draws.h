// The drawings of frmPlotInput but for the prior of M.
//
// Each reads its source, redraws its chart and shows or hides the note that there are no data, then sets
// PlotIndex to 0. Those that draw one year, period or survey draw the one of PlotIndex, and nothing while it
// is 0. An error ends a drawing silently and leaves the chart as far as it was drawn.
#pragma once

namespace tarnvik::input_plots {

void DrawCatchBiomass();
void DrawFisheryCpue();  // condenses ORVFlexGrid(5) first while it may be condensed
void DrawRecruitmentDeviations();
void DrawFishingMortalityDeviations();

void DrawFisheryAge();
void DrawCatchWeight();
void DrawStockWeight();
void DrawMaturity();
void DrawSpawningWeight();

// The grid of the survey on the form of input goes into the store first, so that the store is what is typed.
void DrawSurveyAge();  // the survey and the year chosen in cboPlot4a and cboPlot4b
void DrawSurveyIndex();

// As many ages as the case estimates; a count outside 1 to NAges leaves the chart cleared.
void DrawFisherySelectivity();
void DrawSurveySelectivity();

}  // namespace tarnvik::input_plots
