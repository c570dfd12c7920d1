#include "inputedit/year_grids.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"

namespace tarnvik {

namespace {

// The row in which the year of a cell stands in a grid from first to last year; 0 when it is none of these.
int RowOfYear(const std::string& cell, int first, int last) {
  const double year = Val(cell);
  if (year < first - 0.5 || year > last + 0.5) return 0;
  const int row = Int16(year) - first + 1;
  return row >= 1 && row <= last - first + 1 ? row : 0;
}

std::vector<std::string> RowTexts(const Grid& grid, int row) {
  std::vector<std::string> texts;
  for (int column = 0; column < grid.Cols(); ++column) texts.push_back(grid.TextMatrix(row, column));
  return texts;
}

// An empty grid of deviations for these years.
void BuildDeviations(Grid& grid, int first, int last) {
  grid.Clear();
  grid.Resize(std::max(last - first + 2, 1), 2);
  grid.SetTextMatrix(0, 0, "Year");
  grid.SetTextMatrix(0, 1, "Dev.");
  for (int row = 1; row < grid.Rows(); ++row) grid.SetTextMatrix(row, 0, NumberText(first + row - 1));
}

void RefitDeviations(Grid& grid, int first, int last) {
  const bool has_rows = grid.Rows() > 1 && grid.Cols() > 1;
  const std::string top = has_rows ? grid.TextMatrix(1, 0) : "";
  const std::string bottom = has_rows ? grid.TextMatrix(grid.Rows() - 1, 0) : "";
  const bool fresh = top.empty() || bottom.empty();
  if (!fresh && Val(top) == first && Val(bottom) == last) return;
  std::vector<std::pair<int, std::string>> kept;
  for (int row = 1; !fresh && row < grid.Rows(); ++row) {
    const int new_row = RowOfYear(grid.TextMatrix(row, 0), first, last);
    if (new_row > 0) kept.emplace_back(new_row, grid.TextMatrix(row, 1));
  }
  BuildDeviations(grid, first, last);
  for (const auto& [row, value] : kept) grid.SetTextMatrix(row, 1, value);
}

}  // namespace

void UpdateYearGrid(int index) {
  Grid& grid = CaseGrid(index);
  const int rows = std::max<int>(NewNYears, 0) + 1;
  CheckTableSize(rows, grid.Cols());
  std::vector<std::vector<std::string>> kept(static_cast<std::size_t>(rows));
  kept[0] = RowTexts(grid, 0);
  for (int row = 1; row < grid.Rows(); ++row) {
    const int new_row = RowOfYear(grid.TextMatrix(row, 0), NewNFYear, NewNXYear);
    if (new_row > 0 && new_row < rows) kept[static_cast<std::size_t>(new_row)] = RowTexts(grid, row);
  }
  grid.Clear();
  grid.SetRows(rows);
  for (int row = 0; row < rows; ++row) {
    if (row > 0) grid.SetTextMatrix(row, 0, NumberText(NewNFYear + row - 1));
    int column = 0;
    for (const std::string& text : kept[static_cast<std::size_t>(row)])
      grid.SetTextMatrix(row, column++, text);
  }
}

std::int16_t RecDevStartYear() {
  const int first_year = ValInt(frmInput->cmbNFYear.Text());
  const int recruitment_year = ValInt(frmInput->cmbRecYr.Text());
  const int ages = ValInt(frmInput->cmbNAges.Text());
  if (!frmInput->chkEstimate(kItemInitialF).IsChecked() && recruitment_year != first_year)
    return Int16(recruitment_year);
  return Int16(first_year - ages + 1);  // one whole span of ages back: the cohorts of the first data year
}

void UpdateRecDevGrid() {
  InputForm& form = *frmInput;
  for (const ComboBox* combo : {&form.cmbNFYear, &form.cmbNXYear, &form.cmbRecYr, &form.cmbNAges}) {
    if (combo->ListIndex() < 0) return;
  }
  NewRecYr = RecDevStartYear();
  RefitDeviations(frmPin->ORVFlexGrid1(kPinRecDevs), NewRecYr, ValInt(form.cmbNXYear.Text()));
  RecYr = NewRecYr;
}

void UpdateFMortDevGrid() {
  InputForm& form = *frmInput;
  if (form.cmbNFYear.ListIndex() < 0 || form.cmbNXYear.ListIndex() < 0) return;
  RefitDeviations(frmPin->ORVFlexGrid1(kPinFDevs), ValInt(form.cmbNFYear.Text()),
                  ValInt(form.cmbNXYear.Text()));
}

}  // namespace tarnvik
