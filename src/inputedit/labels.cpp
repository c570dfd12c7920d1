#include "inputedit/labels.h"

#include <algorithm>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"

namespace tarnvik {

namespace {

enum class Run { Across, Down };  // in row 0, in column 0

// Where a grid shows one label for each survey or period.
struct LabelPlace {
  int grid;  // as CaseGrid has it
  Run run;
  int first;  // the column or row of the first label
};

struct SurveyPlace {
  SurveyLabels labels;
  LabelPlace place;
};

constexpr SurveyPlace kSurveyPlaces[] = {
    {kLabelsSurveyZ, {kGridSurveyZ, Run::Across, 0}},
    {kLabelsSurveyEmphasis, {kGridSurveyEmphasis, Run::Down, 1}},
    {kLabelsIndexAges, {kGridIndexAges, Run::Across, 1}},
    {kLabelsSurveySelAges, {kGridSurveySelAges, Run::Down, 1}},
    {kLabelsPinSurveyIndex, {OnPin(kPinSurveyIndex), Run::Across, 1}},
    {kLabelsSurveyCurve, {OnPin(kPinSurveyCurve), Run::Across, 1}},
    {kLabelsSurveyByAge, {OnPin(kPinSurveyByAge), Run::Down, 1}},
};
constexpr LabelPlace kPeriodPlaces[] = {
    {OnPin(kPinFisheryCurve), Run::Across, 1},
    {kGridFisherySelAges, Run::Down, 1},
    {OnPin(kPinFisheryByPeriod), Run::Down, 1},
};

// Writes label(i) for i = 1 to count, as far as the grid has cells for them.
template <class LabelOf>
void WriteLabels(const LabelPlace& place, int count, LabelOf label) {
  Grid& grid = CaseGrid(place.grid);
  const bool across = place.run == Run::Across;
  const int end = std::min(place.first + count, across ? grid.Cols() : grid.Rows());
  for (int at = place.first; at < end; ++at) {
    grid.SetTextMatrix(across ? 0 : at, across ? at : 0, label(at - place.first + 1));
  }
}

ListBox& SurveyList(SurveyLabels list) {
  return list == kLabelsSurveySample ? frmInput->listSurvSample : frmInput->listSurvFit;
}

}  // namespace

std::string SurveyLabel(int survey) {
  const std::string plain = "Survey " + NumberText(survey);
  return SurvTitle(survey) == plain ? plain : plain + ": " + SurvTitle(survey);
}

std::string PeriodLabel(int period, std::string_view gap) {
  const Grid& periods = frmInput->ORVFlexGrid(kGridPeriods);
  std::string label = "Select. Period " + NumberText(period);
  if (period >= periods.Rows() || periods.Cols() < 3) return label;
  label += ':';
  label += gap;
  return label + periods.TextMatrix(period, 1) + " - " + periods.TextMatrix(period, 2);
}

void LabelSurveys(SurveyLabels place) {
  if (place == kLabelsSurveySample || place == kLabelsSurveyFit) {
    ListBox& list = SurveyList(place);
    list.Clear();
    for (int i = 1; i <= NIndex; ++i) list.AddItem(SurveyLabel(i));
    list.SetListIndex(-1);  // what depends on the marks learns that there are none
    return;
  }
  for (const SurveyPlace& row : kSurveyPlaces) {
    if (row.labels == place) WriteLabels(row.place, NIndex, SurveyLabel);
  }
}

void RelabelSurveys() {
  for (const SurveyPlace& row : kSurveyPlaces) LabelSurveys(row.labels);
  RefreshSurveyLists(kLabelsSurveySample);
  RefreshSurveyLists(kLabelsSurveyFit);
}

void LabelPeriods() {
  const int periods = frmInput->ORVFlexGrid(kGridPeriods).Rows() - 1;
  for (const LabelPlace& place : kPeriodPlaces) {
    const char* const gap = place.run == Run::Across ? kWideGap : kNarrowGap;
    WriteLabels(place, periods, [gap](int i) { return PeriodLabel(i, gap); });
  }
}

void RefreshAgeLists() {
  Grid& index_ages = frmInput->ORVFlexGrid(kGridIndexAges);
  const int labelled = index_ages.Rows();
  index_ages.SetRows(NAges + 1);
  for (int age = labelled; age <= NAges; ++age) index_ages.SetTextMatrix(age, 0, "Age " + NumberText(age));

  ListBox& cpue_ages = frmInput->lstCPUEages;
  while (cpue_ages.ListCount() > NAges) cpue_ages.RemoveItem(cpue_ages.ListCount() - 1);
  for (int age = cpue_ages.ListCount() + 1; age <= NAges; ++age) cpue_ages.AddItem("Age " + NumberText(age));
}

void FillCpueAges() {
  ListBox& ages = frmInput->lstCPUEages;
  ages.Clear();
  for (int age = 1; age <= NAges; ++age) ages.AddItem("Age " + NumberText(age), true);
}

void RefreshSurveyLists(SurveyLabels which) {
  ListBox& list = SurveyList(which);
  while (list.ListCount() > NIndex) list.RemoveItem(list.ListCount() - 1);
  for (int i = 1; i <= list.ListCount(); ++i) list.SetList(i - 1, SurveyLabel(i));
  for (int i = list.ListCount() + 1; i <= NIndex; ++i) list.AddItem(SurveyLabel(i));
  list.SetListIndex(-1);
}

}  // namespace tarnvik
