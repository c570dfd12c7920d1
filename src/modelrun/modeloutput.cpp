#include "modelrun/modeloutput.h"

#include <algorithm>

#include "core/globals.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

std::string ModelOutputNames[kModelOutputCount];

namespace {

constexpr const char* kNames[kModelOutputCount] = {
    "TARNVIK.REP", "TARNVIK.STD", "EIGV.RPT",    "TARNVIK.LOG", "VARIANCE",    "TARNVIK.P01",
    "TARNVIK.B01", "TARNVIK.R01", "TARNVIK.P02", "TARNVIK.B02", "TARNVIK.R02", "TARNVIK.P03",
    "TARNVIK.B03", "TARNVIK.R03", "TARNVIK.P04", "TARNVIK.B04", "TARNVIK.R04", "TARNVIK.P05",
    "TARNVIK.B05", "TARNVIK.R05", "TARNVIK.P06", "TARNVIK.B06", "TARNVIK.R06", "TARNVIK.PAR",
    "TARNVIK.BAR", "ADMODEL.HES", "ADMODEL.DEP", "TARNVIK.EVA", "ADMODEL.COV", "TARNVIK.COR",
};

constexpr const char* kCaseEndings[] = {"rep", "std", "par"};

void FillModelOutputNames() { std::copy(std::begin(kNames), std::end(kNames), std::begin(ModelOutputNames)); }

// What stands in the .std file of a case whose Hessian could not be inverted; the scanner knows it.
void WriteHessianLine(const std::string& path) {
  OutputFile file;
  file.Open(path);
  file.PrintLine("Hessian matrix does not appear to be positive definite");
  file.Close();
}

void CopyUnlessSame(const std::string& from, const std::string& to) {
  if (from != to) CopyFileKeepingTime(from, to);
}

void ShowRunError(const char* what) {
  ShowMessage(std::string("Error Running Basic Estimation Model") + kLineBreak + what, Icon::Exclamation);
}

void CollectFiles() {
  const std::string control = frmInput->lblCTL.Caption();
  const std::string folder = DirOfPath(control);

  const std::string report = folder + "TARNVIK.REP";
  if (!FileExists(report)) {
    ShowRunError("Report File is Unavailable");
    return;
  }
  const std::string case_report = WithEnding(control, "rep");
  CopyUnlessSame(report, case_report);
  ReportPath = case_report;

  const std::string deviations = folder + "TARNVIK.STD";
  const std::string case_deviations = WithEnding(control, "std");
  if (!FileExists(deviations)) {
    StdFileRead = kFalse;
    WriteHessianLine(case_deviations);
  } else {
    CopyUnlessSame(deviations, case_deviations);
  }
  StdPath = case_deviations;

  const std::string parameters = folder + "TARNVIK.PAR";
  if (!FileExists(parameters)) {
    ParFileRead = kFalse;
    ShowRunError("Output Parameter File is Unavailable");
    return;
  }
  const std::string case_parameters = WithEnding(control, "par");
  CopyUnlessSame(parameters, case_parameters);
  ParPath = case_parameters;
  ModelRunOK = kTrue;
}

}  // namespace

void DeleteModelOutput() {
  try {
    FillModelOutputNames();
    const std::string control = frmInput->lblCTL.Caption();
    const std::string folder = DirOfPath(control);
    for (const std::string& name : ModelOutputNames) {
      if (FileExists(folder + name)) DeleteExistingFile(folder + name);
    }
    for (const char* ending : kCaseEndings) {
      const std::string path = WithEnding(control, ending);
      if (FileExistsAsWritten(path)) DeleteExistingFile(path);
    }
    const std::string log = LogPathOf(CtlFilePath);
    if (FileExistsAsWritten(log)) DeleteExistingFile(log);
  } catch (const RunTimeError&) {
    // What cannot be deleted does not stop the run: the model overwrites its own files.
  }
}

void CollectModelOutput() {
  try {
    CollectFiles();
  } catch (...) {
    const std::string text = CurrentErrorText();
    ShowMessage(std::string("Error Running Model") + kLineBreak + text, Icon::Exclamation);
  }
}

}  // namespace tarnvik
