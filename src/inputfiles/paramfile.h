// The parameter file (.pin): reader, writer and their dialogs.
#pragma once

namespace tarnvik {

// Fills frmPin from PinFilePath, for the dimensions in force; the data file is read before it. Sets
// PinFileOpen, ModelRunOK, lblFile(0) and the menu entries of a case with parameters. A file of an earlier
// version, or one with fewer selectivity lines than the case has, is read with a message. A file without
// survey index parameters ends in a message with PinFileOpen 0; a run-time error does too and unloads frmPin.
void ReadParameterFile();

// Writes the file named in lblFile(0), which becomes PinFilePath, as the fields stand. A selectivity that is
// not in use is written with neutral values. FilesSaved is true only after the last line; an error is shown.
void WriteParameterFile();

// "Save As": asks for a name, puts it into PinFilePath and lblFile(0), then WriteParameterFile.
void SaveParameterFileAs();

// Asks for a parameter file and reads it into a new frmPin. Unloads input plots and results.
void OpenParameterFile();

}  // namespace tarnvik
