// Reader of the parameter file.

#include <algorithm>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/grids.h"
#include "inputedit/options.h"
#include "inputedit/year_grids.h"
#include "inputfiles/datafile_read.h"
#include "inputfiles/file_version.h"
#include "inputfiles/paramfile.h"
#include "platform/host.h"
#include "plots/input_plots.h"

namespace tarnvik {

namespace {

void ShowReadError(const std::string& reason) {
  ShowMessage(std::string("Error Reading Parameter Input File") + kLineBreak + reason);
}

// The version in the first line, which is a comment whether it names one or not.
double ReadVersion() {
  const double version = FileVersion(File1.ReadLine()).value_or(0.0);
  if (version < kVersionCurrent) {
    ShowMessage(std::string("Parameter Input File is from a Previous Version") + kLineBreak +
                    "Please Check Data for Completeness and Accuracy",
                Icon::Information);
  }
  return version;
}

// Words of a line into the row's columns from 1 on; columns for which the line has no word become empty.
void FillRow(Grid& grid, int row, int count, std::string_view line) {
  LineWords words(line);
  for (int col = 1; col <= std::min(count, grid.Cols() - 1); ++col)
    grid.SetTextMatrix(row, col, words.Next());
}

// The same down the rows of column 1.
void FillDeviations(Grid& grid, int count, std::string_view line) {
  LineWords words(line);
  for (int row = 1; row <= std::min(count, grid.Rows() - 1); ++row) grid.SetTextMatrix(row, 1, words.Next());
}

void ReadRecruitmentDeviations() {
  const int count = NXYear - RecYr + 1;
  const std::string_view line = ReadDataLine();
  UpdateRecDevGrid();
  FillDeviations(frmPin->ORVFlexGrid1(kPinRecDevs), count, line);
}

void ReadFishingDeviations() {
  const std::string_view line = ReadDataLine();
  UpdateFMortDevGrid();
  FillDeviations(frmPin->ORVFlexGrid1(kPinFDevs), NYears, line);
}

// log gamma, log beta and log a50, one column per period or survey.
void ReadSelectivityParameters(Grid& grid, int columns) {
  for (int row = 1; row <= 3; ++row) FillRow(grid, row, columns, ReadDataLine());
}

// One physical line for each row, behind a comment. With a warning text, a comment in place of a line ends
// the table: the file has fewer rows than the case, and the comment is used up.
void ReadSelectivities(Grid& grid, int rows, const char* warning) {
  File1.ReadLine();
  for (int row = 1; row <= rows && !File1.AtEnd(); ++row) {
    const std::string_view line = File1.ReadLine();
    if (warning && TokenFirst(line).starts_with('#')) {
      ShowMessage(warning, Icon::Exclamation);
      return;
    }
    FillRow(grid, row, NAges, line);
  }
}

void ReadFishery(double version) {
  constexpr int kParametric = 32, kByPeriod = 33, kAnnual = 37;
  for (const int grid : {kParametric, kByPeriod, kAnnual}) BuildGrid(grid);
  ApplyFishSelModel();
  ReadSelectivityParameters(frmPin->ORVFlexGrid1(kPinFisheryCurve), NSelPer);
  if (version >= 1.3) {
    ReadSelectivities(
        frmPin->ORVFlexGrid1(kPinFisheryByPeriod), NSelPer,
        "Warning: Parameter Input File Fishery Selectivity Periods Do Not Match General Parameters");
  }
}

// Goes on behind the comment of the survey index parameters; false when there is none.
bool FindSurveyIndex() {
  while (!File1.AtEnd()) {
    if (HoldsUpper(File1.ReadLine(), "QSURVEY")) return true;
  }
  return false;
}

void ReadSurveys(double version) {
  constexpr int kParametric = 35, kNonparametric = 36;
  Grid& index = frmPin->ORVFlexGrid1(kPinSurveyIndex);
  FillRow(index, 1, NIndex, File1.ReadLine());
  FillRow(index, 2, NIndex, ReadDataLine());
  for (const int grid : {kParametric, kNonparametric}) BuildGrid(grid);
  ApplySurvSelModel();
  ReadSelectivityParameters(frmPin->ORVFlexGrid1(kPinSurveyCurve), NIndex);
  if (version >= 1.4) {
    ReadSelectivities(frmPin->ORVFlexGrid1(kPinSurveyByAge), NIndex,
                      "Warning: Parameter Input File Number of Surveys Do Not Match General Parameters");
  }
}

// Reads the open file. False, with a message, when it has no survey index parameters.
bool ReadParameters() {
  constexpr int kSurveyIndex = 34;
  const ControlArray<TextBox>& field = frmPin->txtParmFile;
  const double version = ReadVersion();
  ReadField(field(0));
  ReadField(field(1));
  ReadRecruitmentDeviations();
  field(2).SetText(TokenFirst(ReadDataLine()));
  ReadFishingDeviations();
  if (version >= 1.2) {
    ReadField(field(3));
    ReadField(field(4));
  }
  ReadFishery(version);
  BuildGrid(kSurveyIndex);
  if (!FindSurveyIndex()) {
    ShowReadError("Unable to Retrieve Survey Index Parameters");
    return false;
  }
  ReadSurveys(version);
  if (version >= 1.4) ReadSelectivities(frmPin->ORVFlexGrid1(kPinFisheryAnnual), NYears, nullptr);
  return true;
}

// What a case with parameters can do, and what it can do with data as well.
void OfferCommands() {
  MainForm& menu = *frmMain;
  const bool with_data = DatFileOpen == kTrue;
  if (with_data) {
    menu.mnuFileSaveAll.SetEnabled(true);
    menu.mnuFileSaveAllAs.SetEnabled(true);
    menu.mnuFileSaveControlAs.SetEnabled(true);
  }
  menu.mnuFileSavePinAs.SetEnabled(true);
  if (with_data) {
    menu.mnuFileSaveDataAs.SetEnabled(true);
    menu.mnuDataPlotInput.SetEnabled(true);
    RefreshInputPlots();
  }
  menu.mnuModelRun.SetEnabled(true);
  menu.mnuOptionsFileView.SetEnabled(true);
  menu.mnuWindow.SetEnabled(true);
}

}  // namespace

void ReadParameterFile() {
  try {
    ActivateForm(frmPin);
    PinFileOpen = kFalse;
    File1.Open(PinFilePath);
    const bool read = ReadParameters();
    File1.Close();
    if (!read) return;
    PinFileOpen = kTrue;
    OfferCommands();
    ShowPath(frmInput->lblFile(kFilePin), PinFilePath);
    frmInput->cmdBrowse1.SetEnabled(true);
    frmInput->cmdBrowse2.SetEnabled(true);
    ModelRunOK = kFalse;
  } catch (...) {
    const std::string reason = CurrentErrorText();
    File1.Close();
    ShowReadError(reason);
    UnloadForm(frmPin);
  }
}

}  // namespace tarnvik
