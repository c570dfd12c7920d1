// Reader of the data file: its frame, the dimensions of the case, the shaping of the forms.

#include "inputfiles/datafile_read.h"

#include <algorithm>

#include "core/frmmain.h"
#include "core/globals.h"
#include "inputedit/dimensions.h"
#include "inputedit/grids.h"
#include "inputedit/labels.h"
#include "inputedit/surveys.h"
#include "inputedit/year_grids.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/file_version.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "plots/input_plots.h"

namespace tarnvik {

void ReadColumn(Grid& grid, int col, int rows) {
  LineWords words(ReadDataLine());
  for (int row = 1; row <= rows; ++row) grid.SetTextMatrix(row, col, words.Next());
}

void ReadRow(Grid& grid, int row, int first_col, int cols) {
  LineWords words(ReadDataLine());
  for (int col = first_col; col < first_col + cols; ++col) grid.SetTextMatrix(row, col, words.Next());
}

namespace {

void Require(bool condition, const char* message) {
  if (!condition) throw RefusedValue{message};
}

// A file without a description has the heading of the dimensions in its place. What already stands in
// txtModel, from the control file, goes before the file's own description.
void ReadDescription(InputForm& form, std::string_view line) {
  constexpr std::size_t kHeadingLength = std::string_view("# Model Description:").size();
  TextBox& model = form.txtModel;
  std::string_view description;
  if (UCase(Trim(line)) != "# STYR ENDYR RECYR DEPYR" && line.size() > kHeadingLength) {
    description = Trim(line.substr(kHeadingLength));
  }
  if (description.empty()) {
    if (model.Text().empty()) model.SetText(kNoneSelected);
  } else if (IsNone(model.Text())) {
    model.SetText(description);
  }
}

// Returns the version, 0 for a file that names none.
double ReadHead(InputForm& form) {
  std::string_view line = File1.ReadLine();
  const auto version = FileVersion(line);
  if (version.value_or(0.0) < kVersionCurrent) {
    ShowMessage(std::string("Input File is from a Previous Version") + kLineBreak +
                    "Please Check Data for Completeness and Accuracy",
                Icon::Information);
  }
  if (version) line = File1.ReadLine();
  ReadDescription(form, line);
  return version.value_or(0.0);
}

// Refills a combo of years and selects one of them, which must be among the years of the case.
void PutYear(ComboBox& combo, std::string_view word, const char* message) {
  const int year = ValInt(word);
  Require(year >= NewNFYear && year <= NewNXYear, message);
  combo.FillNumbers(NewNFYear, NewNXYear);
  combo.SetListIndex(year - NewNFYear);
}

// A year beyond the ranges widens them: what a file holds can be chosen. Their span must stay a 16-bit
// number, or the form could not be loaded any more.
void WidenYears(std::int16_t first, std::int16_t last) {
  Int16(last - first + 1);
  GPYearMin = first;
  GPYearMax = last;
}

void ReadYears(InputForm& form) {
  LineWords words(ReadDataLine());
  NewNFYear = ValInt(words.Next());
  if (NewNFYear < GPYearMin || NewNFYear > GPYearMax) {
    WidenYears(std::min(NewNFYear, GPYearMin), std::max(NewNFYear, GPYearMax));
    form.cmbNFYear.FillNumbers(GPYearMin, GPYearMax);
    form.cmbNXYear.FillNumbers(GPYearMin, GPYearMax);
  }
  form.cmbNFYear.SetListIndex(NewNFYear - GPYearMin);
  NewNXYear = ValInt(words.Next());
  Require(NewNXYear > NewNFYear, "Invalid Value for End Year");
  if (NewNXYear > GPYearMax) {
    WidenYears(GPYearMin, NewNXYear);
    form.cmbNXYear.FillNumbers(GPYearMin, GPYearMax);
  }
  NewNYears = Int16(NewNXYear - NewNFYear + 1);
  form.cmbNXYear.SetListIndex(NewNXYear - GPYearMin);
  PutYear(form.cmbRecYr, words.Next(), "Invalid Value for Recruitment Year");
  PutYear(form.cmbRefYr, words.Next(), "Invalid Value for Reference Year");
}

// A count that its combo offers from 1 to a range, which a larger count widens.
void ReadCount(ComboBox& combo, std::int16_t& count, std::int16_t& range, const char* message) {
  count = ValInt(ReadDataLine());
  Require(count >= 1, message);
  if (count > range) {
    range = count;
    combo.FillNumbers(1, range);
  }
  combo.SetListIndex(count - 1);
}

void ReadDimensions(InputForm& form) {
  ReadYears(form);
  ReadCount(form.cmbNAges, NewNAges, GPAgeMax, "Invalid Value for Number of Ages");
  ReadCount(form.cmbNIndex, NewNIndex, GPSurveyMax, "Number of Surveys Must be 1 or More");
  NewNSelPer = ValInt(ReadDataLine());
  Require(NewNSelPer >= 1 && NewNSelPer <= NewNYears,
          "Invalid Value for Number of Fishery Selectivity Periods");
  form.cmbSelPer.FillNumbers(1, NewNYears);
  form.cmbSelPer.SetListIndex(NewNSelPer - 1);
}

// The year cells of a survey hold the first year, moved on by the number of the survey, until its own years
// are read.
void PutSurveyYearsToCome() {
  for (int survey = 1; survey <= NIndex; ++survey) {
    const std::string year = NumberText(NFYear + survey - 1);
    for (int row = 1; row <= NYears; ++row) {
      SurvYearFit(survey, kStoreYear, row) = year;
      SurvAgeFit(survey, kStoreYear, row) = year;
    }
  }
}

void ShapeGrids(InputForm& form) {
  BuildAllInputGrids();
  BuildAllPinGrids();
  LabelPeriods();
  LabelSurveys(kLabelsSurveySample);
  LabelSurveys(kLabelsSurveyFit);
  form.lstCPUEages.Clear();
  RefreshAgeLists();
}

void ReadFields(InputForm& form) {
  const double version = ReadHead(form);
  ReadDimensions(form);
  NewRecYr = RecDevStartYear();
  CommitDimensions();
  SetUpSurveys();
  PutSurveyYearsToCome();
  ShapeGrids(form);
  // From here on each value that is put into a field runs the handlers that depend on it.
  LoadingForm = kFalse;
  ReadFisheryLines(form, version);
  ReadSurveyLines(form, version);
  ReadBiologyLines(form, version);
  ReadSettingLines(form, version);
  // The grids of the selected survey are put back into the store by edits and validation: they must show it
  // first.
  ShowSelectedSurvey();
}

// What a case with data can do, and what it can do with parameters as well.
void OfferCommands(InputForm& form) {
  for (const int grid : {kToolCpue, kToolFisheryAge}) {
    form.cmdExpandGrd(grid).SetEnabled(true);
    form.cmdCondenseGrd(grid).SetEnabled(false);
  }
  form.cmdBrowse1.SetEnabled(true);
  form.cmdBrowse2.SetEnabled(true);
  MainForm& menu = *frmMain;
  const bool with_parameters = PinFileOpen == kTrue;
  if (with_parameters) {
    menu.mnuFileSaveAll.SetEnabled(true);
    menu.mnuFileSaveAllAs.SetEnabled(true);
    menu.mnuFileSaveControlAs.SetEnabled(true);
    menu.mnuFileSavePinAs.SetEnabled(true);
  }
  menu.mnuFileSaveDataAs.SetEnabled(true);
  if (with_parameters) {
    TheHost().ProcessEvents();
    menu.mnuDataPlotInput.SetEnabled(true);
    RefreshInputPlots();
    menu.mnuModelRun.SetEnabled(true);
  }
  menu.mnuOptionsFileView.SetEnabled(true);
  menu.mnuWindow.SetEnabled(true);
}

void FinishReading(InputForm& form) {
  File1.Close();
  DatFileOpen = kTrue;
  ShowPath(form.lblFile(kFileDat), DatFilePath);
  OfferCommands(form);
  ShowGeneralTab();
  OutputFormsOpen = StdFileRead = ParFileRead = LoadingForm = kFalse;
}

}  // namespace

void ReadDataFile() {
  InputForm& form = *frmInput;
  DatFileOpen = kFalse;
  LoadingForm =
      kTrue;  // stays set when the read fails before the forms have their shape: until the next read or load
  NFYear = NXYear = NAges = NSelPer = NIndex = NYears = RecYr = 0;
  if (!FileExists(DatFilePath)) return;
  try {
    TheHost().ProcessEvents();
    File1.Open(DatFilePath);
    ReadFields(form);
    FinishReading(form);
  } catch (const RefusedValue& refused) {
    File1.Close();
    ShowMessage(std::string("Error Reading Input File") + kLineBreak + refused.message, Icon::Exclamation);
    if (refused.clears_input_valid) InputValid = kFalse;
  } catch (...) {
    const std::string reason = CurrentErrorText();
    File1.Close();
    InputValid = kFalse;
    ShowMessage(std::string("Error Reading Input Data File") + kLineBreak + reason, Icon::Exclamation);
  }
}

}  // namespace tarnvik
