#include "vpaimport/vpa_import.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/casefiles.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "results/frmoutput.h"
#include "vpaimport/frmvpaindices.h"
#include "vpaimport/survey_assignment.h"

namespace tarnvik {

namespace {

// What passes between this program and the two others, in the VPA file's folder.
constexpr const char* kIndexList = "vpa_survey_list.txt";
constexpr const char* kIndexErrors = "vpa_survey_error.log";
constexpr const char* kSurveyList = "tarnvik_survey_list.txt";
// Without a folder: the converter's errors go to the current one.
constexpr const char* kConverterErrors = "vpa2tarnvik_error.log";

void Warn(const std::string& text) { ShowMessage(text, Icon::Exclamation); }

void DeleteWhereThere(const std::string& path) {
  if (FileExists(path)) DeleteExistingFile(path);
}

// --- The list of indices

// What lstVPA shows of a line "number name first-age last-age timing unit". The number is as wide as the
// count of indices, so that the entries stand in columns.
std::string IndexEntry(std::string_view line, std::size_t width) {
  std::string number(TokenFirst(line));
  if (number.size() < width) number.insert(0, width - number.size(), '0');
  std::string entry = "Index " + number + ":  ";
  entry += TokenNext(line);
  entry += ",  Ages ";
  entry += TokenNext(line);
  entry += "-";
  entry += TokenNext(line);
  entry += Val(TokenNext(line)) == 0 ? ",  Jan-1" : ",  Mean";
  entry += Val(TokenNext(line)) == 0 ? " Numbers" : " Weight";
  return entry;
}

// The number of an entry of the above form; the colon behind it ends it.
double IndexNumber(std::string_view entry) {
  TokenFirst(entry);
  return Val(TokenNext(entry));
}

// --- The list of surveys

struct AssignedSurvey {
  std::string title;
  int indices = 0;
  std::string numbers;  // each followed by two blanks, as the converter reads them
};

std::vector<AssignedSurvey> AssignedSurveys() {
  const IndicesForm& form = *frmVPAIndices;
  std::vector<AssignedSurvey> surveys;
  for (int item = 0; item < form.lstTARNVIK.ListCount(); ++item) {
    const std::string& entry = form.lstTARNVIK.List(item);
    if (IsHeading(entry)) {
      const int survey = static_cast<int>(surveys.size()) + 1;
      surveys.push_back({.title = form.ORVFlexGrid1.TextMatrix(survey, kTitleColumn), .numbers = ""});
    } else if (!entry.empty()) {
      ++surveys.back().indices;
      surveys.back().numbers += NumberText(IndexNumber(entry)) + "  ";
    }
  }
  std::erase_if(surveys, [](const AssignedSurvey& survey) { return survey.indices == 0; });
  return surveys;
}

void PrintSurveys(const std::string& path, const std::vector<AssignedSurvey>& surveys) {
  OutputFile file;
  file.Open(path);
  file.PrintLine(NumberText(static_cast<int>(surveys.size())));
  for (const AssignedSurvey& survey : surveys) {
    file.PrintLine(survey.title);
    file.PrintLine(NumberText(survey.indices));
    file.PrintLine(survey.numbers);
  }
  file.Close();
}

// --- The steps of the import; each is false when the import has ended with a message

bool AskForVpaFile(std::string& path) {
  path = TheHost()
             .ShowFileDialog({.title = "Open VPA/ADAPT Model Input Data File",
                              .filter = "DAT Files (*.dat)|*.dat",
                              .default_extension = ""})
             .value_or("");
  if (!path.empty() && FileExists(path)) return true;
  Warn("Import VPA Failed - VPA Input File Not Found");
  return false;
}

bool RunProgram(const std::string& command) {
  if (TheHost().CreateConsoleProcess(command) != 0) return true;
  Warn("Process Creation Failed");
  return false;
}

// The paths go to both programs without quotes.
bool ListIndices(const std::string& path, const std::string& VpaDir) {
  for (const char* name : {kIndexList, kIndexErrors, kSurveyList}) DeleteWhereThere(VpaDir + name);
  if (!RunProgram(InProgramFolder("scanvpasurvey.exe") + " " + path)) return false;
  if (!FileExists(VpaDir + kIndexList)) {
    Warn("Import VPA Failed - Unable to Find vpa_survey_list.txt");
    return false;
  }
  ModelRunOK = kFalse;
  LoadVpaList(VpaDir);
  return ModelRunOK != kFalse;
}

bool ConvertCase(const std::string& path, const std::string& VpaRoot) {
  const struct {
    std::string path;
    const char* missing;
  } files[] = {
      {VpaRoot + "_tarnvik.ctl", "Import VPA Failed - Unable to Find Tarnvik Input Control File"},
      {VpaRoot + "_tarnvik.pin", "Import VPA Failed - Unable to Find Tarnvik Parameter Input File"},
      {VpaRoot + "_tarnvik.dat", "Import VPA Failed - Unable to Find Tarnvik Data Input File"},
  };
  for (const auto& file : files) DeleteWhereThere(file.path);
  DeleteWhereThere(kConverterErrors);
  if (!RunProgram("CMD.EXE /C " + InProgramFolder("vpa2tarnvik.exe") + " " + path + " 2> " +
                  kConverterErrors)) {
    return false;
  }
  for (const auto& file : files) {
    if (FileExists(file.path)) continue;
    Warn(file.missing);
    return false;
  }
  return true;
}

// From here on the earlier case is gone.
void OpenConvertedCase(const std::string& VpaRoot) {
  CaseOpenPending = kTrue;
  DatFileOpen = kFalse;
  UnloadForm(frmInput);
  PinFileOpen = kFalse;
  UnloadForm(frmPin);
  CloseInputPlots();
  if (OutputFormsOpen != kFalse && (StdFileRead != kFalse || ParFileRead != kFalse)) UnloadResultForms();
  frmMain->mnuModelScan.SetEnabled(false);
  CtlFilePath = VpaRoot + "_tarnvik.ctl";
  CtlFileOpen = kFalse;
  ReadControlFile();
  ShowGeneralTab();
}

}  // namespace

void LoadVpaList(const std::string& VpaDir) {
  const std::string path = VpaDir + kIndexList;
  if (!FileExists(path)) return Warn("Import VPA Failed - Unable to Find vpa_survey_list.txt");
  try {
    InputFile file;
    file.Open(path);
    ListBox& list = frmVPAIndices->lstVPA;
    list.Clear();
    // "*** Index Data is Unavailable ***" in place of the count reads as 0.
    const int count = ValInt(file.ReadLine());
    if (count == 0) {
      Warn("Import VPA Failed - No VPA Indices Available");
      file.Close();
      DeleteExistingFile(path);
      UnloadForm(frmVPAIndices);
      return;
    }
    const std::size_t width = NumberText(count).size();
    for (int item = 0; item < count; ++item) list.AddItem(IndexEntry(file.ReadLine(), width));
    list.UserPoint(0);  // as a press would do: only a click takes an index in hand
    file.Close();
    ModelRunOK = kTrue;
  } catch (...) {
    Warn(std::string("Error Reading VPA Index List") + kLineBreak + CurrentErrorText());
    UnloadForm(frmVPAIndices);
  }
}

void WriteSurveyList(const std::string& VpaDir) {
  const std::string path = VpaDir + kSurveyList;
  try {
    const std::vector<AssignedSurvey> surveys = AssignedSurveys();
    if (surveys.empty()) return Warn("Error Writing Surveys to File - No VPA Indices Selected");
    PrintSurveys(path, surveys);
  } catch (...) {
    Warn(std::string("Error Writing Surveys to File ") + kLineBreak + CurrentErrorText());
    // A list that is there counts as the user's Import: a part of one must not be converted.
    if (FileExistsAsWritten(path)) std::remove(path.c_str());
  }
}

void ImportVpa() {
  try {
    frmInput->SSTab1.SetTab(kTabGeneral);
    std::string path;
    if (!AskForVpaFile(path)) return;
    const std::string VpaDir = DirOfPath(path);
    const std::string VpaRoot = path.substr(0, path.size() - std::min<std::size_t>(path.size(), 4));
    if (!ListIndices(path, VpaDir)) return;
    frmVPAIndices->lblVPAFile.SetCaption(path);
    ShowFormModal(frmVPAIndices);
    if (!FileExists(VpaDir + kSurveyList)) return;  // cancelled
    if (ConvertCase(path, VpaRoot)) OpenConvertedCase(VpaRoot);
  } catch (...) {
    // The file that cannot be deleted, for one. The user starts again; nothing of the dialog may stay.
    UnloadForm(frmVPAIndices);
  }
}

}  // namespace tarnvik
