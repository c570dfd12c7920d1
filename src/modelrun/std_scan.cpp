// The scan of the standard deviations.
#include <utility>

#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "modelrun/report_reader.h"
#include "modelrun/scan.h"
#include "platform/host.h"
#include "plots/output_plots.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

// The line that a run leaves instead of a file of standard deviations that the model did not write.
constexpr std::string_view kNoHessian = "Hessian matrix does not appear to be positive definite";

using Text = std::string_view;

int One() { return 1; }
int Years() { return NYears; }
int YearsButLast() { return NYears - 1; }
int Ages() { return NAges; }
int Periods() { return NSelPer; }
int Surveys() { return NIndex; }

// How many ages of a period have a parameter of their own.
int SelectivityAges(int period) {
  return ValInt(frmInput->ORVFlexGrid(kGridFisherySelAges).TextMatrix(period, 1));
}

int SelectivityParameters() {
  int count = 0;
  for (int period = 1; period <= NSelPer; ++period) count += SelectivityAges(period);
  return count;
}

// Element i of the selectivity parameters, which stand period by period.
std::pair<int, int> PeriodAndAge(int element) {
  int period = 1;
  for (; element > SelectivityAges(period); ++period) element -= SelectivityAges(period);
  return {period, element};
}

void PutPoint(int label, Text value, Text deviation) {
  frmSTD->lblEst(label).SetCaption(value);
  frmSTD->lblStd(label).SetCaption(deviation);
}

void PutPair(Grid& grid, int row, int col, Text value, Text deviation) {
  grid.SetTextMatrix(row, col, value);
  grid.SetTextMatrix(row, col + 1, deviation);
}

// Into the pair of columns of a period or a survey.
void PutColumnPair(int table, int row, int pair, Text value, Text deviation) {
  PutPair(ParameterTable(table), row, 2 * pair - 1, value, deviation);
}

void PutRatio(int label, Text deviation) { frmOutputData->lblRatioStdDev(label).SetCaption(deviation); }

enum class Match { Exact, Lower, ContainsUpper };

// A quantity of the file: its name, the number of its lines, and where element i of it goes.
struct Quantity {
  const char* name;
  Match match;
  int (*lines)();
  void (*put)(int i, Text value, Text deviation);
};

const Quantity kQuantities[] = {
    {"M", Match::Exact, One, [](int, Text v, Text d) { PutPoint(kPointM, v, d); }},
    {"mean_log_rec", Match::Exact, One, [](int, Text v, Text d) { PutPoint(kPointLogRec, v, d); }},
    {"rec_dev", Match::Exact, RecruitYears,
     [](int i, Text v, Text d) { PutPair(ParameterTable(kTableRecDevs), i, 1, v, d); }},
    {"log_avg_fmort", Match::Exact, One, [](int, Text v, Text d) { PutPoint(kPointLogF, v, d); }},
    {"fmort_dev", Match::Exact, Years,
     [](int i, Text v, Text d) { PutPair(ParameterTable(kTableFDevs), i, 1, v, d); }},
    {"QCPUE", Match::ContainsUpper, One, [](int, Text v, Text d) { PutPoint(kPointCpueQ, v, d); }},
    {"EXP_CPUE", Match::ContainsUpper, One, [](int, Text v, Text d) { PutPoint(kPointCpueExponent, v, d); }},
    {"log_selpar_fish", Match::Lower, SelectivityParameters,
     [](int i, Text v, Text d) {
       const auto [period, age] = PeriodAndAge(i);
       PutColumnPair(kTableFisheryParameters, age + 3, period, v, d);
     }},
    {"log_gamma_fish", Match::Lower, Periods,
     [](int i, Text v, Text d) { PutColumnPair(kTableFisheryParameters, 1, i, v, d); }},
    {"log_beta_fish", Match::Lower, Periods,
     [](int i, Text v, Text d) { PutColumnPair(kTableFisheryParameters, 2, i, v, d); }},
    {"log_a50_fish", Match::Lower, Periods,
     [](int i, Text v, Text d) { PutColumnPair(kTableFisheryParameters, 3, i, v, d); }},
    {"qsurvey", Match::Lower, Surveys,
     [](int i, Text v, Text d) { PutColumnPair(kTableSurveyParameters, 1, i, v, d); }},
    {"exp_survey", Match::Lower, Surveys,
     [](int i, Text v, Text d) { PutColumnPair(kTableSurveyParameters, 2, i, v, d); }},
    {"log_gamma_survey", Match::Lower, Surveys,
     [](int i, Text v, Text d) { PutColumnPair(kTableSurveyParameters, 3, i, v, d); }},
    {"log_beta_survey", Match::Lower, Surveys,
     [](int i, Text v, Text d) { PutColumnPair(kTableSurveyParameters, 4, i, v, d); }},
    {"log_a50_survey", Match::Lower, Surveys,
     [](int i, Text v, Text d) { PutColumnPair(kTableSurveyParameters, 5, i, v, d); }},
    {"meanr", Match::Lower, One, [](int, Text v, Text d) { PutPoint(kPointMeanRec, v, d); }},
    // The values of the rest stand in the report.
    {"popnbiom", Match::Exact, Years,
     [](int i, Text, Text d) { ResultTable(kTableBiomass).SetTextMatrix(i, 2, d); }},
    {"spawnbiom", Match::Exact, Years,
     [](int i, Text, Text d) { ResultTable(kTableBiomass).SetTextMatrix(i, 4, d); }},
    {"recruitment", Match::Exact, RecruitYears,
     [](int i, Text, Text d) { ResultTable(kTableRecruitment).SetTextMatrix(i, 2, d); }},
    {"explbiom", Match::Exact, Years,
     [](int i, Text, Text d) { ResultTable(kTableBiomass).SetTextMatrix(i, 6, d); }},
    {"surplus_production", Match::Exact, YearsButLast,
     [](int i, Text, Text d) { ResultTable(kTableSurplus).SetTextMatrix(i, 2, d); }},
    {"deppopnbiom", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioPopulation, d); }},
    {"deppopnbiom_depyr", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioPopulationRef, d); }},
    {"depspawnbiom", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioSpawningRef, d); }},
    {"depspawnbiom_depyr", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioSpawning, d); }},
    {"depF", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioF, d); }},
    {"depF_depyr", Match::Exact, One, [](int, Text, Text d) { PutRatio(kRatioFRef, d); }},
    {"endN", Match::Exact, Ages,
     [](int i, Text, Text d) {
       ResultTable(kTableNumbers).SetTextMatrix(ResultTable(kTableNumbers).Rows() - 2, i, d);
     }},
    {"projN", Match::Exact, Ages,
     [](int i, Text, Text d) {
       ResultTable(kTableNumbers).SetTextMatrix(ResultTable(kTableNumbers).Rows() - 1, i, d);
     }},
    {"fullF", Match::Exact, Years,
     [](int i, Text, Text d) { ResultTable(kTableAverageF).SetTextMatrix(i, 2, d); }},
    {"target_f_ratio", Match::Lower, Years,
     [](int i, Text, Text d) { ResultTable(kTableTargetF).SetTextMatrix(i, 2, d); }},
    {"limit_f_ratio", Match::Lower, Years,
     [](int i, Text, Text d) { ResultTable(kTableLimitF).SetTextMatrix(i, 2, d); }},
    {"target_spawnbiom_ratio", Match::Lower, Years,
     [](int i, Text, Text d) { ResultTable(kTableTargetSsb).SetTextMatrix(i, 2, d); }},
    {"limit_spawnbiom_ratio", Match::Lower, Years,
     [](int i, Text, Text d) { ResultTable(kTableLimitSsb).SetTextMatrix(i, 2, d); }},
};

