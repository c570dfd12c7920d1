#include "plots/output_plots.h"

#include "core/globals.h"
#include "plots/output_drawings.h"
#include "plots/output_lists.h"
#include "plots/plot_parts.h"
#include "results/frmoutput.h"

namespace tarnvik {

namespace {

// In the order of the refresh. A list draws for its first entry; where a handler says more than its drawing
// routine, it is the handler that runs.
void (*const kRoutines[])() = {
    FillNumbersYears,
    FillAges,
    DrawCpueIndex,
    FillSurveyIndices,
    FillFisheryYears,
    FillSurveyAges,
    DrawBiomassTotals,
    FillBiomassAtAge,
    DrawUnfished,
    [] { frmOutput_Option9_Click(0); },
    [] { frmOutput_Option10_Click(0); },
    DrawSurplusProduction,
    [] { frmOutput_Option12_Click(0); },
    FillFisherySelectivities,
    FillSurveySelectivities,
    DrawFvsSsb,
    DrawFRatio,
    DrawBiomassRatio,
    DrawEndNumbers,
    DrawLikelihood,
    DrawFisherySampleSize,
    FillSurveySamples,
    DrawStdRecruitDevs,
    DrawStdFDevs,
};

}  // namespace

void RefreshOutputPlots() {
  if (OutputFormsOpen == kFalse) return;
  for (void (*const routine)() : kRoutines) DrawSilently(routine);
}

}  // namespace tarnvik
