// The drawing routines of the output plots, by what a drawing consists of. Each reads the tables of results
// and the selectors of its page, clears its chart first, and ends silently when anything goes wrong.
//
// Those that draw what PlotIndex says leave an empty chart when it is 0, and set it to 0 when they have
// drawn.
#pragma once

namespace tarnvik {

// --- What was observed, what the model predicts, and the residuals
void DrawCpueIndex();      // Chart27
void DrawTotalCatch();     // Chart10: PlotIndex is the option from 1
void DrawFisheryAgeFit();  // Chart4: PlotIndex is the position of the year, unless Check4 limits the list
void DrawSurveyAgeFit();   // Chart5: likewise with Check5

// --- A value with bands of standard deviations
void DrawBiomassTotals();      // Chart6
void DrawRecruits();           // Chart9
void DrawSurplusProduction();  // Chart11
void DrawAverageF();           // Chart12
// Charts 25 and 26. Each also makes a page of frmOutput available or not: 13 and 14, whether or not the table
// chosen has a value.
void DrawFRatio();
void DrawBiomassRatio();
void DrawEndNumbers();  // Chart23
// Charts 19 and 20 of frmSTD, which stays unloaded where it is: empty until a file with parameters was read.
void DrawStdRecruitDevs();
void DrawStdFDevs();

// --- Curves
// Chart1: PlotIndex years, whose rows are PlotSeriesSel(1) to PlotSeriesSel(PlotIndex) and whose names stand
// in lblPlot1. Changes neither.
void DrawNumbersAtAge();
void DrawAgeF();               // Chart2: PlotIndex is the age
void DrawBiomassAtAge();       // Chart7
void DrawUnfished();           // Chart8
void DrawFisherySampleSize();  // Chart17
void DrawSurveySampleSize();   // Chart18: PlotIndex is the survey
void DrawFvsSsb();             // Chart15

// --- Bars of the likelihood components
void DrawLikelihood();  // Chart16

// The input plots have routines of these names, too.
namespace output_plots {
void DrawSurveyIndex();         // Chart3; names the page like that of frmOutputData; PlotSeriesSel(1) becomes
                                // the option
void DrawFisherySelectivity();  // Chart13: PlotIndex is the period or the year's position
void DrawSurveySelectivity();   // Chart14: PlotIndex is the survey
}  // namespace output_plots

}  // namespace tarnvik
