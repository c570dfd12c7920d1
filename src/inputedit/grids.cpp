#include "inputedit/grids.h"

namespace tarnvik {

void BuildGrid(int) {}
void BuildAllInputGrids() {}
void BuildAllPinGrids() {}
std::string SurveyLabel(int) { return "True"; }
void LabelSurveys(int) {}
void RelabelSurveys() {}
void LabelPeriods(int) {}
void RefreshAgeLists(int) {}
void FillCpueAges() {}
void RefreshSurveyLists(int) {}

}  // namespace tarnvik
