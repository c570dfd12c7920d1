#include "results/result_tables.h"

#include <string>
#include <vector>

#include "core/globals.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"

namespace tarnvik {

namespace {

using Texts = std::vector<std::string>;

// What the data rows of a table stand for, which gives their number and their labels.
enum class Down {
  Years,
  YearsButLast,  // surplus production needs the year after
  RecruitYears,
  RecruitYearsRead,  // the label column is filled from the report, here and in the next
  FisheryAgeYears,
  Ages,
  Surveys
};

// What the columns behind the fixed headings stand for.
enum class Across { Nothing, Ages, Surveys, SurveySamples, SurveyErrors, Periods };

struct TableDesign {
  int table;
  Down rows;
  Texts headings;
  Across columns = Across::Nothing;
  bool not_available = false;  // its values start as "N/A"
};

const TableDesign kResultTables[] = {
    {kTableAgeF, Down::Years, {"Year"}, Across::Ages},
    {kTableBiomass,
     Down::Years,
     {"Year", "Population Biomass", "Population Biomass Std Dev", "Spawning Biomass",
      "Spawning Biomass Std Dev", "Exploitable Biomass", "Exploitable Biomass Std Dev"}},
    {kTableRecruitment,
     Down::RecruitYearsRead,
     {"Year", "Recruitment", "Standard Deviations", "Standardized Log-Scale Residuals"}},
    {kTableCatch,
     Down::Years,
     {"Year", "Observed", "Predicted", "Residuals", "Standarized Log-Scale Resid."}},
    {kTableSurplus, Down::YearsButLast, {"Year", "Surplus Production", "Std Dev."}},
    {kTableAverageF, Down::Years, {"Year", "Estimated Avg. F", "Std Dev", "Standarized Log-Scale Resid."}},
    {kTableTargetF, Down::Years, {"Year", "Ratio", "Std Dev"}, Across::Nothing, true},
    {kTableLimitF, Down::Years, {"Year", "Ratio", "Std Dev"}, Across::Nothing, true},
    {kTableTargetSsb, Down::Years, {"Year", "Ratio", "Std Dev"}, Across::Nothing, true},
    {kTableLimitSsb, Down::Years, {"Year", "Ratio", "Std Dev"}, Across::Nothing, true},
    {kTableFisherySelectivity, Down::Ages, {""}, Across::Periods},
    {kTableSurveySelectivity, Down::Ages, {""}, Across::Surveys},
    {kTableFisherySample, Down::FisheryAgeYears, {"Year", "Input", "Estimated"}},
    {kTableSurveySample, Down::Years, {"Year"}, Across::SurveySamples, true},
    {kTableCpue,
     Down::Years,
     {"Year", "Observed", "Predicted", "Residuals", "Log-Scale Resid.", "Std. Log-Scale Resid."},
     Across::Nothing,
     true},
    {kTableAnnualSelectivity, Down::Years, {"Year"}, Across::Ages},
    {kTableUnfishedWeight, Down::Ages, {"", "Weight"}},
    {kTableUnfishedSpawnings, Down::Ages, {"", "Weight"}},
    {kTableUnfishedFraction, Down::Years, {"", "Fraction"}},
    {kTableCatchAtAge, Down::Years, {"Year"}, Across::Ages},
    {kTablePopulationAtAge, Down::Years, {"Year"}, Across::Ages},
    {kTableSpawningAtAge, Down::Years, {"Year"}, Across::Ages},
    {kTableExploitableAtAge, Down::Years, {"Year"}, Across::Ages},
};

const TableDesign kParameterTables[] = {
    {kTableRecDevs, Down::RecruitYears, {"Year", "Rec. Dev.", "Std. Dev."}},
    {kTableFDevs, Down::Years, {"Year", "F Mort. Dev.", "Std. Dev."}},
    {kTableMMultiplier, Down::Ages, {"", "M-mult"}, Across::Nothing, true},
    {kTableMAtAge, Down::Ages, {"", "M"}, Across::Nothing, true},
};

const Texts kBlocks = {"Observed", "Predicted", "Residuals", "Std. Resid."};

// "Age 1", "Age 2" ...; one text for each number and ending: "Survey 1 Input", "Survey 1 Estimated" ...
Texts Numbered(const std::string& before, int count, const Texts& endings = {""}) {
  Texts texts;
  for (int i = 1; i <= count; ++i) {
    for (const std::string& ending : endings) texts.push_back(before + std::to_string(i) + ending);
  }
  return texts;
}

Texts YearTexts(int first, int count) {
  Texts texts;
  for (int i = 0; i < count; ++i) texts.push_back(std::to_string(first + i));
  return texts;
}

Texts LabelsOf(Down rows) {
  switch (rows) {
    case Down::Years:
      return YearTexts(NFYear, NYears);
    case Down::YearsButLast:
      return YearTexts(NFYear, NYears - 1);
    case Down::RecruitYears:
      return YearTexts(RecYr, RecruitYears());
    case Down::RecruitYearsRead:
      return Texts(static_cast<std::size_t>(std::max(RecruitYears(), 0)));
    case Down::FisheryAgeYears:
      return Texts(static_cast<std::size_t>(std::max<int>(FishAgeNYears, 0)));
    case Down::Ages:
      return Numbered("Age ", NAges);
    case Down::Surveys:
      return Numbered("Survey ", NIndex);
  }
  return {};
}

Texts HeadingsOf(Across columns) {
  switch (columns) {
    case Across::Nothing:
      return {};
    case Across::Ages:
      return Numbered("Age ", NAges);
    case Across::Surveys:
      return Numbered("Survey ", NIndex);
    case Across::SurveySamples:
      return Numbered("Survey ", NIndex, {" Input", " Estimated"});
    case Across::SurveyErrors:
      return Numbered("Survey ", NIndex, {" RMS Error"});
    case Across::Periods:
      return Texts(static_cast<std::size_t>(std::max<int>(NSelPer, 0)));
  }
  return {};
}

// An empty table of that many data rows below its headings.
void LayOut(Grid& grid, long long rows, const Texts& headings) {
  CheckTableSize(rows + 1, static_cast<long long>(headings.size()));
  grid.Resize(0, 0);
  grid.Resize(static_cast<int>(rows + 1), static_cast<int>(headings.size()));
  for (std::size_t c = 0; c < headings.size(); ++c) grid.SetTextMatrix(0, static_cast<int>(c), headings[c]);
}

// Labels below the heading of a column, from a row on.
void PutLabels(Grid& grid, int col, const Texts& labels, int row = 1) {
  for (const std::string& label : labels) grid.SetTextMatrix(row++, col, label);
}

void Prepare(Grid& grid, const TableDesign& design) {
  const Texts labels = LabelsOf(design.rows);
  Texts headings = design.headings;
  for (std::string& heading : HeadingsOf(design.columns)) headings.push_back(std::move(heading));
  LayOut(grid, static_cast<long long>(labels.size()), headings);
  PutLabels(grid, 0, labels);
  if (design.not_available) MarkNotAvailable(grid, 1);
}

// Four blocks of NYears rows below each other, from a row on.
void PutBlockLabels(Grid& grid, int row, int col) {
  const Texts years = YearTexts(NFYear, NYears);
  for (const std::string& block : kBlocks) {
    PutLabels(grid, col, Texts(years.size(), block), row);
    PutLabels(grid, col + 1, years, row);
    row += NYears;
  }
}

void FillJumpList(ComboBox& list, const Texts& entries) {
  list.Clear();
  for (const std::string& entry : entries) list.AddItem(entry);
  if (list.ListCount() > 0) list.SetListIndex(0);
}

void PrepareNumbers(Grid& grid) {
  Texts headings = HeadingsOf(Across::Ages);
  headings.insert(headings.begin(), "Year");
  Texts labels = YearTexts(NFYear, NYears + 1);
  labels.insert(labels.end(), {"Last Year Std. Dev.", "Proj Year Std. Dev."});
  LayOut(grid, static_cast<long long>(labels.size()), headings);
  PutLabels(grid, 0, labels);
}

void PrepareSurveyIndex(Grid& grid) {
  LayOut(
      grid, static_cast<long long>(NIndex) * NYears,
      {"Survey", "Year", "Observed", "Predicted", "Residuals", "Log-Scale Resid.", "Std. Log-Scale Resid."});
  grid.ColsInView = 2;
  const Texts years = YearTexts(NFYear, NYears);
  const Texts surveys = LabelsOf(Down::Surveys);
  int row = 1;
  for (const std::string& survey : surveys) {
    PutLabels(grid, 0, Texts(years.size(), survey), row);
    PutLabels(grid, 1, years, row);
    row += NYears;
  }
  MarkNotAvailable(grid, 2);
  FillJumpList(frmOutputData->cmbJumpSurvey, surveys);
}

void PrepareFisheryAges(Grid& grid) {
  Texts headings = HeadingsOf(Across::Ages);
  headings.insert(headings.begin(), {"Data Type", "Year"});
  LayOut(grid, 4LL * NYears, headings);
  grid.ColsInView = 2;
  PutBlockLabels(grid, 1, 0);
  MarkNotAvailable(grid, 2);
  FillJumpList(frmOutputData->Combo1, {"Observed", "Predicted", "Residuals", "Standardized Residuals"});
}

void PrepareSurveyAges(Grid& grid) {
  Texts headings = HeadingsOf(Across::Ages);
  headings.insert(headings.begin(), {"Survey", "Data Type", "Year"});
  LayOut(grid, 4LL * NYears * NIndex, headings);
  grid.ColsInView = 3;
  int row = 1;
  for (const std::string& survey : LabelsOf(Down::Surveys)) {
    PutLabels(grid, 0, Texts(static_cast<std::size_t>(4 * NYears), survey), row);
    PutBlockLabels(grid, row, 1);
    row += 4 * NYears;
  }
  MarkNotAvailable(grid, 3);
  FillJumpList(
      frmOutputData->Combo2,
      Numbered("Survey ", NIndex, {" - Observed", " - Predicted", " - Residuals", " - Standardized Resid."}));
}

void PrepareFisherySelectivityParameters(Grid& grid) {
  Texts headings = Numbered("Sel. Period ", NSelPer, {" Value", " Std. Dev."});
  headings.insert(headings.begin(), "");
  Texts labels = Numbered("Log Sel. Par. - Age ", NAges);
  labels.insert(labels.begin(), {"Log gamma", "Log beta", "Log a50"});
  LayOut(grid, static_cast<long long>(labels.size()), headings);
  PutLabels(grid, 0, labels);
}

void PrepareSurveyParameters(Grid& grid) {
  Texts headings = Numbered("Survey ", NIndex, {" Value", " Std. Dev."});
  headings.insert(headings.begin(), "");
  LayOut(grid, 5, headings);
  PutLabels(grid, 0, {"Survey q", "Survey exp", "Log gamma", "Log beta", "Log a50"});
}

void PrepareSummaryTable(Grid& grid, const TableDesign& design) {
  Prepare(grid, design);
  grid.SetFormatString("<|<");
}

}  // namespace

Grid& ResultTable(int table) { return frmOutputData->MSFlexGrid(table); }
Grid& ParameterTable(int table) { return frmSTD->MSFlexGrid(table); }

Grid& PrepareResultTable(int table) {
  Grid& grid = ResultTable(table);
  switch (table) {
    case kTableNumbers:
      PrepareNumbers(grid);
      break;
    case kTableSurveyIndex:
      PrepareSurveyIndex(grid);
      break;
    case kTableFisheryAge:
      PrepareFisheryAges(grid);
      break;
    case kTableSurveyAge:
      PrepareSurveyAges(grid);
      break;
    default:
      for (const TableDesign& design : kResultTables) {
        if (design.table == table) Prepare(grid, design);
      }
  }
  return grid;
}

Grid& PrepareParameterTable(int table) {
  Grid& grid = ParameterTable(table);
  switch (table) {
    case kTableFisheryParameters:
      PrepareFisherySelectivityParameters(grid);
      break;
    case kTableSurveyParameters:
      PrepareSurveyParameters(grid);
      break;
    default:
      for (const TableDesign& design : kParameterTables) {
        if (design.table == table) Prepare(grid, design);
      }
  }
  return grid;
}

void PrepareLikelihoodTables() {
  const TableDesign design = {0, Down::Surveys, {"Survey", "Like. Comp."}};
  PrepareSummaryTable(frmOutputData->MSFlexGrid1, design);
  PrepareSummaryTable(frmOutputData->MSFlexGrid2, design);
}

void PrepareErrorTables() {
  PrepareSummaryTable(frmOutputData->MSFlexGrid3, {0, Down::Surveys, {"Survey", "RMS Error"}});
  PrepareSummaryTable(frmOutputData->MSFlexGrid4, {0, Down::FisheryAgeYears, {"Year", "RMS Error"}});
  Prepare(frmOutputData->MSFlexGrid5, {0, Down::Years, {"Year"}, Across::SurveyErrors, true});
}

void MarkNotAvailable(Grid& grid, int first, int step) {
  for (int row = 1; row < grid.Rows(); ++row) {
    for (int col = first; col < grid.Cols(); col += step) grid.SetTextMatrix(row, col, kNotAvailable);
  }
}

int RecruitYears() { return NXYear - RecYr + 1; }

}  // namespace tarnvik
