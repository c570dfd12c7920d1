// Writer of the parameter file.

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/datafile_write.h"
#include "inputfiles/paramfile.h"
#include "platform/files.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

void PrintCells(OutputFile& file, const Grid& grid, int row, int count) {
  for (int col = 1; col <= count; ++col) PrintItem(file, grid.TextMatrix(row, col), kOneBlank);
  file.EndLine();
}

void PrintNeutral(OutputFile& file, const char* value, int count) {
  for (int i = 0; i < count; ++i) file.Print(value);
  file.EndLine();
}

void WriteField(OutputFile& file, int field) { file.PrintLine(frmPin->txtParmFile(field).Text()); }

void WriteDeviations(OutputFile& file, int index) {
  const Grid& grid = frmPin->ORVFlexGrid1(index);
  WriteColumn(file, grid, 1, grid.Rows() - 1, kOneBlank);
}

// The parameters of a selectivity function by their row in the grid: log gamma, log beta, log a50.
constexpr const char* kNeutralParameter[] = {nullptr, "-2.0 ", "0.0 ", "1.0 "};
constexpr int kLogGamma = 1;

void WriteFishParameter(OutputFile& file, int row) {
  const bool flat_topped = frmInput->opFishSelParametric(kFlatTopped).Value();
  if (frmInput->opFSelModel(kParametric).Value() && !(row == kLogGamma && flat_topped)) {
    const Grid& grid = frmPin->ORVFlexGrid1(kPinFisheryCurve);
    PrintCells(file, grid, row, grid.Cols() - 1);
  } else {
    PrintNeutral(file, kNeutralParameter[row], NSelPer);
  }
}

void WriteSurveyParameter(OutputFile& file, int row) {
  const bool flat_topped = frmInput->opSurvSelParametric(kFlatTopped).Value();
  if (frmInput->opSurvSelModel(kParametric).Value() && !(row == kLogGamma && flat_topped)) {
    const Grid& grid = frmPin->ORVFlexGrid1(kPinSurveyCurve);
    PrintCells(file, grid, row, grid.Cols() - 1);
  } else {
    PrintNeutral(file, kNeutralParameter[row], NIndex);
  }
}

void WriteSurveyIndex(OutputFile& file, int row) {
  const Grid& grid = frmPin->ORVFlexGrid1(kPinSurveyIndex);
  PrintCells(file, grid, row, grid.Cols() - 1);
}

// One line per row of a grid, each as long as the count of ages of that row; ones when the grid is not in
// use.
void WriteSelectivities(OutputFile& file, bool in_use, const Grid& values, const Grid& counts, int rows) {
  for (int row = 1; row <= rows; ++row) {
    const int ages = ValInt(counts.TextMatrix(row, 1));
    if (in_use) {
      PrintCells(file, values, row, ages);
    } else {
      PrintNeutral(file, "1 ", ages);
    }
  }
}

void WriteFishPeriods(OutputFile& file, int) {
  const bool in_use =
      frmInput->opFSelModel(kNonparametric).Value() && frmInput->opFishSelNonPar(kByPeriod).Value();
  WriteSelectivities(file, in_use, frmPin->ORVFlexGrid1(kPinFisheryByPeriod),
                     frmInput->ORVFlexGrid(kGridFisherySelAges), NSelPer);
}

void WriteSurveySelectivities(OutputFile& file, int) {
  const bool in_use = frmInput->opSurvSelModel(kNonparametric).Value();
  WriteSelectivities(file, in_use, frmPin->ORVFlexGrid1(kPinSurveyByAge),
                     frmInput->ORVFlexGrid(kGridSurveySelAges), NIndex);
}

// All years have one count of ages: the box's, when it stands in place of the counts by period.
int AnnualAges() {
  const TextBox& box = frmInput->txtFishSelAge;
  return ValInt(box.Enabled() && box.Visible() ? box.Text()
                                               : frmInput->ORVFlexGrid(kGridFisherySelAges).TextMatrix(1, 1));
}

void WriteFishYears(OutputFile& file, int) {
  const bool in_use =
      frmInput->opFSelModel(kNonparametric).Value() && frmInput->opFishSelNonPar(kAnnual).Value();
  const int ages = AnnualAges();
  for (int row = 1; row <= NYears; ++row) {
    if (in_use) {
      PrintCells(file, frmPin->ORVFlexGrid1(kPinFisheryAnnual), row, ages);
    } else {
      PrintNeutral(file, "1 ", ages);
    }
  }
}

// The file from its fourth line on.
struct Section {
  const char* comment;
  void (*write_values)(OutputFile& file, int argument) = nullptr;  // null: a heading
  int argument = 0;                                                // a field, a grid, or a row of a grid
  bool with_titles = false;                                        // the comment names the surveys
};

constexpr Section kSections[] = {
    {"# NATURAL MORTALITY (M)", WriteField, 0},
    {"# MEAN LOG RECRUITMENT (mean_log_rec) UNITS ARE THOUSANDS OF FISH", WriteField, 1},
    {"# RECRUITMENT DEVIATIONS (rec_dev) n=endyr-styr_rec+1", WriteDeviations, 0},
    {"# LOG of MEAN FISHING ANNUAL MORTALITY (log_avg_fmort)", WriteField, 2},
    {"# FISHING MORTALITY DEVIATIONS (fmort_dev) n=endyr-styr+1", WriteDeviations, 1},
    {"# FISHERY CPUE PARAMETERS"},
    {"# qCPUE", WriteField, 3},
    {"# exp_CPUE", WriteField, 4},
    {"# FISHERY SELECTIVITY PARAMETERS (1..nperiod)"},
    {"# log_gamma_FISH", WriteFishParameter, kLogGamma},
    {"# log_beta_FISH", WriteFishParameter, 2},
    {"# log_a50_FISH", WriteFishParameter, 3},
    {"# log_sel_period_FISH", WriteFishPeriods},
    {"# SURVEY INDEX PARAMETERS"},
    {"# qSURVEY", WriteSurveyIndex, 1, true},
    {"# exp_SURVEY", WriteSurveyIndex, 2, true},
    {"# log_gamma_SURVEY", WriteSurveyParameter, kLogGamma, true},
    {"# log_beta_SURVEY", WriteSurveyParameter, 2, true},
    {"# log_a50_SURVEY", WriteSurveyParameter, 3, true},
    {"# log_sel_period_SURVEY", WriteSurveySelectivities},
    {"# log_sel_annual_FISH", WriteFishYears},
};

void WriteSections(OutputFile& file) {
  file.PrintLine("# Statistical Catch-at-Age Model: Tarnvik Version 1.4");
  file.PrintLine("# Model Description:  " + frmInput->txtModel.Text());
  file.PrintLine("# FILE " + PinFilePath + " SETS INITIAL PARAMETER VALUES");
  for (const Section& section : kSections) {
    if (section.with_titles) {
      EndWithTitles(file, section.comment);
    } else {
      file.PrintLine(section.comment);
    }
    if (section.write_values) section.write_values(file, section.argument);
  }
}

}  // namespace

void WriteParameterFile() {
  FilesSaved = kFalse;
  PinFilePath = frmInput->lblFile(kFilePin).Caption();
  try {
    OutputFile file;
    file.Open(PinFilePath);
    WriteSections(file);
    file.Close();
    FilesSaved = kTrue;
  } catch (...) {
    ShowMessage(std::string("Error Saving Input Parameter File ") + kLineBreak + CurrentErrorText());
  }
}

}  // namespace tarnvik