bool Matches(const Quantity& quantity, Text name, const std::string& lower_name) {
  switch (quantity.match) {
    case Match::Exact:
      return name == quantity.name;
    case Match::Lower:
      return lower_name == quantity.name;
    case Match::ContainsUpper:
      return HoldsUpper(name, quantity.name);
  }
  return false;
}

// Reads the lines of a quantity, the line in the buffer being the first of them.
void TakeQuantity(const Quantity& quantity) {
  const int lines = quantity.lines();
  for (int i = 1; i <= lines; ++i) {
    if (i > 1) ReadLine();
    const Text value = Word(Line(), 3);
    quantity.put(i, value, TokenNext(Line()));
  }
}

void TakeLine() {
  const Text name = Word(Line(), 2);
  const std::string lower_name = LCase(name);
  for (const Quantity& quantity : kQuantities) {
    if (Matches(quantity, name, lower_name)) return TakeQuantity(quantity);
  }
}

// What the model holds fixed it does not report: it shows the value that the model was given.
void ShowInputSelectivity() {
  Grid& grid = ParameterTable(kTableFisheryParameters);
  MarkNotAvailable(grid, 2, 2);
  for (int period = 1; period <= NSelPer; ++period) {
    const int col = 2 * period - 1;
    for (int row = 1; row <= 3; ++row) {
      grid.SetTextMatrix(row, col, frmPin->ORVFlexGrid1(kPinFisheryCurve).TextMatrix(row, period));
    }
    for (int age = 1; age <= NAges; ++age) {
      const std::string& value = frmPin->ORVFlexGrid1(kPinFisheryByPeriod).TextMatrix(period, age);
      grid.SetTextMatrix(age + 3, col, IsBlank(value) ? Text(kNotAvailable) : Text(value));
    }
  }
}

void PrepareTables() {
  // A value of M that the report gave stays.
  for (Label* label : {&frmSTD->lblEst(kPointM), &frmSTD->lblStd(kPointM)}) {
    if (label->Caption().empty()) label->SetCaption(kNotAvailable);
  }
  for (const int label : {kPointLogRec, kPointCpueQ, kPointCpueExponent, kPointMeanRec})
    PutPoint(label, kNotAvailable, kNotAvailable);
  for (const int table : {kTableRecDevs, kTableFDevs, kTableFisheryParameters, kTableSurveyParameters})
    PrepareParameterTable(table);
  ShowInputSelectivity();
  MarkNotAvailable(ParameterTable(kTableSurveyParameters), 1);
}

}  // namespace

void ScanStdFile() {
  try {
    StdFileRead = kFalse;
    File1.Open(StdPath);
    if (Trim(ReadLine()) == kNoHessian) {
      File1.Close();
      SetMousePointer(Pointer::Default);
      ShowMessage(std::string("WARNING -- Standard Deviation File Contains No Data -- ") + kLineBreak +
                      "Hessian matrix may not be positive definite",
                  Icon::Exclamation);
      return;
    }
    PrepareTables();
    while (!File1.AtEnd()) {
      ReadLine();
      TakeLine();
    }
    File1.Close();
    SetMousePointer(Pointer::Default);
    BringFormToFront(frmOutputData);
    // The plots of the deviations draw only when the flag stands.
    StdFileRead = kTrue;
    RefreshOutputPlots();
    frmOutputData->SSTab1.SetTab(0);
  } catch (...) {
    const std::string error = CurrentErrorText();
    File1.Close();
    SetMousePointer(Pointer::Default);
    ShowMessage(
        std::string("Error Scanning in Standard Deviations File") + kLineBreak + StdPath + kLineBreak + error,
        Icon::Exclamation);
    UnloadForm(frmSTD);
  }
}

}  // namespace tarnvik
