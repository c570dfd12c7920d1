#include "core/globals.h"

#include "core/state_names.h"

namespace tarnvik {

void ResetGlobals() {
  for (const StateWord& word : StateWords()) *word.value = 0;
  for (const StateText& text : StateTexts()) text.value->clear();
  SurvFYear.ReDim(0);
  SurvXYear.ReDim(0);
  SurvNYears.ReDim(0);
  SurvTitle.ReDim(0);
  SurvParametric.ReDim(0);
  SurvYearFit.ReDim(0, 0, 0);
  SurvAgeFit.ReDim(0, 0, 0);
  SurveyIndexYears.ReDim(0, 0, 0);
  FishAgeYears.ReDim(0);
  for (std::int16_t& series : PlotSeriesSel) series = 0;
}

}  // namespace tarnvik
