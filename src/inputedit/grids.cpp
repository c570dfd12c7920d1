#include "inputedit/grids.h"

#include <algorithm>
#include <iterator>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/labels.h"
#include "inputedit/surveys.h"
#include "inputedit/year_grids.h"

namespace tarnvik {

namespace {

// What runs down or across a grid, with the labels that belong to it.
enum class Axis {
  None,
  OneRow,  // a single row of values without a label
  Years,
  FishAgeYears,
  CpueYears,
  SurveyYears,  // the span of the selected survey
  Ages,
  Surveys,
  Periods,      // by number
  PeriodSpans,  // by number and years
  Selectivity,  // the three parameters of a curve
  IndexParameters
};

struct Shape {
  int build_index;
  int grid;  // as CaseGrid has it
  Axis down;
  const char* heads[3];  // headers of the first columns, null where there is none
  Axis across;           // what the columns behind them stand for
};

constexpr Shape kShapes[] = {
    {kBuildCatch, kGridCatch, Axis::Years, {"Year", "Catch Biomass"}, Axis::None},
    {kBuildFisheryAge, kGridFisheryAge, Axis::FishAgeYears, {"Year", "Fit? (y/n)", "# Samples"}, Axis::Ages},
    {kBuildSurveyAge,
     kGridSurveyAge,
     Axis::SurveyYears,
     {"Year", "# Samples", "Fit Age Data? (y/n)"},
     Axis::Ages},
    {kBuildSurveyZ, kGridSurveyZ, Axis::OneRow, {}, Axis::Surveys},
    {kBuildCatchWeight, kGridCatchWeight, Axis::Years, {"Year"}, Axis::Ages},
    {kBuildStockWeight, kGridStockWeight, Axis::Years, {"Year"}, Axis::Ages},
    {kBuildMaturity, kGridMaturity, Axis::Years, {"Year"}, Axis::Ages},
    {kBuildPeriods, kGridPeriods, Axis::Periods, {"Period", "Start Year", "End Year"}, Axis::None},
    {kBuildSurveyEmphasis,
     kGridSurveyEmphasis,
     Axis::Surveys,
     {"", "Age Composition", "Biomass Index"},
     Axis::None},
    {kBuildCpue,
     kGridCpue,
     Axis::CpueYears,
     {"Year", "Observed CPUE", "Fit CPUE? (y=yes, n=no)"},
     Axis::None},
    {kBuildIndexAges, kGridIndexAges, Axis::Ages, {""}, Axis::Surveys},
    {kBuildFisherySelAges, kGridFisherySelAges, Axis::PeriodSpans, {"", "# Ages"}, Axis::None},
    {kBuildSurveySelAges, kGridSurveySelAges, Axis::Surveys, {"", "# Ages"}, Axis::None},
    {kBuildSpawnWeight, kGridSpawnWeight, Axis::Years, {"Year"}, Axis::Ages},
    {kBuildMMultiplier, kGridMMultiplier, Axis::Ages, {"", "Multiplier"}, Axis::None},
    {kBuildSurveyIndex,
     kGridSurveyIndex,
     Axis::SurveyYears,
     {"Year", "Biomass Index", "Fit Index Values? (y/n)"},
     Axis::None},
    {kBuildFisheryCurve, OnPin(kPinFisheryCurve), Axis::Selectivity, {""}, Axis::PeriodSpans},
    {kBuildFisheryByPeriod, OnPin(kPinFisheryByPeriod), Axis::PeriodSpans, {""}, Axis::Ages},
    {kBuildPinSurveyIndex, OnPin(kPinSurveyIndex), Axis::IndexParameters, {""}, Axis::Surveys},
    {kBuildSurveyCurve, OnPin(kPinSurveyCurve), Axis::Selectivity, {""}, Axis::Surveys},
    {kBuildSurveyByAge, OnPin(kPinSurveyByAge), Axis::Surveys, {""}, Axis::Ages},
    {kBuildFisheryAnnual, OnPin(kPinFisheryAnnual), Axis::Years, {""}, Axis::Ages},
};

constexpr const char* kSelectivityParameters[] = {"log gamma", "log beta", "log a50"};
constexpr const char* kIndexParameters[] = {"q", "exponent"};

// The survey whose tables stand in the grids, 0 while the store has none to show.
int ShownSurvey() {
  const int survey = SelectedSurvey();
  return survey <= SurvFYear.Size() ? survey : 0;
}

int Length(Axis axis) {
  switch (axis) {
    case Axis::None:
      return 0;
    case Axis::OneRow:
      return 1;
    case Axis::Years:
      return NYears;
    case Axis::FishAgeYears:
      return FishAgeNYears;
    case Axis::CpueYears:
      return FishCPUENYears;
    case Axis::SurveyYears:
      return ShownSurvey() > 0 ? SurvNYears(ShownSurvey()) : 0;
    case Axis::Ages:
      return NAges;
    case Axis::Surveys:
      return NIndex;
    case Axis::Periods:
    case Axis::PeriodSpans:
      return NSelPer;
    case Axis::Selectivity:
      return static_cast<int>(std::size(kSelectivityParameters));
    case Axis::IndexParameters:
      return static_cast<int>(std::size(kIndexParameters));
  }
  return 0;
}

// The first year of a year axis. A condensed grid begins with a year of its own.
int FirstYear(Axis axis, const Grid& grid) {
  if (axis == Axis::SurveyYears) return ShownSurvey() > 0 ? SurvFYear(ShownSurvey()) : 0;
  if (axis == Axis::FishAgeYears || axis == Axis::CpueYears) {
    const double year = Val(grid.TextMatrix(1, 0));
    if (year >= NFYear && year + Length(axis) - 1 <= NXYear) return Int16(year);
  }
  return NFYear;
}

void WriteRowLabels(Grid& grid, Axis axis) {
  const int rows = grid.Rows() - 1;
  const bool years = axis == Axis::Years || axis == Axis::FishAgeYears || axis == Axis::CpueYears ||
                     axis == Axis::SurveyYears;
  const int before_first = years && rows > 0 ? FirstYear(axis, grid) - 1 : 0;
  for (int row = 1; row <= rows; ++row) {
    std::string label;
    switch (axis) {
      case Axis::OneRow:
        return;
      case Axis::Ages:
        label = "Age " + NumberText(row);
        break;
      case Axis::Surveys:
        label = SurveyLabel(row);
        break;
      case Axis::PeriodSpans:
        label = PeriodLabel(row, kNarrowGap);
        break;
      case Axis::Selectivity:
        label = kSelectivityParameters[row - 1];
        break;
      case Axis::IndexParameters:
        label = kIndexParameters[row - 1];
        break;
      default:
        label = NumberText(before_first + row);
    }
    grid.SetTextMatrix(row, 0, label);
  }
}

void WriteColumnHeaders(Grid& grid, const Shape& shape, int lead) {
  for (int col = 0; col < lead; ++col) grid.SetTextMatrix(0, col, shape.heads[col]);
  for (int i = 1; lead + i <= grid.Cols(); ++i) {
    const int col = lead + i - 1;
    switch (shape.across) {
      case Axis::Ages:
        grid.SetTextMatrix(0, col, "Age " + NumberText(i));
        break;
      case Axis::Surveys:
        grid.SetTextMatrix(0, col, SurveyLabel(i));
        break;
      default:
        grid.SetTextMatrix(0, col, PeriodLabel(i, kWideGap));
    }
  }
}

// A period ends in the year before the next one starts, the last period with the case.
void DeriveEndYears(Grid& periods) {
  for (int i = 1; i < periods.Rows(); ++i) {
    std::string end = NumberText(NXYear);
    if (i + 1 < periods.Rows()) {
      const double next = Val(periods.TextMatrix(i + 1, 1));
      end = next < 1 ? "" : NumberText(next - 1);
    }
    periods.SetTextMatrix(i, 2, end);
    periods.SetCellColors(i, 2, kButtonFace, kBlack);
  }
}

}  // namespace

Grid& CaseGrid(int number) {
  return number >= kPinGrids ? frmPin->ORVFlexGrid1(number - kPinGrids) : frmInput->ORVFlexGrid(number);
}

void ShowFitColumn(int grid) {
  constexpr int kCpueWidth = 1300;
  constexpr int kSurveyWidth = 850;
  Grid& table = CaseGrid(grid);
  const bool cpue = grid == kGridCpue;
  const bool shown = cpue ? frmInput->chkFitFishCPUE.IsChecked() : frmInput->chkSurvFit.IsChecked();
  if (table.Cols() > 2) table.SetColWidth(2, !shown ? 0 : cpue ? kCpueWidth : kSurveyWidth);
}

void BuildGrid(int build_index) {
  const auto* const shape = std::find_if(std::begin(kShapes), std::end(kShapes),
                                         [=](const Shape& s) { return s.build_index == build_index; });
  if (shape == std::end(kShapes)) throw RunTimeError(kErrSubscript);
  Grid& grid = CaseGrid(shape->grid);
  const int lead = static_cast<int>(std::count_if(std::begin(shape->heads), std::end(shape->heads),
                                                  [](const char* head) { return head != nullptr; }));
  grid.Resize(std::max(Length(shape->down), 0) + 1, std::max(Length(shape->across), 0) + lead);
  grid.SetFormatString(" | ^ ");
  WriteRowLabels(grid, shape->down);
  WriteColumnHeaders(grid, *shape, lead);
  if (shape->grid == kGridPeriods) DeriveEndYears(grid);
  if (shape->grid == kGridMMultiplier && NAges > 0)
    grid.SetTextMatrix(NAges, 1, "1.0");  // the plus group, by convention
  if (shape->grid == kGridCpue || shape->grid == kGridSurveyIndex) ShowFitColumn(shape->grid);
}

void BuildAllInputGrids() {
  for (int build_index = kBuildCatch; build_index <= kBuildSurveyIndex; ++build_index) BuildGrid(build_index);
}

void BuildAllPinGrids() {
  UpdateRecDevGrid();
  UpdateFMortDevGrid();
  for (int build_index = kBuildFisheryCurve; build_index <= kBuildFisheryAnnual; ++build_index)
    BuildGrid(build_index);
}

}  // namespace tarnvik
