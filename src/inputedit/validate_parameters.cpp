// The initial parameter values of frmPin, tab by tab.
#include <span>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/checks.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/validation.h"

namespace tarnvik {

namespace {

enum PinTab : int { kTabBiological, kTabFishery, kTabSurvey };

// The values from low to high pass, both ends included.
struct Range {
  double low;
  double high;
};

bool Outside(const std::string& text, Range range) {
  const double value = Val(text);
  return value < range.low || value > range.high;
}

struct ParameterField {
  int index;  // in txtParmFile
  Range range;
  const char* missing;
  const char* invalid;
};

bool CheckParameterFields(int tab, std::span<const ParameterField> fields) {
  for (const ParameterField& field : fields) {
    const std::string& text = frmPin->txtParmFile(field.index).Text();
    if (Blank(text)) return PinFault(tab, field.missing);
    if (Outside(text, field.range)) return PinFault(tab, field.invalid);
  }
  return true;
}

bool CheckDeviations(int grid_index, const char* missing, const char* invalid) {
  const Grid& grid = frmPin->ORVFlexGrid1(grid_index);
  for (int row = 1; row < grid.Rows(); ++row) {
    const std::string& cell = grid.TextMatrix(row, 1);
    const char* words = Blank(cell) ? missing : Outside(cell, {-10, 10}) ? invalid : nullptr;
    if (words) return PinFault(kTabBiological, words + grid.TextMatrix(row, 0));
  }
  return true;
}

// One row of a grid that has a column per period or survey.
struct ParameterRow {
  bool applies;
  int grid;
  int row;
  Range range;
  const char* name;
};

// Words of the messages: %p name of the parameter, %n number of the column, %l text over the column.
bool CheckParameterRow(int tab, const ParameterRow& check, const char* missing, const char* invalid) {
  if (!check.applies) return true;
  const Grid& grid = frmPin->ORVFlexGrid1(check.grid);
  for (int col = 1; col < grid.Cols(); ++col) {
    const std::string& cell = grid.TextMatrix(check.row, col);
    const char* words = Blank(cell) ? missing : Outside(cell, check.range) ? invalid : nullptr;
    if (words) {
      return PinFault(
          tab, FillWords(words, {{'p', check.name}, {'n', NumberText(col)}, {'l', grid.TextMatrix(0, col)}}));
    }
  }
  return true;
}

// The first cells of a row, as many as ages are to be estimated.
bool CheckUsedCells(int tab, int grid_index, int row, const std::string& count, const char* words) {
  const Grid& grid = frmPin->ORVFlexGrid1(grid_index);
  const int ages = ValInt(count);
  for (int age = 1; age <= ages; ++age) {
    if (!Blank(grid.TextMatrix(row, age))) continue;
    return PinFault(
        tab,
        FillWords(words, {{'a', NumberText(age)}, {'y', grid.TextMatrix(row, 0)}, {'r', NumberText(row)}}));
  }
  return true;
}

// --- Biological

const ParameterField kBiological[] = {
    {0, {0, 1}, "Missing Value for Natural Mortality", "Invalid Value for Natural Mortality"},
    {1, {-100, 100}, "Missing Value for Mean Log Recruitment", "Invalid Value for Mean Log Recruitment"},
    {2,
     {-10, 10},
     "Missing Value for Log of Mean Fishing Annual Mortality",
     "Invalid Value for Log of Mean Fishing Annual Mortality"},
};

bool CheckBiological() {
  return CheckParameterFields(kTabBiological, kBiological) &&
         CheckDeviations(0, "Recruitment Deviations Data is Incomplete\r\nMissing Value for year ",
                         "Invalid Value for Recruitment Deviation at year ") &&
         CheckDeviations(1, "Fishing Mortality Deviations Data is Incomplete\r\nMissing Value for year ",
                         "Invalid Value for Fishing Mortality Deviation at year ");
}

// --- Fishery. Of the three selectivity grids only the one in view is read.

const ParameterField kFisheryCpue[] = {
    {3,
     {0.00001, 100000},
     "Fishery Selectivity Parameter Data is Incomplete\r\nMissing Value for CPUE q",
     "Invalid Value for CPUE q"},
    {4,
     {0.1, 10},
     "Fishery Selectivity Parameter Data is Incomplete\r\nMissing Value for CPUE exponent",
     "Invalid Value for CPUE exponent"},
};

bool CheckParametricFishery() {
  const bool parametric = frmPin->frmParFishSel.Visible();
  const bool gamma_shown =
      frmPin->ORVFlexGrid1(kPinFisheryCurve).RowHeight(1) != 0;  // hidden when flat-topped
  const ParameterRow rows[] = {
      {parametric && gamma_shown, 2, 1, {-60, 1}, "log gamma"},
      {parametric, 2, 2, {-60, 10}, "log beta"},
      {parametric, 2, 3, {0, 4}, "log a50"},
  };
  for (const ParameterRow& row : rows) {
    if (!CheckParameterRow(kTabFishery, row,
                           "Fishery Selectivity Parameter Data is Incomplete\r\n"
                           "Missing Value for %p for Period %n",
                           "Invalid Value for %p for Period %n")) {
      return false;
    }
  }
  return true;
}

const GridCheck kPeriodCounts = {
    Column(kGridFisherySelAges, 1),
    {NotAnAgeCount, "Number of Ages to Estimate Fishery Selectivity is Invalid for Selectivity Period %r"}};

bool CheckPeriodFishery() {
  if (!frmPin->frmNonParFishSel1.Visible()) return true;
  if (!CheckGrid(kTabFisherySelectivity, kPeriodCounts)) return false;
  const Grid& counts = frmInput->ORVFlexGrid(kGridFisherySelAges);
  for (int row = 1; row < frmPin->ORVFlexGrid1(kPinFisheryByPeriod).Rows(); ++row) {
    if (!CheckUsedCells(kTabFishery, 4, row, counts.TextMatrix(row, 1),
                        "Log of Fishery Selectivity Parameters Data is Incomplete\r\n"
                        "Missing Value for Age %a")) {
      return false;
    }
  }
  return true;
}

bool CheckAnnualFishery() {
  if (!frmPin->frmNonParFishSel2.Visible()) return true;
  const TextBox& count = frmInput->txtFishSelAge;
  const FieldCheck checks[] = {
      {true, count, NotAnAgeCount, "Number of Ages to Estimate Fishery Selectivity is Invalid"}};
  if (!CheckFields(kTabFisherySelectivity, checks)) return false;
  for (int row = 1; row < frmPin->ORVFlexGrid1(kPinFisheryAnnual).Rows(); ++row) {
    if (!CheckUsedCells(kTabFishery, 7, row, count.Text(),
                        "Log of Annual Nonparametric Fishery Selectivity Parameters Data is Incomplete\r\n"
                        "Missing Value for Age %a for Year %y")) {
      return false;
    }
  }
  return true;
}

bool CheckFishery() {
  return CheckParameterFields(kTabFishery, kFisheryCpue) && CheckParametricFishery() &&
         CheckPeriodFishery() && CheckAnnualFishery();
}

// --- Surveys

bool CheckSurveyParameters() {
  const bool parametric = frmPin->frmParSurvSel.Visible();
  const bool gamma_shown = frmPin->ORVFlexGrid1(kPinSurveyCurve).RowHeight(1) != 0;
  const ParameterRow rows[] = {
      {true, 3, 1, {0, 100000}, "q"},
      {true, 3, 2, {0, 10}, "exponent"},
      {parametric && gamma_shown, 5, 1, {-60, 1}, "log gamma"},
      {parametric, 5, 2, {-60, 10}, "log beta"},
      {parametric, 5, 3, {-60, 10}, "log a50"},  // the surveys take a wider range than the fishery
  };
  for (const ParameterRow& row : rows) {
    if (!CheckParameterRow(kTabSurvey, row,
                           "Survey Index Parameter Data is Incomplete\r\n"
                           "Missing Value for Survey %p for %l",
                           "Invalid Value for Survey %p for %l")) {
      return false;
    }
  }
  return true;
}

const GridCheck kSurveyCounts = {
    Column(kGridSurveySelAges, 1),
    {NotAnAgeCount, "Number of Ages to Estimate Survey Selectivity is Invalid for Survey %r"}};

bool CheckNonparametricSurveys() {
  if (!frmPin->frmNonParSurvSel.Visible()) return true;
  if (!CheckGrid(kTabSurveySelectivity, kSurveyCounts)) return false;
  const Grid& counts = frmInput->ORVFlexGrid(kGridSurveySelAges);
  for (int row = 1; row < frmPin->ORVFlexGrid1(kPinSurveyByAge).Rows(); ++row) {
    if (!CheckUsedCells(kTabSurvey, 6, row, counts.TextMatrix(row, 1),
                        "Log of Nonparametric Survey Selectivity Parameter Data is Incomplete\r\n"
                        "Missing Value for Age %a for Survey %r")) {
      return false;
    }
  }
  return true;
}

}  // namespace

void ValidateParameters() {
  InputValid = kFalse;
  const bool valid =
      CheckBiological() && CheckFishery() && CheckSurveyParameters() && CheckNonparametricSurveys();
  InputValid = Flag(valid);
}

}  // namespace tarnvik
