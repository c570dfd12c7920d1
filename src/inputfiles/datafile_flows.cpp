// The dialogs around the data file, and the question whether the parameters still fit it.

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/newcase.h"
#include "inputfiles/save_names.h"
#include "platform/host.h"
#include "results/frmoutput.h"

namespace tarnvik {

namespace {

constexpr const char* kFilter = "Input Data Files (*.dat)|*.dat";

// Whether all cells from a column to a column are empty, the header row aside.
bool ColumnsEmpty(const Grid& grid, int first_col, int last_col) {
  for (int row = 1; row < grid.Rows(); ++row) {
    for (int col = first_col; col <= last_col; ++col) {
      if (!grid.TextMatrix(row, col).empty()) return false;
    }
  }
  return true;
}

bool ParametersBlank() {
  PinForm& pin = *frmPin;
  for (const int field : {kParmM, kParmLogRec, kParmLogF}) {
    if (!pin.txtParmFile(field).Text().empty()) return false;
  }
  for (const int deviations : {kPinRecDevs, kPinFDevs}) {
    if (!ColumnsEmpty(pin.ORVFlexGrid1(deviations), 1, 1)) return false;
  }
  for (const int grid : {kPinFisheryCurve, kPinSurveyIndex, kPinFisheryByPeriod}) {
    if (!ColumnsEmpty(pin.ORVFlexGrid1(grid), 1, pin.ORVFlexGrid1(grid).Cols() - 1)) return false;
  }
  return true;
}

// The plots and results of the data that are about to go.
void ForgetOldData() {
  CloseInputPlots();
  if (OutputFormsOpen == kTrue || StdFileRead == kTrue || ParFileRead == kTrue) {
    UnloadResultForms();
    DisableResultMenus();
  }
  DatFileOpen = kFalse;
  ClearDataForm();
}

bool WantsAnotherDataFile() {
  const std::string question = std::string("The current parameter file does not have the same") + kLineBreak +
                               "basic parameters as the data file you have chosen." + kLineBreak +
                               kLineBreak + "Would you like to choose another data file?" + kLineBreak +
                               "Click Yes to open another data file." + kLineBreak +
                               "Click No to use the selected data file and create a new parameter file.";
  return ShowMessage(question, Icon::Exclamation, Buttons::YesNo) == Answer::Yes;
}

// What becomes of the parameters once other data have been read: they stay when they fit, otherwise new ones
// take their place. False when the user would rather choose another data file.
bool SettleParameters() {
  if (!ParametersBlank()) {
    CompareBasicParms();
    if (BasicParmsMatch == kTrue) return true;
    if (WantsAnotherDataFile()) return false;
    UnloadForm(frmPin);
  }
  NewParameterFile();
  return true;
}

}  // namespace

void SaveDataFileAs() {
  const auto path = AskSaveName({true, "Save Input Data File", kFilter, "dat"});
  if (!path) return;
  DatFilePath = *path;
  ShowPath(frmInput->lblFile(kFileDat), *path);
  WriteDataFile();
}

void OpenDataFile() {
  frmInput->SSTab1.SetTab(kTabGeneral);
  const auto path = TheHost().ShowFileDialog(
      {false, "Open Statistical Catch at Age Model Input Data File", kFilter, "dat"});
  if (!path) return;
  ForgetOldData();
  DatFilePath = *path;
  if (!path->empty()) {
    ReadDataFile();
    if (DatFileOpen == kFalse) return;
    if (!SettleParameters()) {
      OpenDataFile();
      return;
    }
  }
  ShowGeneralTab();
}

void CompareBasicParms() {
  const ControlArray<Grid>& grids = frmPin->ORVFlexGrid1;
  const auto begins_with = [&](int grid, int year) {
    return grids(grid).Rows() > 1 && Val(grids(grid).TextMatrix(1, 0)) == year;
  };
  BasicParmsMatch =
      Flag(grids(0).Rows() == NXYear - RecYr + 2 && begins_with(0, RecYr) && grids(1).Rows() == NYears + 1 &&
           begins_with(1, NFYear) && grids(2).Cols() == NSelPer + 1 && grids(3).Cols() == NIndex + 1 &&
           grids(4).Rows() == NSelPer + 1 && grids(4).Cols() == NAges + 1);
}

}  // namespace tarnvik
