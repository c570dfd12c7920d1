#include "inputedit/selectivity_paint.h"

#include <algorithm>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

bool ValidCount(const std::string& text) {
  const double count = Val(text);
  return count >= 1 && count <= NewNAges;
}

// The counts in column 1 of a grid, row by row from element 1. Invalid ones are set to the number of ages;
// the first of them warns, unless fleet is null.
std::vector<int> CountsOf(Grid& grid, const char* fleet) {
  std::vector<int> counts(static_cast<std::size_t>(std::max(grid.Rows(), 1)), NewNAges);
  for (int row = 1; row < grid.Rows(); ++row) {
    if (ValidCount(grid.TextMatrix(row, 1))) {
      counts[static_cast<std::size_t>(row)] = ValInt(grid.TextMatrix(row, 1));
      continue;
    }
    if (fleet) WarnOfAgeCount(fleet);
    fleet = nullptr;
    grid.SetTextMatrix(row, 1, NumberText(NewNAges));
  }
  return counts;
}

// The one count of the annual option.
int SingleCount() {
  TextBox& box = frmInput->txtFishSelAge;
  if (!ValidCount(box.Text())) {
    WarnOfAgeCount("Fishery");
    box.SetText(NumberText(NewNAges));
  }
  return ValInt(box.Text());
}

// Ages up to the count are to be filled; those beyond are out of use and lose what they hold.
void PaintRow(Grid& grid, int row, int count) {
  const int last = std::min<int>(NewNAges, grid.Cols() - 1);
  for (int age = 1; age <= last; ++age) {
    if (age <= count) {
      grid.SetCellColors(row, age, kWindowBackground, kBlue);
    } else {
      grid.SetTextMatrix(row, age, "");
      grid.SetCellColors(row, age, kButtonFace, kButtonFace);
    }
  }
}

void PaintRows(Grid& grid, const std::vector<int>& counts) {
  const int rows = std::min(grid.Rows(), static_cast<int>(counts.size()));
  for (int row = 1; row < rows; ++row) PaintRow(grid, row, counts[static_cast<std::size_t>(row)]);
}

void PaintAllRows(Grid& grid, int count) {
  for (int row = 1; row < grid.Rows(); ++row) PaintRow(grid, row, count);
}

}  // namespace

void WarnOfAgeCount(const char* fleet) {
  ShowMessage(std::string("Number of Ages to Estimate ") + fleet + " Selectivity is Invalid" + kLineBreak +
                  "Resetting Value to " + NumberText(NewNAges),
              Icon::Exclamation);
}

void PaintFishPeriodGrid() {
  Grid& grid = frmPin->ORVFlexGrid1(kPinFisheryByPeriod);
  Grid& counts = frmInput->ORVFlexGrid(kGridFisherySelAges);
  if (!frmInput->txtFishSelAge.Visible()) {
    PaintRows(grid, CountsOf(counts, "Fishery"));
    return;
  }
  PaintAllRows(grid, SingleCount());
  CountsOf(counts, nullptr);
}

void PaintFishAnnualGrid() {
  Grid& grid = frmPin->ORVFlexGrid1(kPinFisheryAnnual);
  if (frmInput->txtFishSelAge.Visible()) {
    PaintAllRows(grid, SingleCount());
    return;
  }
  // The first period's count is the one that the annual option would take over.
  const std::vector<int> counts = CountsOf(frmInput->ORVFlexGrid(kGridFisherySelAges), "Fishery");
  if (counts.size() > 1) PaintAllRows(grid, counts[1]);
}

void PaintSurvGrid() {
  PaintRows(frmPin->ORVFlexGrid1(kPinSurveyByAge),
            CountsOf(frmInput->ORVFlexGrid(kGridSurveySelAges), "Survey"));
}

}  // namespace tarnvik
