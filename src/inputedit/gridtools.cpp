#include "inputedit/gridtools.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frmedittextbox.h"
#include "inputedit/frmfillnodata.h"
#include "inputedit/frminput.h"
#include "inputedit/grids.h"
#include "inputedit/labels.h"
#include "inputedit/selectivity_paint.h"
#include "inputedit/surveys.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

// One of the two grids that may show fewer years than the case has.
struct CondensableGrid {
  Grid& grid;
  int build_index;
  std::int16_t& years;  // its rows below the header
};

CondensableGrid Condensable(int which) {
  if (which == kToolCpue) return {frmInput->ORVFlexGrid(kGridCpue), kBuildCpue, FishCPUENYears};
  return {frmInput->ORVFlexGrid(kGridFisheryAge), kBuildFisheryAge, FishAgeNYears};
}

// Rows of a grid, set aside while it is rebuilt.
struct SavedRows {
  int rows;
  int cols;
  std::vector<std::string> cells;
  const std::string& Cell(int row, int col) const {
    return cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                 static_cast<std::size_t>(col)];
  }
};

SavedRows SaveRows(const Grid& grid, int first, int last) {
  SavedRows saved{last - first + 1, grid.Cols(), {}};
  saved.cells.reserve(static_cast<std::size_t>(saved.rows) * static_cast<std::size_t>(saved.cols));
  for (int row = first; row <= last; ++row) {
    for (int col = 0; col < grid.Cols(); ++col) saved.cells.push_back(grid.TextMatrix(row, col));
  }
  return saved;
}

void PutRow(const SavedRows& saved, int from, Grid& grid, int to, int first_col) {
  const int cols = std::min(saved.cols, grid.Cols());
  for (int col = first_col; col < cols; ++col) grid.SetTextMatrix(to, col, saved.Cell(from, col));
}

bool HasData(const Grid& grid, int row) {
  for (int col = 1; col < grid.Cols(); ++col) {
    if (!IsBlank(grid.TextMatrix(row, col))) return true;
  }
  return false;
}

void FillColumns(Grid& grid, int first_col, int last_col, const std::string& value) {
  for (int row = 1; row < grid.Rows(); ++row) {
    for (int col = first_col; col <= last_col; ++col) {
      if (IsBlank(grid.TextMatrix(row, col))) grid.SetTextMatrix(row, col, value);
    }
  }
}

}  // namespace

void CondenseGrid(int which) {
  const CondensableGrid target = Condensable(which);
  Grid& grid = target.grid;
  int first = 1;
  int last = grid.Rows() - 1;
  while (first <= last && !HasData(grid, first)) ++first;
  while (last > first && !HasData(grid, last)) --last;

  const bool empty = first > last;
  const SavedRows saved = empty ? SavedRows{0, 0, {}} : SaveRows(grid, first, last);
  target.years = empty ? Int16(1) : Int16(saved.rows);
  grid.Clear();
  BuildGrid(target.build_index);
  if (empty) grid.SetTextMatrix(1, 0, NumberText(NFYear));
  for (int row = 0; row < saved.rows; ++row) PutRow(saved, row, grid, row + 1, 0);
}

void ExpandGrid(int which) {
  const CondensableGrid target = Condensable(which);
  Grid& grid = target.grid;
  const SavedRows saved = SaveRows(grid, 1, grid.Rows() - 1);
  grid.Clear();
  BuildGrid(target.build_index);
  grid.SetRows(NYears + 1);
  for (int k = 1; k <= NYears; ++k) grid.SetTextMatrix(k, 0, NumberText(NFYear + k - 1));
  for (int row = 0; row < saved.rows; ++row) {
    const double k = std::nearbyint(Val(saved.Cell(row, 0))) - NFYear + 1;
    if (k >= 1 && k <= NYears) PutRow(saved, row, grid, static_cast<int>(k), 1);
  }
  target.years = NYears;
}

void FillNoData(int which, const std::string& value) {
  if (which == kToolCpue) {
    CondenseGrid(kToolCpue);
    FillColumns(frmInput->ORVFlexGrid(kGridCpue), 1, 1, value);
  } else if (which == kToolFisheryAge) {
    CondenseGrid(kToolFisheryAge);
    Grid& grid = frmInput->ORVFlexGrid(kGridFisheryAge);
    FillColumns(grid, 3, grid.Cols() - 1, value);
  } else {
    Grid& grid = frmInput->ORVFlexGrid(kGridSurveyAge);
    FillColumns(grid, 3, grid.Cols() - 1, value);
    // Like typed values: otherwise the next selection of a survey, validation's too, would take them away
    // again.
    StoreSurveyGrid(kGridSurveyAge);
  }
}

void frmInput_cmdCondenseGrd_Click(int index) { CondenseGrid(index); }
void frmInput_cmdExpandGrd_Click(int index) { ExpandGrid(index); }

void frmInput_cmdFillBlanks_Click(int index) {
  const std::string survey = "Survey " + NumberText(SelectedSurvey());
  const std::string condensed = "The current grid will be condensed and ";
  FillNoDataForm& form = *frmFillNoData;
  if (index == kToolCpue) {
    form.txtWhichGrid.SetText("Observed Fishery CPUE Data");
    form.lblExplain.SetCaption(condensed +
                               "blank grid cells for Fishery CPUE will be filled with this value.");
  } else if (index == kToolFisheryAge) {
    form.txtWhichGrid.SetText("Fishery Age Composition Data");
    form.lblExplain.SetCaption(
        condensed + "blank grid cells for Fishery Proportion at Age will be filled with this value.");
  } else {
    form.txtWhichGrid.SetText(survey + " Age Composition Data");
    form.lblExplain.SetCaption("Blank grid cells for " + survey +
                               " Proportion at Age will be filled with this value.");
  }
  ShowFormModal(frmFillNoData);
}

void frmInput_lblSurvTitle_Click(int) {
  EditTextBoxForm& form = *frmEditTextBox;
  form.SetCaption("Edit Survey Title");
  form.lblWhichBox.SetCaption(frmInput->lblSurvTitle.Name());
  form.Text1.SetText(frmInput->lblSurvTitle.Caption());
  ShowFormModal(frmEditTextBox);
}

void frmInput_ORVFlexGrid_event9(int index) {
  if (index == kGridFisheryAge) frmInput->cmdCondenseGrd(kToolFisheryAge).SetEnabled(true);
  if (index == kGridCpue) frmInput->cmdCondenseGrd(kToolCpue).SetEnabled(true);
  if (index != kGridPeriods || PeriodEditWarned == kTrue) return;
  const Grid& grid = frmInput->ORVFlexGrid(kGridPeriods);
  if (grid.Col == 1 && grid.Row > 1) {
    ShowMessage(std::string("Editing the Selectivity Period Start Year Will Automatically") + kLineBreak +
                    "Adjust the End Year of the Previous Selectivity Period",
                Icon::Information);
    PeriodEditWarned = kTrue;
  }
}

void frmInput_ORVFlexGrid_event1(int index) {
  switch (index) {
    case kGridPeriods:
      LabelPeriods();
      break;
    case kGridFisherySelAges:
      PaintFishPeriodGrid();
      PaintFishAnnualGrid();
      break;
    case kGridSurveyAge:
    case kGridSurveyIndex:
      StoreSurveyGrid(index);
      break;
    default:
      break;
  }
}

}  // namespace tarnvik
