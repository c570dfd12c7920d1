// Labels of surveys and periods, and the lists of surveys and ages.

#include <algorithm>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/grids.h"

namespace tarnvik {

namespace {

// Where a grid shows one label for each survey or period.
struct LabelPlace {
  int set;
  int grid;     // as CaseGrid has it
  bool across;  // in row 0, else in column 0
  int first;    // the column or row of the first label
};

constexpr LabelPlace kSurveyPlaces[] = {
    {1, 3, true, 0},    {2, 9, false, 1},   {5, 10, true, 1},    {6, 12, false, 1},
    {11, 103, true, 1}, {12, 105, true, 1}, {13, 106, false, 1},
};
constexpr LabelPlace kPeriodPlaces[] = {
    {2, 102, true, 1},
    {3, 11, false, 1},
    {4, 104, false, 1},
};

// Writes label(i) for i = 1 to count, as far as the grid has cells for them.
template <class LabelOf>
void WriteLabels(const LabelPlace& place, int count, LabelOf label) {
  Grid& grid = CaseGrid(place.grid);
  const int end = std::min(place.first + count, place.across ? grid.Cols() : grid.Rows());
  for (int at = place.first; at < end; ++at) {
    grid.SetTextMatrix(place.across ? 0 : at, place.across ? at : 0, label(at - place.first + 1));
  }
}

ListBox& SurveyList(int which) { return which == 3 ? frmInput->listSurvSample : frmInput->listSurvFit; }

}  // namespace

std::string SurveyLabel(int survey) {
  const std::string plain = "Survey " + NumberText(survey);
  return SurvTitle(survey) == plain ? plain : plain + ": " + SurvTitle(survey);
}

std::string PeriodLabel(int period, std::string_view gap) {
  const Grid& periods = frmInput->ORVFlexGrid(8);
  std::string label = "Select. Period " + NumberText(period);
  if (period >= periods.Rows() || periods.Cols() < 3) return label;
  label += ':';
  label += gap;
  return label + periods.TextMatrix(period, 1) + " - " + periods.TextMatrix(period, 2);
}

void LabelSurveys(int set) {
  if (set == 3 || set == 4) {
    ListBox& list = SurveyList(set);
    list.Clear();
    for (int i = 1; i <= NIndex; ++i) list.AddItem(SurveyLabel(i));
    list.SetListIndex(-1);  // what depends on the marks learns that there are none
    return;
  }
  for (const LabelPlace& place : kSurveyPlaces) {
    if (place.set == set) WriteLabels(place, NIndex, SurveyLabel);
  }
}

void RelabelSurveys() {
  LabelSurveys(1);
  LabelSurveys(2);
  RefreshSurveyLists(3);
  RefreshSurveyLists(4);
  for (const int set : {5, 6, 11, 12, 13}) LabelSurveys(set);
}

void LabelPeriods(int set) {
  const int periods = frmInput->ORVFlexGrid(8).Rows() - 1;
  for (const LabelPlace& place : kPeriodPlaces) {
    if (place.set != set) continue;
    WriteLabels(place, periods, [&](int i) { return PeriodLabel(i, place.across ? kWideGap : kNarrowGap); });
  }
}

void RefreshAgeLists(int which) {
  if (which == 1) {
    Grid& ages = frmInput->ORVFlexGrid(10);
    const int labelled = ages.Rows();
    ages.SetRows(NAges + 1);
    for (int age = labelled; age <= NAges; ++age) ages.SetTextMatrix(age, 0, "Age " + NumberText(age));
    return;
  }
  ListBox& ages = frmInput->lstCPUEages;
  while (ages.ListCount() > NAges) ages.RemoveItem(ages.ListCount() - 1);
  for (int age = ages.ListCount() + 1; age <= NAges; ++age) ages.AddItem("Age " + NumberText(age));
}

void FillCpueAges() {
  ListBox& ages = frmInput->lstCPUEages;
  ages.Clear();
  for (int age = 1; age <= NAges; ++age) ages.AddItem("Age " + NumberText(age), true);
}

void RefreshSurveyLists(int which) {
  ListBox& list = SurveyList(which);
  while (list.ListCount() > NIndex) list.RemoveItem(list.ListCount() - 1);
  for (int i = 1; i <= list.ListCount(); ++i) list.SetList(i - 1, SurveyLabel(i));
  for (int i = list.ListCount() + 1; i <= NIndex; ++i) list.AddItem(SurveyLabel(i));
  list.SetListIndex(-1);
}

}  // namespace tarnvik
