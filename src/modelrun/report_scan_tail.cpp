// The report's sections of words and single values: reference points, selectivity, likelihood, errors,
// mortality.
#include "core/globals.h"
#include "core/text.h"
#include "modelrun/report_scan.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

struct ReferencePoint {
  const char* key;
  const char* mark;  // stands before the value
  int label;
  int table;
};

const ReferencePoint kReferencePoints[] = {
    {"ANNUAL FISHING MORTALITY TO TARGET", "F=", kRatioTargetF, kTableTargetF},
    {"ANNUAL FISHING MORTALITY TO LIMIT", "F=", kRatioLimitF, kTableLimitF},
    {"ANNUAL SPAWNING BIOMASS TO TARGET", "SB=", kRatioTargetSsb, kTableTargetSsb},
    {"ANNUAL SPAWNING BIOMASS TO LIMIT", "SB=", kRatioLimitSsb, kTableLimitSsb},
};

// The value of the line in the buffer behind a mark. Two characters are taken for the mark, however long it
// is: a spawning biomass shows its equals sign, as it always has.
std::string_view ValueBehindMark(const char* mark) {
  const std::size_t at = FindUpper(Line(), mark);
  return at == std::string_view::npos ? std::string_view() : TokenFirst(Line().substr(at + 2));
}

// A line that lacks the key stays in the buffer for the next reference point.
void ScanReferencePoint(const ReferencePoint& point) {
  Grid& grid = PrepareResultTable(point.table);
  Label& label = frmOutputData->lblRatio(point.label);
  label.SetCaption("");
  if (!LineHolds(point.key)) return;
  label.SetCaption(ValueBehindMark(point.mark));
  ReadDown(grid, 0, 1, RowsTo(NYears));
  ReadLine();
}

void SetSummary(int index, int word) { frmOutputData->lblSumm(index).SetCaption(Word(Line(), word)); }

void ReadSummary(int index, int word) {
  ReadLine();
  SetSummary(index, word);
}

// The line of the CPUE series, which only a report with such a series has: reads one line, and a second one
// when the first was that line, so that the line in the buffer is the one behind it.
void ReadCpueSummary(int index, Label& caption) {
  ReadLine();
  if (TokenFirst(Line()) != "CPUE") {
    frmOutputData->lblSumm(index).SetCaption(kNotAvailable);
    return;
  }
  caption.SetCaption("CPUE " + std::string(TokenNext(Line())) + " Index");
  SetSummary(index, 4);
  ReadLine();
}

// A value per survey, the first one in the line in the buffer.
void ReadSurveySummaries(Grid& grid, Label& caption, int word) {
  caption.SetCaption("Survey " + SurveyTypeWord + " Index");
  for (int survey = 1; survey <= NIndex; ++survey) {
    if (survey > 1) ReadLine();
    grid.SetTextMatrix(survey, 1, Word(Line(), word));
  }
}

// Values at age behind the equals sign of a line, if it is the one with the key; the next line is read then.
void TakeAtAge(const char* key, Grid& grid) {
  if (!LineHolds(key)) return;
  PutDown(grid, 0, 1, RowsTo(NAges), TextBehindEquals());
  ReadLine();
}

}  // namespace

void ScanReferencePoints() {
  Label& initial = frmOutputData->lblRatio(kRatioInitialF);
  ReadLine();
  if (LineHolds("INITIAL EQUILIBRIUM FISHING MORTALITY")) {
    initial.SetCaption(TokenFirst(ReadLine()));
    ReadLine();
  } else {
    initial.SetCaption(kNotAvailable);
  }
  for (const ReferencePoint& point : kReferencePoints) ScanReferencePoint(point);
}

void ScanFisherySelectivity() {
  Grid& grid = PrepareResultTable(kTableFisherySelectivity);
  Array1<std::int16_t> starts;
  starts.ReDim(NSelPer);
  for (int period = 1; period <= NSelPer; ++period) {
    starts(period) = ValInt(Word(ReadLine(), 5));
    SkipLines(1);
    ReadDown(grid, 0, period, RowsTo(NAges));
  }
  // All periods but the last are headed from the first year of the data; so is an only one.
  for (int period = 1; period <= NSelPer; ++period) {
    const bool last = period == NSelPer;
    const int from = last && NSelPer > 1 ? starts(period) : NFYear;
    const int to = last ? NXYear : starts(period + 1) - 1;
    grid.SetTextMatrix(
        0, period,
        "Period " + std::to_string(period) + ": " + std::to_string(from) + "-" + std::to_string(to));
  }
}

void ScanSurveySelectivity() {
  Grid& grid = PrepareResultTable(kTableSurveySelectivity);
  for (int survey = 1; survey <= NIndex; ++survey) {
    SkipLines(survey > 1 ? 2 : 1);
    ReadDown(grid, 0, survey, RowsTo(NAges));
  }
}

void ScanLikelihood() {
  PrepareLikelihoodTables();
  ReadSummary(kLikelihoodRecruitment, 3);
  ReadSummary(kLikelihoodFisheryAge, 4);
  for (int survey = 1; survey <= NIndex; ++survey) {
    frmOutputData->MSFlexGrid1.SetTextMatrix(survey, 1, Word(ReadLine(), 5));
  }
  ReadSummary(kLikelihoodSelectivity, 3);
  ReadSummary(kLikelihoodCatch, 3);
  ReadCpueSummary(kLikelihoodCpue, frmOutputData->LabelCPUE1);
  ReadSurveySummaries(frmOutputData->MSFlexGrid2, frmOutputData->Label8(kLabelLikelihoodIndex), 5);
  ReadSummary(kLikelihoodF, 5);
}

void ScanErrors() {
  PrepareErrorTables();
  ReadSummary(kErrorRecruitment, 3);
  ReadSummary(kErrorCatch, 3);
  ReadCpueSummary(kErrorCpue, frmOutputData->LabelCPUE2);
  ReadSurveySummaries(frmOutputData->MSFlexGrid3, frmOutputData->Label8(kLabelErrorIndex), 4);
  ReadSummary(kErrorF, 4);
}

void ScanFisheryAgeErrors() {
  Grid& grid = frmOutputData->MSFlexGrid4;
  const RowList rows = RowsTo(FishAgeNYears);
  PutDown(grid, 0, 0, rows, Line(), 3);
  ReadDown(grid, 0, 1, rows, 4);
}

void ScanSurveyAgeErrors() {
  for (int survey = 1; survey <= NIndex; ++survey) {
    if (survey > 1) SkipLines(1);
    ReadDown(frmOutputData->MSFlexGrid5, 0, survey, SurveyRows(survey), 4);
  }
}

void ScanNaturalMortality() {
  ReadLine();
  if (LineHolds("M SCALAR")) {
    frmSTD->lblEst(kPointM).SetCaption(Trim(TextBehindEquals()));
    ReadLine();
  }
  TakeAtAge("M MULT", PrepareParameterTable(kTableMMultiplier));
  TakeAtAge("M AT AGE", PrepareParameterTable(kTableMAtAge));
  if (LineHolds("UNFISHED MEAN REC"))
    frmOutputData->lblUnfished(kUnfishedMeanRec).SetCaption(Trim(TextBehindEquals()));
}

}  // namespace tarnvik
