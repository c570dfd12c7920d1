#include "inputedit/selectivity_grids.h"

#include <string>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/labels.h"
#include "inputedit/options.h"
#include "inputedit/selectivity_paint.h"

namespace tarnvik {

namespace {

bool Selected(const ComboBox& combo) { return combo.ListIndex() >= 0; }

// SurveyLabel for the surveys in force, the bare number for those to come.
std::string WantedSurveyLabel(int survey) {
  return survey <= NIndex ? SurveyLabel(survey) : "Survey " + NumberText(survey);
}

// Empty counts, and counts beyond the number of ages, take the number of ages; the first of the latter warns,
// unless fleet is null.
void ResetCounts(Grid& grid, const char* fleet) {
  for (int row = 1; row < grid.Rows(); ++row) {
    const std::string& count = grid.TextMatrix(row, 1);
    if (!IsBlank(count) && Val(count) <= NewNAges) continue;
    if (!IsBlank(count) && fleet) {
      WarnOfAgeCount(fleet);
      fleet = nullptr;
    }
    grid.SetTextMatrix(row, 1, NumberText(NewNAges));
  }
}

void SetAgeHeaders(Grid& grid) {
  for (int age = 1; age <= NewNAges; ++age) grid.SetTextMatrix(0, age, "Age " + NumberText(age));
}

}  // namespace

void UpdatePeriodGrid() {
  InputForm& form = *frmInput;
  if (!Selected(form.cmbNFYear) || !Selected(form.cmbNXYear) || !Selected(form.cmbSelPer)) return;
  Grid& spans = form.ORVFlexGrid(kGridPeriods);
  spans.Resize(NewNSelPer + 1, 3);
  spans.SetTextMatrix(0, 0, "Period");
  spans.SetTextMatrix(0, 1, "Start Year");
  spans.SetTextMatrix(0, 2, "End Year");
  for (int period = 1; period <= NewNSelPer; ++period) {
    spans.SetTextMatrix(period, 0, NumberText(period));
    if (period == 1) spans.SetTextMatrix(period, 1, NumberText(NewNFYear));
    if (period < NewNSelPer) {
      const double next_start = Val(spans.TextMatrix(period + 1, 1));
      spans.SetTextMatrix(period, 2, next_start < 1 ? "" : NumberText(next_start - 1));
    } else {
      spans.SetTextMatrix(period, 2, NumberText(NewNXYear));
    }
    spans.SetCellColors(period, 2, kButtonFace, kNearBlack);
  }
}

void UpdateFishAgesGrid() {
  InputForm& form = *frmInput;
  if (!Selected(form.cmbSelPer) || !Selected(form.cmbNAges)) return;
  Grid& counts = form.ORVFlexGrid(kGridFisherySelAges);
  counts.Resize(NewNSelPer + 1, 2);
  counts.SetTextMatrix(0, 1, "# Ages");
  ResetCounts(counts, counts.Visible() ? "Fishery" : nullptr);
  for (int period = 1; period <= NewNSelPer; ++period)
    counts.SetTextMatrix(period, 0, PeriodLabel(period, kWideGap));
  // The single count of the annual option follows the first period's.
  TextBox& single = form.txtFishSelAge;
  if (!IsBlank(single.Text()) && Val(single.Text()) > NewNAges && single.Visible()) WarnOfAgeCount("Fishery");
  single.SetText(counts.TextMatrix(1, 1));
}

void UpdateSurvAgesGrid() {
  InputForm& form = *frmInput;
  if (!Selected(form.cmbNIndex) || !Selected(form.cmbNAges)) return;
  Grid& counts = form.ORVFlexGrid(kGridSurveySelAges);
  counts.Resize(NewNIndex + 1, 2);
  counts.SetTextMatrix(0, 1, "# Ages");
  ResetCounts(counts, "Survey");
  for (int survey = 1; survey <= NewNIndex; ++survey)
    counts.SetTextMatrix(survey, 0, WantedSurveyLabel(survey));
}

void UpdateFishParGrid() {
  if (!Selected(frmInput->cmbSelPer)) return;
  Grid& grid = frmPin->ORVFlexGrid1(kPinFisheryCurve);
  grid.Resize(4, NewNSelPer + 1);
  grid.SetTextMatrix(1, 0, "log gamma");
  grid.SetTextMatrix(2, 0, "log beta");
  grid.SetTextMatrix(3, 0, "log a50");
  for (int period = 1; period <= NewNSelPer; ++period)
    grid.SetTextMatrix(0, period, PeriodLabel(period, kWideGap));
  ShowLogGammaRow(grid, frmInput->opFishSelParametric(kFlatTopped).Value());
}

void UpdateFishNonParGrid() {
  if (!Selected(frmInput->cmbSelPer) || !Selected(frmInput->cmbNAges)) return;
  Grid& grid = frmPin->ORVFlexGrid1(kPinFisheryByPeriod);
  grid.Resize(NewNSelPer + 1, NewNAges + 1);
  SetAgeHeaders(grid);
  for (int period = 1; period <= NewNSelPer; ++period)
    grid.SetTextMatrix(period, 0, PeriodLabel(period, kWideGap));
  PaintFishPeriodGrid();
}

void UpdateSurvNonParGrid() {
  if (!Selected(frmInput->cmbNIndex) || !Selected(frmInput->cmbNAges)) return;
  Grid& grid = frmPin->ORVFlexGrid1(kPinSurveyByAge);
  grid.Resize(NewNIndex + 1, NewNAges + 1);
  SetAgeHeaders(grid);
  for (int survey = 1; survey <= NewNIndex; ++survey)
    grid.SetTextMatrix(survey, 0, WantedSurveyLabel(survey));
  PaintSurvGrid();
}

}  // namespace tarnvik
