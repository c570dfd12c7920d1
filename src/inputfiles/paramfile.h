// The parameter file (.pin): reader, writer and their dialogs.
#pragma once

namespace tarnvik {

// Fills frmPin from PinFilePath, for the dimensions in force. Sets PinFileOpen. A run-time error shows a message
// and unloads frmPin.
void ReadParameterFile();
// Writes the file named in lblFile(0). Sets FilesSaved.
void WriteParameterFile();
void SaveParameterFileAs();
void OpenParameterFile();

}  // namespace tarnvik
