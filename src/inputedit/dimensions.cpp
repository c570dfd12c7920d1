#include "inputedit/dimensions.h"

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/gridtools.h"
#include "inputedit/labels.h"
#include "inputedit/selectivity_grids.h"
#include "inputedit/surveys.h"
#include "inputedit/year_grids.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

// The first item when the list no longer has that one; none when it is empty.
void SelectOrFirst(ComboBox& combo, int item) {
  if (combo.ListCount() > 0) combo.SetListIndex(item > 0 && item < combo.ListCount() ? item : 0);
}

// A year at either end of the span, or outside it, does not count as remembered.
void SelectRemembered(ComboBox& combo, int year) {
  const bool inside = year > NewNFYear && year < NewNXYear;
  SelectOrFirst(combo, inside ? year - NewNFYear : 0);
}

bool Rests(const ComboBox& combo) { return LoadingForm == kTrue || combo.ListIndex() < 0; }

}  // namespace

void SelectNumber(ComboBox& combo, int number) {
  const int item = combo.ListCount() > 0 ? number - ValInt(combo.List(0)) : -1;
  combo.SetListIndex(item >= 0 && item < combo.ListCount() ? item : -1);
}

void CheckWantedSize(int years, int ages, int surveys) {
  try {
    CheckCaseSize(years, ages, surveys);
  } catch (const RunTimeError&) {
    NewNFYear = NFYear;
    NewNXYear = NXYear;
    NewNYears = NYears;
    NewNAges = NAges;
    NewNIndex = NIndex;
    LoadingForm = kTrue;  // each of these handlers would look at what the other combos show
    SelectNumber(frmInput->cmbNFYear, NFYear);
    SelectNumber(frmInput->cmbNXYear, NXYear);
    SelectNumber(frmInput->cmbNAges, NAges);
    SelectNumber(frmInput->cmbNIndex, NIndex);
    LoadingForm = kFalse;
    throw;
  }
}

void RefreshYearCombos() {
  InputForm& form = *frmInput;
  const int recruitment_year = ValInt(form.cmbRecYr.Text());
  const int reference_year = ValInt(form.cmbRefYr.Text());
  const int periods_item = form.cmbSelPer.ListIndex();
  form.cmbRecYr.FillNumbers(NewNFYear, NewNXYear);
  form.cmbRefYr.FillNumbers(NewNFYear, NewNXYear);
  form.cmbSelPer.FillNumbers(1, NewNYears);
  if (LoadingForm == kTrue) {
    for (ComboBox* combo : {&form.cmbRecYr, &form.cmbRefYr, &form.cmbSelPer}) SelectOrFirst(*combo, 0);
    NewRecYr = RecDevStartYear();
    NewNSelPer = 1;
    return;
  }
  SelectRemembered(form.cmbRecYr, recruitment_year);
  SelectRemembered(form.cmbRefYr, reference_year);
  SelectOrFirst(form.cmbSelPer, periods_item);
}

void ApplyYearChange() {
  ExpandGrid(kToolFisheryAge);
  UpdateYearGrid(kGridFisheryAge);
  ExpandGrid(kToolCpue);
  UpdateYearGrid(kGridCpue);
  UpdatePeriodGrid();
  RefitSurveyYears();
  for (int grid : {kGridCatch, kGridCatchWeight, kGridStockWeight, kGridSpawnWeight, kGridMaturity})
    UpdateYearGrid(grid);
  UpdateRecDevGrid();
  UpdateFMortDevGrid();
  UpdateYearGrid(OnPin(kPinFisheryAnnual));
  NFYear = NewNFYear;
  NXYear = NewNXYear;
  NYears = NewNYears;
  LabelPeriods();
  // Its grids still show the years before the change, and an edit there would go into the wrong rows of the
  // store.
  ShowSelectedSurvey();
}

void CommitDimensions() {
  NFYear = NewNFYear;
  NXYear = NewNXYear;
  NYears = NewNYears;
  NAges = NewNAges;
  NIndex = NewNIndex;
  NSelPer = NewNSelPer;
  RecYr = NewRecYr;
  FishAgeNYears = FishCPUENYears = NYears;
}

void frmInput_cmbNFYear_Click(int) {
  ComboBox& first_combo = frmInput->cmbNFYear;
  ComboBox& last_combo = frmInput->cmbNXYear;
  if (Rests(first_combo)) return;
  const std::int16_t first = ValInt(first_combo.Text());
  if (first > ValInt(last_combo.Text())) {
    ShowMessage("Resetting End Year to Next Available Year", Icon::Information);
    last_combo.SetListIndex(first_combo.ListIndex());
    NewNXYear = first;
  }
  if (first == NFYear) {
    NewNFYear = first;
    return;
  }
  CheckWantedSize(NewNXYear - first + 1, NAges, NIndex);
  NewNFYear = first;
  if (NewNXYear > 0) NewNYears = Int16(NewNXYear - first + 1);
  RefreshYearCombos();
  ApplyYearChange();
}

void frmInput_cmbNXYear_Click(int) {
  ComboBox& first_combo = frmInput->cmbNFYear;
  ComboBox& last_combo = frmInput->cmbNXYear;
  if (Rests(last_combo)) return;
  const std::int16_t last = ValInt(last_combo.Text());
  if (last < ValInt(first_combo.Text())) {
    ShowMessage("Resetting First Year to First Available Year", Icon::Information);
    first_combo.SetListIndex(last_combo.ListIndex());
    NewNFYear = last;
  }
  if (last == NXYear) {
    NewNXYear = last;
    return;
  }
  CheckWantedSize(last - NewNFYear + 1, NAges, NIndex);
  NewNXYear = last;
  if (NewNFYear > 0) NewNYears = Int16(last - NewNFYear + 1);
  RefreshYearCombos();
  ApplyYearChange();
}

void frmInput_cmbNAges_Click(int) {
  if (Rests(frmInput->cmbNAges)) return;
  const std::int16_t ages = ValInt(frmInput->cmbNAges.Text());
  CheckWantedSize(NYears, ages, NIndex);
  NewNAges = ages;
  if (NewNAges == NAges) return;
  UpdateFishAgesGrid();
  RefitSurveyAges();
  UpdateSurvAgesGrid();
  UpdateRecDevGrid();
  UpdateFishNonParGrid();
  UpdateSurvNonParGrid();
  NAges = NewNAges;
  for (int build_index : {kBuildFisheryAge, kBuildSurveyAge, kBuildCatchWeight, kBuildStockWeight,
                          kBuildMaturity, kBuildSpawnWeight, kBuildMMultiplier})
    BuildGrid(build_index);
  BuildGrid(kBuildFisheryAnnual);  // every age grid of the case has a column for every age
  RefreshAgeLists();
}

void frmInput_cmbSelPer_Click(int) {
  if (Rests(frmInput->cmbSelPer)) return;
  NewNSelPer = ValInt(frmInput->cmbSelPer.Text());
  if (NewNSelPer == NSelPer) return;
  UpdatePeriodGrid();
  UpdateFishAgesGrid();
  UpdateFishParGrid();
  UpdateFishNonParGrid();
  NSelPer = NewNSelPer;
}

void frmInput_cmbRecYr_Click(int) {
  if (Rests(frmInput->cmbRecYr)) return;
  NewRecYr = RecDevStartYear();
  if (NewRecYr == RecYr) return;
  UpdateRecDevGrid();
  RecYr = NewRecYr;
}

}  // namespace tarnvik
