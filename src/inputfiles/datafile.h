// The data file (.dat): reader, writer and their dialogs.
#pragma once

namespace tarnvik {

// Fills frmInput and the per-survey store from DatFilePath. Sets DatFileOpen, InputValid, LoadingForm, the
// dimensions and their ranges. Shows its own messages; a run-time error ends in one of them.
void ReadDataFile();
// Writes the file named in lblFile(1), version 1.4, as the fields stand. Sets FilesSaved.
void WriteDataFile();
// "Save As": asks for a name, then WriteDataFile.
void SaveDataFileAs();
// Asks for a data file and reads it into a cleared form.
void OpenDataFile();
// Sets BasicParmsMatch: whether the parameters in frmPin still fit the data just read.
void CompareBasicParms();

}  // namespace tarnvik
