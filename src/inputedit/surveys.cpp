#include "inputedit/surveys.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"
#include "inputedit/grids.h"
#include "inputedit/labels.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

using TextTable = SurveyTable<std::string>;

std::string DefaultTitle(int survey) { return "Survey " + NumberText(survey); }

// The whole span of the case, the default title, not fitted.
void SetSurveyDefaults(int survey) {
  SurvFYear(survey) = NFYear;
  SurvXYear(survey) = NXYear;
  SurvNYears(survey) = NYears;
  SurvTitle(survey) = DefaultTitle(survey);
  SurvParametric(survey) = 0;
}

void FillYearCells(TextTable& table, int survey) {
  for (int p = 1; p <= table.Rows(); ++p) table(survey, kStoreYear, p) = NumberText(NFYear + p - 1);
}

// A table of other rows and columns with the cells of this one, whose texts move: row p becomes row p +
// shift.
TextTable Refitted(TextTable& table, int last_column, int rows, int shift) {
  TextTable refitted;
  refitted.ReDim(table.Surveys(), last_column, rows);
  const int kept_columns = std::min(table.LastColumn(), refitted.LastColumn());
  const int first = std::max(1, 1 - shift);
  const int last = std::min(table.Rows(), refitted.Rows() - shift);
  for (int survey = 1; survey <= table.Surveys(); ++survey) {
    for (int p = first; p <= last; ++p) {
      for (int column = 0; column <= kept_columns; ++column) {
        refitted(survey, column, p + shift) = std::move(table(survey, column, p));
      }
    }
  }
  return refitted;
}

// Rows of the store that a grid has no business with are left out: a file may give a survey years outside the
// case.
void LoadGrid(Grid& grid, int build_index, const TextTable& table, int survey) {
  grid.Clear();
  BuildGrid(build_index);
  const int offset = SurvFYear(survey) - NewNFYear;
  const int first = std::max(1, 1 - offset);
  const int last = std::min({static_cast<int>(SurvNYears(survey)), grid.Rows() - 1, table.Rows() - offset});
  const int last_column = std::min(grid.Cols() - 1, table.LastColumn());
  for (int row = first; row <= last; ++row) {
    for (int column = 1; column <= last_column; ++column) {
      grid.SetTextMatrix(row, column, table(survey, column, offset + row));
    }
  }
}

void StoreGrid(const Grid& grid, TextTable& table, int survey) {
  const int offset = SurvFYear(survey) - NFYear;
  const int first = std::max(1, 1 - offset);
  const int last = std::min(grid.Rows() - 1, table.Rows() - offset);
  const int last_column = std::min(grid.Cols() - 1, table.LastColumn());
  for (int row = first; row <= last; ++row) {
    for (int column = 1; column <= last_column; ++column) {
      table(survey, column, offset + row) = grid.TextMatrix(row, column);
    }
  }
}

struct PickedYears {
  int survey;
  std::int16_t first;
  std::int16_t last;
};

// The years that the two combos show for the selected survey, when a handler may act on them.
std::optional<PickedYears> SurveyYearsPicked() {
  const int survey = SelectedSurvey();
  if (LoadingForm == kTrue || survey == 0) return std::nullopt;
  const PickedYears picked{survey, ValInt(frmInput->cmbSurvFYear.Text()),
                           ValInt(frmInput->cmbSurvXYear.Text())};
  if (picked.first == 0 || picked.last == 0) return std::nullopt;
  return picked;
}

void ApplySurveySpan(int survey) {
  SurvNYears(survey) = Int16(SurvXYear(survey) - SurvFYear(survey) + 1);
  LoadSurveyGrids(survey);
}

}  // namespace

void CheckCaseSize(int years, int ages, int surveys) {
  CheckTableSize(surveys, ages + 3LL, years);
  CheckTableSize(years + 1LL, ages + 3LL);
}

int SelectedSurvey() { return frmInput->cmbiSurv.ListIndex() + 1; }

void ReDimSurveys() {
  try {
    CheckCaseSize(NYears, NAges, NIndex);
  } catch (const RunTimeError&) {
    // The store is still that of another case: whoever opens the next file must not walk it by these
    // dimensions.
    for (std::int16_t* size : {&NFYear, &NXYear, &NYears, &NAges, &NIndex, &NSelPer, &RecYr}) *size = 0;
    throw;
  }
  SurvFYear.ReDim(NIndex);
  SurvXYear.ReDim(NIndex);
  SurvNYears.ReDim(NIndex);
  SurvTitle.ReDim(NIndex);
  SurvParametric.ReDim(NIndex);
  SurvYearFit.ReDim(NIndex, kStoreFit, NYears);
  SurvAgeFit.ReDim(NIndex, kStoreBeforeAges + NAges, NYears);
  for (int survey = 1; survey <= NIndex; ++survey) SetSurveyDefaults(survey);
}

void SetUpSurveys() {
  ReDimSurveys();
  for (int survey = 1; survey <= NIndex; ++survey) {
    FillYearCells(SurvYearFit, survey);
    FillYearCells(SurvAgeFit, survey);
  }
  FillSurveyCombo();
  frmInput->cmbiSurv.SetListIndex(0);
  frmInput->cmbSurvFYear.FillNumbers(NFYear, NXYear);
  frmInput->cmbSurvFYear.SetListIndex(0);
  frmInput->cmbSurvXYear.FillNumbers(NFYear, NXYear);
  frmInput->cmbSurvXYear.SetListIndex(NYears - 1);
}

void FillSurveyCombo() {
  frmInput->cmbiSurv.Clear();
  for (int survey = 1; survey <= NIndex; ++survey) frmInput->cmbiSurv.AddItem(DefaultTitle(survey));
}

