// The report's blocks of indices: the CPUE series, the survey indices, the survey ages.
#include "core/globals.h"
#include "core/text.h"
#include "modelrun/report_scan.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/result_tables.h"

namespace tarnvik {

std::string SurveyTypeWord;

namespace {

void FailForSurvey(const std::string& what, int survey) {
  FailToRetrieve(what + std::to_string(survey) + " from Report File");
}

void NameCpueIndex(const std::string& name) {
  frmOutputData->SSTab1.SetTabCaption(kPageCpue, name);
  frmOutputData->FrameCPUE.SetCaption(name);
  frmOutputData->LabelCPUE1.SetCaption(name);
  frmOutputData->LabelCPUE2.SetCaption(name);
  frmOutput->SSTab1.SetTabCaption(kPlotCpue, name);
  frmOutput->Option27(0).SetCaption(name + " -- Observed and Predicted");
}

// The rows of the years that the line in the buffer lists, at most NYears of them.
RowList RowsOfListedYears() {
  RowList rows;
  std::string_view year = TokenFirst(Line());
  for (int i = 1; i <= NYears && !year.empty(); ++i) {
    const int row = ValInt(year) - NFYear + 1;
    if (row < 1 || row > NYears) throw RunTimeError(kErrSubscript);
    rows.push_back(row);
    year = TokenNext(Line());
  }
  return rows;
}

// Whether the report has a CPUE series; fills the table then.
bool ReadCpueSeries(Grid& grid) {
  // The line on the ages of the first survey ends the search when there is no series.
  if (!FindKey("AGE CLASSES") || LineHolds("SURVEY BIOMASS INDEX")) return false;
  const bool biomass = LineHolds("CPUE BIOMASS INDEX");
  if (!biomass && !LineHolds("CPUE NUMBERS INDEX")) return false;
  NameCpueIndex(biomass ? "CPUE Biomass Index" : "CPUE Numbers Index");
  SkipLines(2);
  ReadLine();
  const RowList rows = RowsOfListedYears();
  if (rows.empty()) return false;
  ReadDown(grid, 0, 1, rows);
  SkipLines(1);
  ReadDown(grid, 0, 2, RowsTo(NYears));
  for (const int residuals : {3, 4, 5}) {
    SkipLines(1);
    ReadDown(grid, 0, residuals, rows);
  }
  return true;
}

// A line of values that follows its key.
struct IndexStep {
  const char* first;  // null: the second key alone
  const char* second;
  const char* what;
  int column;
};

const IndexStep kResidualSteps[] = {
    {nullptr, "INDEX RESIDUALS (YEAR) FOR SURVEY:", "Biomass Index Residuals for Survey ", 4},
    {"LOG-SCALE", "INDEX RESIDUALS (YEAR) FOR SURVEY",
     "Standardized Log-Scale Biomass Index Residuals for Survey ", 5},
    {"STANDARDIZED LOG-SCALE", "INDEX RESIDUALS (YEAR) FOR SURVEY",
     "Standardized Log-Scale Biomass Index Residuals for Survey ", 6},
};

void ReadSurveyYears(int survey) {
  std::string_view year = TokenFirst(ReadLine());
  for (int i = 1; i <= SurvNYears(survey); ++i) {
    SurveyIndexYears(survey, 0, i) = ValInt(year);
    year = TokenNext(Line());
  }
}

void ReadSurveyIndex(Grid& grid, int survey) {
  const int base = (survey - 1) * NYears;
  if (!FindKeysInOrder("OBSERVED", "INDEX (YEAR) FOR SURVEY"))
    FailForSurvey("Observed Biomass Index for Survey ", survey);
  SurveyTypeWord = Word(Line(), 2);
  ReadSurveyYears(survey);
  const RowList rows = SurveyRows(survey);
  ReadDown(grid, base, 2, rows);
  if (!FindKeysInOrder("PREDICTED", "INDEX (YEAR) FOR SURVEY"))
    FailForSurvey("Predicted Biomass Index for Survey ", survey);
  ReadDown(grid, base, 3, RowsTo(NYears));
  for (const IndexStep& step : kResidualSteps) {
    const bool found = step.first ? FindKeysInOrder(step.first, step.second) : FindKey(step.second);
    if (!found) FailForSurvey(step.what, survey);
    ReadDown(grid, base, step.column, rows);
  }
}

// A block of rows of MSFlexGrid(4): the years of the survey or all years.
struct AgeStep {
  const char* key;
  const char* what;
  bool all_years;
};

// In the order of the four blocks of the table.
const AgeStep kAgeSteps[] = {
    {"OBSERVED PROPORTION AT AGE (YEAR,AGE) FOR SURVEY:", "Observed Survey Proportion at Age for Survey ",
     false},
    {"PREDICTED PROPORTION AT AGE (YEAR,AGE) FOR SURVEY:", "Predicted Survey Proportion at Age for Survey ",
     true},
    {"PROPORTION RESIDUALS AT AGE (YEAR,AGE) FOR SURVEY:", "Proportion Residuals at Age for Survey ", false},
    {"STANDARDIZED PROPORTION RESIDUALS AT AGE (YEAR,AGE) FOR SURVEY:",
     "Standardized Proportion Residuals at Age for Survey ", false},
};

void ReadSurveyAges(Grid& samples, Grid& proportions, int survey) {
  const RowList rows = SurveyRows(survey);
  if (!FindKey("AGE COMPOSITION INPUT SAMPLE SIZE"))
    FailForSurvey("Age Composition Input Sample Size for Survey ", survey);
  SkipLines(1);
  ReadDown(samples, 0, 2 * survey - 1, rows);
  if (!FindKey("AGE COMPOSITION ESTIMATED EFFECTIVE SAMPLE SIZE")) {
    FailForSurvey("Age Composition Estimated Effective Sample Size for Survey ", survey);
  }
  ReadDown(samples, 0, 2 * survey, rows);
  int base = 4 * NYears * (survey - 1);
  for (const AgeStep& step : kAgeSteps) {
    if (!FindKey(step.key)) FailForSurvey(step.what, survey);
    ReadBlock(proportions, base, 3, step.all_years ? RowsTo(NYears) : rows);
    base += NYears;
  }
}

}  // namespace

RowList FisheryAgeRows() {
  RowList rows;
  for (int i = 1; i <= FishAgeNYears; ++i) rows.push_back(FishAgeYears(i) - NFYear + 1);
  return rows;
}

RowList SurveyRows(int survey) {
  RowList rows;
  for (int i = 1; i <= SurvNYears(survey); ++i) rows.push_back(SurveyIndexYears(survey, 0, i) - NFYear + 1);
  return rows;
}

void ScanCpue() {
  frmOutput->SSTab1.SetTabEnabled(kPlotCpue, false);
  if (!ReadCpueSeries(PrepareResultTable(kTableCpue))) return;
  frmOutput->SSTab1.SetTabEnabled(kPlotCpue, true);
  frmOutput->Option27(0).SetValue(true);
}

void ScanSurveyIndices() {
  SurveyTypeWord.clear();
  SurveyIndexYears.ReDim(NIndex, 0, NYears);
  Grid& grid = PrepareResultTable(kTableSurveyIndex);
  for (int survey = 1; survey <= NIndex; ++survey) ReadSurveyIndex(grid, survey);
  frmOutputData->SSTab1.SetTabCaption(kPageSurveyIndex, " Survey " + SurveyTypeWord + " Index ");
  frmOutputData->Frame3.SetCaption("Survey " + SurveyTypeWord + " Index");
}

void ScanSurveyAges() {
  Grid& samples = PrepareResultTable(kTableSurveySample);
  Grid& proportions = PrepareResultTable(kTableSurveyAge);
  for (int survey = 1; survey <= NIndex; ++survey) ReadSurveyAges(samples, proportions, survey);
}

}  // namespace tarnvik
