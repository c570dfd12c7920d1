#include "plots/output_lists.h"

#include <algorithm>
#include <string>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/labels.h"
#include "platform/host.h"
#include "plots/drawing.h"
#include "plots/frmplotcollect.h"
#include "results/frmoutput.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// A list that has entries comes to its first; the chart is empty otherwise.
void SelectFirst(ComboBox& list, Chart& chart) {
  ClearChart(chart);
  if (list.ListCount() > 0) list.SetListIndex(0);
}

void AddSurveys(ComboBox& list) {
  list.Clear();
  for (int survey = 1; survey <= NIndex; ++survey) list.AddItem(SurveyLabel(survey));
}

void AddAges(ComboBox& list) {
  list.Clear();
  for (int age = 1; age <= NAges; ++age) list.AddItem("Age " + std::to_string(age));
}

void FillSurveyList(ComboBox OutputForm::*list, Chart OutputForm::*chart) {
  DrawSilently([=] {
    AddSurveys(*frmOutput.*list);
    SelectFirst(*frmOutput.*list, *frmOutput.*chart);
  });
}

}  // namespace

void FillNumbersYears() {
  DrawSilently([] {
    frmOutput_cmdClearPlot1_Click(0);
    frmOutput->cboPlot1.FillNumbers(NFYear, NXYear);
  });
}

void FillAges() {
  DrawSilently([] {
    AddAges(frmOutput->cboPlot2);
    SelectFirst(frmOutput->cboPlot2, frmOutput->Chart2);
  });
}

void FillSurveyIndices() { FillSurveyList(&OutputForm::cboPlot3, &OutputForm::Chart3); }
void FillSurveyAges() { FillSurveyList(&OutputForm::cboPlot5a, &OutputForm::Chart5); }
void FillSurveySamples() { FillSurveyList(&OutputForm::cboPlot18, &OutputForm::Chart18); }
void FillSurveySelectivities() { FillSurveyList(&OutputForm::cboPlot14, &OutputForm::Chart14); }

void ShowBiomassSelector() {
  const bool by_year = SelectedOption(frmOutput->Option7) % 2 == 0;
  frmOutput->FramePlot7(0).SetVisible(!by_year);
  frmOutput->FramePlot7(1).SetVisible(by_year);
}

void FillBiomassAtAge() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ShowBiomassSelector();
    form.Combo7(0).FillNumbers(NFYear, NXYear);
    AddAges(form.Combo7(1));
    for (const int list : {0, 1}) SelectFirst(form.Combo7(list), form.Chart7);
  });
}

void EnableSelectivityList() {
  const int option = SelectedOption(frmOutput->Option13);
  for (const int list : {0, 1}) frmOutput->cboPlot13(list).SetEnabled(list == option);
}

void FillFisherySelectivities() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    EnableSelectivityList();
    const Grid& periods = ResultTable(kTableFisherySelectivity);
    form.cboPlot13(0).Clear();
    for (int col = 1; col < periods.Cols(); ++col) form.cboPlot13(0).AddItem(periods.TextMatrix(0, col));
    form.cboPlot13(1).FillNumbers(NFYear, NXYear);
    for (const int list : {0, 1}) SelectFirst(form.cboPlot13(list), form.Chart13);
  });
}

// --- Years with observations

namespace {

// Years whose proportions at age stand in the rows of a table below row base, from column first_age on.
struct AgeYears {
  ComboBox& list;
  bool observed_only;
  const Grid& grid;
  int base;
  int first_age;
};

AgeYears FisheryAgeYears() {
  return {frmOutput->cboPlot4, frmOutput->Check4.IsChecked(), ResultTable(kTableFisheryAge), 0, 2};
}

AgeYears SurveyAgeYears(int survey) {
  return {frmOutput->cboPlot5b, frmOutput->Check5.IsChecked(), ResultTable(kTableSurveyAge),
          (survey - 1) * 4 * NYears, 3};
}

// Fills the list. Where it holds the year wanted, PlotIndex becomes the position of that year, from 1, and
// the result is true.
bool PutYears(const AgeYears& years, int wanted) {
  bool SelectedYearKept = false;
  years.list.Clear();
  for (int i = 1; i <= NYears; ++i) {
    if (years.observed_only && !HasObservedShare(years.grid, years.base + i, years.first_age)) continue;
    const int year = NFYear + i - 1;
    years.list.AddItem(std::to_string(year));
    if (year != wanted) continue;
    PlotIndex = Int16(years.list.ListCount());
    SelectedYearKept = true;
  }
  return SelectedYearKept;
}

bool CollectionInProgress() {
  const Form* collection = frmPlotCollect.Record();
  return collection && collection->Shown;
}

// The same, for the year that the user sees; a year that goes makes way for the first one.
void KeepYear(const AgeYears& years, int wanted) {
  if (PutYears(years, wanted)) return;
  if (years.observed_only && !CollectionInProgress()) {
    ShowMessage(std::string("Current Year Selected Contains Predicted Values Only") + kLineBreak +
                    "Plot Will Reset to First Year With Both Observed and Predicted Values",
                Icon::Information);
  }
  PlotIndex = 1;
}

int SelectedSurvey() { return std::max(frmOutput->cboPlot5a.ListIndex() + 1, 1); }

}  // namespace

void FillFisheryYears() {
  DrawSilently([] {
    PutYears(FisheryAgeYears(), 0);
    SelectFirst(frmOutput->cboPlot4, frmOutput->Chart4);
  });
}

void FillSurveyYears() {
  DrawSilently([] {
    PutYears(SurveyAgeYears(SelectedSurvey()), 0);
    SelectFirst(frmOutput->cboPlot5b, frmOutput->Chart5);
  });
}

void RefillFisheryYears() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart4);
    KeepYear(FisheryAgeYears(), ValInt(form.cboPlot4.Text()));
    form.cboPlot4.SetListIndex(PlotIndex - 1);
  });
}

// The list of a survey comes to the entry behind the year kept, unlike that of the fishery. Users know it so.
// A collection sets every entry by itself and does not stop at the end of the list.
void RefillSurveyYears() {
  DrawSilently([] {
    OutputForm& form = *frmOutput;
    ClearChart(form.Chart5);
    const int survey = SelectedSurvey();
    PlotSeriesSel[2] = Int16(survey - 1);
    int year = ValInt(form.cboPlot5b.Text());
    if (year < NFYear || year > NXYear) year = NFYear;
    KeepYear(SurveyAgeYears(survey), year);
    if (PlotIndex <= form.cboPlot5b.ListCount() - 1) return form.cboPlot5b.SetListIndex(PlotIndex);
    if (!CollectionInProgress()) {
      ShowMessage("Error Plotting Survey Proportion at Age Output Data", Icon::Information);
    }
    ClearChart(form.Chart5);
  });
}

}  // namespace tarnvik
