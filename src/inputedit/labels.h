// Labels of surveys and selectivity periods in grids and lists, and the lists of surveys and ages.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

// Where surveys are named: grids of frmInput, its two lists, grids of frmPin.
enum SurveyLabels : int {
  kLabelsSurveyZ = 1,
  kLabelsSurveyEmphasis = 2,
  kLabelsSurveySample = 3,  // listSurvSample
  kLabelsSurveyFit = 4,     // listSurvFit
  kLabelsIndexAges = 5,
  kLabelsSurveySelAges = 6,
  kLabelsPinSurveyIndex = 11,
  kLabelsSurveyCurve = 12,
  kLabelsSurveyByAge = 13,
};

// "Survey <i>", with ": <title>" behind it when the survey has a title of its own.
std::string SurveyLabel(int survey);
// "Select. Period <i>:", the gap, and the span that ORVFlexGrid(8) shows as "<start> - <end>"; "Select.
// Period <i>" alone for a period that the grid does not have.
std::string PeriodLabel(int period, std::string_view gap);
// The two gaps in use: wide in column headers and where a grid is refitted, narrow in the row labels that
// LabelPeriods and BuildGrid write.
inline constexpr const char* kWideGap = "   ";
inline constexpr const char* kNarrowGap = " ";

// Writes survey labels into one grid or list, as far as it has rows or columns for them. The two lists lose
// their marks.
void LabelSurveys(SurveyLabels place);
// Rewrites every place that shows survey labels, after a title has changed.
void RelabelSurveys();
// Writes period labels from the spans in ORVFlexGrid(8) wherever periods are named.
void LabelPeriods();

// Refits ORVFlexGrid(10) and lstCPUEages to NAges; ages that remain keep what they have.
void RefreshAgeLists();
// Empties lstCPUEages and fills it with all ages, all marked, none current.
void FillCpueAges();
// Refits listSurvSample or listSurvFit to NIndex; surveys that remain keep their marks.
void RefreshSurveyLists(SurveyLabels list);

}  // namespace tarnvik
