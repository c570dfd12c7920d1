// The scan of the output parameters, which take the place of standard deviations that the model could not
// give.
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "modelrun/report_reader.h"
#include "modelrun/scan.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "plots/output_plots.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/result_tables.h"

namespace tarnvik {

namespace {

using Text = std::string_view;

int One() { return 1; }
int Periods() { return NSelPer; }
int Surveys() { return NIndex; }
int DataRows(int table) { return ParameterTable(table).Rows() - 1; }

template <int label>
void PutPoint(int, Text value) {
  frmSTD->lblEst(label).SetCaption(value);
}

template <int table>
void PutRow(int i, Text value) {
  ParameterTable(table).SetTextMatrix(i, 1, value);
}

// Into the value column of a period or a survey.
template <int table, int row>
void PutPairValue(int pair, Text value) {
  ParameterTable(table).SetTextMatrix(row, 2 * pair - 1, value);
}

// A parameter of the file: a key in the line before its values, and where value i goes.
struct Parameter {
  const char* key;      // in upper case
  const char* missing;  // the message when the key is missing
  int (*values)();
  void (*put)(int i, Text value);
};

const Parameter kParameters[] = {
    {"# M:", "Unable to Retrieve M from Output Parameter File", One, PutPoint<kPointM>},
    {"MEAN_LOG_REC", "Unable to Retrieve Mean Log Recruitment from Output Parameter File", One,
     PutPoint<kPointLogRec>},
    {"REC_DEV", "Unable to Retrieve Recruitment Deviations from Output Parameter File",
     [] { return DataRows(kTableRecDevs); }, PutRow<kTableRecDevs>},
    {"LOG_AVG_FMORT", "Unable to Retrieve Log of Average F from Output Parameter File", One,
     PutPoint<kPointLogF>},
    {"FMORT_DEV", "Unable to Retrieve Fishing Mortality Deviations from Output Parameter File",
     [] { return DataRows(kTableFDevs); }, PutRow<kTableFDevs>},
    {"# QCPUE", "Unable to Retrieve CPUE q from Output Parameter File", One, PutPoint<kPointCpueQ>},
    {"EXP_CPUE", "Unable to Retrieve CPUE Exponent from Output Parameter File", One,
     PutPoint<kPointCpueExponent>},
    {"LOG_GAMMA_FISH", "Unable to Retrieve the Fishery Selectivity Log Gamma from Output Parameter File",
     Periods, PutPairValue<kTableFisheryParameters, 1>},
    {"LOG_BETA_FISH", "Unable to Retrieve Fishery Selectivity Log Beta from Output Parameter File", Periods,
     PutPairValue<kTableFisheryParameters, 2>},
    {"LOG_A50_FISH", "Unable to Retrieve Fishery Selectivity Log a50 from Output Parameter File", Periods,
     PutPairValue<kTableFisheryParameters, 3>},
};

// Behind the selectivities at age, which have a line for each period.
const Parameter kSurveyParameters[] = {
    {"QSURVEY", "Unable to Retrieve Survey q from Output Parameter File", Surveys,
     PutPairValue<kTableSurveyParameters, 1>},
    {"EXP_SURVEY", "Unable to Retrieve Survey Exponent from Output Parameter File", Surveys,
     PutPairValue<kTableSurveyParameters, 2>},
    {"LOG_GAMMA_SURVEY", "Unable to Retrieve Survey Log Gamma from Output Parameter File", Surveys,
     PutPairValue<kTableSurveyParameters, 3>},
    {"LOG_BETA_SURVEY", "Unable to Retrieve Survey Log Beta from Output Parameter File", Surveys,
     PutPairValue<kTableSurveyParameters, 4>},
    {"LOG_A50_SURVEY", "Unable to Retrieve Survey Log a50 from Output Parameter File", Surveys,
     PutPairValue<kTableSurveyParameters, 5>},
};

// Whether the key was found; says so if not. The values stand in the next line.
bool FindParameter(const char* key, const char* missing) {
  if (FindKey(key)) {
    ReadLine();
    return true;
  }
  ShowMessage(missing, Icon::Exclamation);
  return false;
}

void ScanParameter(const Parameter& parameter) {
  const bool found = FindParameter(parameter.key, parameter.missing);
  Text value = found ? TokenFirst(Line()) : kNotAvailable;
  for (int i = 1; i <= parameter.values(); ++i) {
    parameter.put(i, value);
    if (found) value = TokenNext(Line());
  }
}

void ScanFisherySelectivityAtAge() {
  const bool found =
      FindParameter("LOG_SELPAR_FISH",
                    "Unable to Retrieve Log of Fishery Selectivity Parameters from Output Parameter File");
  for (int period = 1; period <= NSelPer; ++period) {
    if (found && period > 1) ReadLine();
    Text value = found ? TokenFirst(Line()) : kNotAvailable;
    // A period may have fewer parameters than there are ages.
    for (int age = 1; age <= NAges && !value.empty(); ++age) {
      ParameterTable(kTableFisheryParameters).SetTextMatrix(age + 3, 2 * period - 1, value);
      if (found) value = TokenNext(Line());
    }
  }
}

void MarkDeviationsMissing() {
  Grid& numbers = ResultTable(kTableNumbers);
  for (int col = 1; col < numbers.Cols(); ++col)
    numbers.SetTextMatrix(numbers.Rows() - 1, col, kNotAvailable);
  MarkNotAvailable(ResultTable(kTableBiomass), 2, 2);
  for (const int table : {kTableRecruitment, kTableSurplus, kTableAverageF}) {
    Grid& grid = ResultTable(table);
    for (int row = 1; row < grid.Rows(); ++row) grid.SetTextMatrix(row, 2, kNotAvailable);
  }
  frmOutputData->lblRatioStdDev.ForEach([](Label& label) { label.SetCaption(kNotAvailable); });
}

void DisableBox(TextBox& box) {
  box.SetText("");
  box.SetEnabled(false);
  box.SetBackColor(kButtonFace);
}

void DisableBands() {
  OutputForm& plots = *frmOutput;
  plots.txtSTDplus.ForEach(DisableBox);
  plots.txtSTDminus.ForEach(DisableBox);
  for (CommandButton* button : {&plots.cmdPlot6, &plots.cmdPlot9, &plots.cmdPlot11, &plots.cmdPlot12,
                                &plots.cmdPlot23, &plots.cmdPlot25, &plots.cmdPlot26}) {
    button->SetEnabled(false);
  }
}

void DisableParameterBands() {
  frmSTD->txtSTDplus.ForEach(DisableBox);
  frmSTD->txtSTDminus.ForEach(DisableBox);
  frmSTD->cmdPlot19.SetEnabled(false);
  frmSTD->cmdPlot20.SetEnabled(false);
}

void PrepareTables() {
  frmSTD->lblStd.ForEach([](Label& label) { label.SetCaption(kNotAvailable); });
  for (const int table : {kTableRecDevs, kTableFDevs, kTableFisheryParameters, kTableSurveyParameters})
    MarkNotAvailable(PrepareParameterTable(table), 2, 2);
}

void ScanParameters(const std::string& path) {
  File1.Open(path);
  for (const Parameter& parameter : kParameters) ScanParameter(parameter);
  ScanFisherySelectivityAtAge();
  for (const Parameter& parameter : kSurveyParameters) ScanParameter(parameter);
  File1.Close();
  ParFileRead = kTrue;
  SetMousePointer(Pointer::Default);
  RefreshOutputPlots();
}

}  // namespace

void ScanParFile() {
  std::string path;
  try {
    ParFileRead = kFalse;
    MarkDeviationsMissing();
    DisableBands();
    PrepareTables();
    DisableParameterBands();
    path = WithEnding(frmInput->lblCTL.Caption(), "par");
    if (FileExists(path)) return ScanParameters(path);
    ShowMessage("Output Parameter File Missing", Icon::Exclamation);
    UnloadForm(frmSTD);
    SetMousePointer(Pointer::Default);
    RefreshOutputPlots();
    BringFormToFront(frmOutputData);
  } catch (...) {
    const std::string error = CurrentErrorText();
    File1.Close();
    SetMousePointer(Pointer::Default);
    ShowMessage(std::string("Error Scanning in Output Parameters") + kLineBreak + path + kLineBreak + error,
                Icon::Exclamation);
    UnloadForm(frmSTD);
    ParFileRead = kFalse;
  }
}

}  // namespace tarnvik
