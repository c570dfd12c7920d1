// The control file (.ctl) and the flows over all three files of a case.
#pragma once

namespace tarnvik {

// Writes the file named in lblCTL from the captions of the three labels, which become CtlFilePath,
// PinFilePath and DatFilePath. A label without a file ends it with a message. Files in the control file's
// folder are written as bare names. Disables mnuModelScan; FilesSaved is true only after the last line; an
// error is shown.
void WriteControlFile();
// "Save As": asks for a name, puts it into CtlFilePath and lblCTL, then WriteControlFile.
void SaveControlFileAs();

// Validates and writes data file, parameter file and control file under the names in the labels. A fault in
// the data ends it before anything is written, one in the parameters when the data file has been. Its closing
// message comes also when a file could not be written: FilesSaved tells, and is true only when all three
// were.
void SaveAllInputFiles();
// Validates everything, asks for one name for all three files, asks before it replaces any, renames the case
// and writes. Stops at the first file that cannot be written.
void SaveAllWithRootName();

// Asks for a control file, unloads everything and reads the case.
void OpenControlFile();
// Reads CtlFilePath and the two files that it names into frmInput and frmPin. Sets CtlFileOpen, PinFilePath,
// DatFilePath and the labels. A file that is not where it should be is looked for beside the control file,
// with a question; without it both labels become "None Selected". Then CheckResultsCurrent.
void ReadControlFile();

// Enables the result menus when the result files on disk still belong to the input files, by their times:
// each step of data, control file, report is no older than the one before. A result file that is missing does
// not speak against it. Copies the labels into CtlFilePath, DatFilePath, PinFilePath and sets ReportPath,
// StdPath, ParPath; CtlFileOpen when the control file names what the labels say.
void CheckResultsCurrent();

// Validate one of the two forms and say that its file is not saved when there is a fault. True when there is
// none.
bool InputDataPass();
bool ParametersPass();

// Bring frmInput to the front with its first page: how the flows over the files end.
void ShowGeneralTab();
// For the flows that replace a file of the case: unload frmPlotInput and disable its menu entry.
void CloseInputPlots();
// Unload the result forms when any of OutputFormsOpen, StdFileRead, ParFileRead is true; disable
// mnuModelScan.
void CloseResults();

}  // namespace tarnvik