void LoadSurveyGrids(int survey) {
  LoadGrid(frmInput->ORVFlexGrid(kGridSurveyAge), kBuildSurveyAge, SurvAgeFit, survey);
  LoadGrid(frmInput->ORVFlexGrid(kGridSurveyIndex), kBuildSurveyIndex, SurvYearFit, survey);
}

void StoreSurveyGrid(int grid) {
  const int survey = SelectedSurvey();
  if (survey == 0) return;
  if (grid == 15) StoreGrid(frmInput->ORVFlexGrid(kGridSurveyAge), SurvAgeFit, survey);
  if (grid == 16) StoreGrid(frmInput->ORVFlexGrid(kGridSurveyIndex), SurvYearFit, survey);
}

void ShowSelectedSurvey() {
  const int survey = SelectedSurvey();
  if (survey == 0) return;
  SelectNumber(frmInput->cmbSurvFYear, SurvFYear(survey));
  SelectNumber(frmInput->cmbSurvXYear, SurvXYear(survey));
  frmInput->lblSurvTitle.SetCaption(SurvTitle(survey));
  LoadSurveyGrids(survey);
  frmInput->chkSurvFit.SetValue(SurvParametric(survey) ? 1 : 0);
}

void RefitSurveyYears() {
  InputForm& form = *frmInput;
  if (form.cmbNFYear.ListIndex() < 0 || form.cmbNXYear.ListIndex() < 0 || form.cmbNIndex.ListIndex() < 0)
    return;
  CheckCaseSize(NewNYears, SurvAgeFit.LastColumn() - kStoreBeforeAges, NIndex);
  const int shift = NFYear - NewNFYear;
  SurvYearFit = Refitted(SurvYearFit, SurvYearFit.LastColumn(), NewNYears, shift);
  SurvAgeFit = Refitted(SurvAgeFit, SurvAgeFit.LastColumn(), NewNYears, shift);
  for (int survey = 1; survey <= NIndex; ++survey) {
    SurvFYear(survey) = std::max(NewNFYear, std::min(SurvFYear(survey), NewNXYear));
    SurvXYear(survey) = std::max(NewNFYear, std::min(SurvXYear(survey), NewNXYear));
    SurvNYears(survey) = Int16(SurvXYear(survey) - SurvFYear(survey) + 1);
  }
  form.cmbSurvFYear.FillNumbers(NewNFYear, NewNXYear);
  form.cmbSurvXYear.FillNumbers(NewNFYear, NewNXYear);
}

void RefitSurveyAges() {
  SurvAgeFit = Refitted(SurvAgeFit, kStoreBeforeAges + NewNAges, SurvAgeFit.Rows(), 0);
}

void ChangeSurveyCount() {
  if (LoadingForm == kTrue || NewNIndex == NIndex) return;
  const int old_count = NIndex;
  NIndex = NewNIndex;
  SurvFYear.ReDimPreserve(NIndex);
  SurvXYear.ReDimPreserve(NIndex);
  SurvNYears.ReDimPreserve(NIndex);
  SurvYearFit.ReDimSurveys(NIndex);
  SurvAgeFit.ReDimSurveys(NIndex);
  SurvParametric.ReDimPreserve(NIndex);
  SurvTitle.ReDimPreserve(NIndex);
  for (int survey = old_count + 1; survey <= NIndex; ++survey) {
    SetSurveyDefaults(survey);
    FillYearCells(SurvYearFit, survey);
    FillYearCells(SurvAgeFit, survey);
  }
  for (int build_index : {kBuildIndexAges, kBuildSurveyZ, kBuildSurveyEmphasis, kBuildSurveySelAges}) {
    BuildGrid(build_index);
  }
  RefreshSurveyLists(kLabelsSurveyFit);
  RefreshSurveyLists(kLabelsSurveySample);
  for (int build_index : {kBuildPinSurveyIndex, kBuildSurveyCurve, kBuildSurveyByAge}) BuildGrid(build_index);
  FillSurveyCombo();
  if (NIndex > 0) frmInput->cmbiSurv.SetListIndex(0);
}

void frmInput_cmbNIndex_Click(int) {
  ComboBox& count = frmInput->cmbNIndex;
  if (LoadingForm == kTrue || count.ListIndex() < 0) return;
  const std::int16_t surveys = ValInt(count.Text());
  CheckWantedSize(NYears, NAges, surveys);
  NewNIndex = surveys;
  ChangeSurveyCount();
}

void frmInput_cmbiSurv_Click(int) {
  if (LoadingForm == kFalse) ShowSelectedSurvey();
}

void frmInput_cmbSurvFYear_Click(int) {
  const auto picked = SurveyYearsPicked();
  if (!picked || picked->first == SurvFYear(picked->survey)) return;
  if (picked->last < picked->first) {
    ShowMessage(std::string("Please Select a Survey Start Year that Comes BEFORE ") + kLineBreak +
                    "the Survey End Year",
                Icon::Exclamation);
    SelectNumber(frmInput->cmbSurvFYear, SurvFYear(picked->survey));
    return;
  }
  SurvFYear(picked->survey) = picked->first;
  ApplySurveySpan(picked->survey);
}

void frmInput_cmbSurvXYear_Click(int) {
  const auto picked = SurveyYearsPicked();
  if (!picked || picked->last == SurvXYear(picked->survey)) return;
  if (picked->last < picked->first) {
    ShowMessage(std::string("Please Select a Survey End Year that Comes AFTER ") + kLineBreak +
                    "the Survey Start Year",
                Icon::Exclamation);
    SelectNumber(frmInput->cmbSurvXYear, SurvXYear(picked->survey));
    return;
  }
  SurvXYear(picked->survey) = picked->last;
  ApplySurveySpan(picked->survey);
}

}  // namespace tarnvik
