// The data file (.dat): reader, writer and their dialogs.
#pragma once

namespace tarnvik {

// Fills frmInput and the per-survey store from DatFilePath, of whatever version the file is, and shapes
// frmPin for its dimensions. Sets DatFileOpen, the dimensions and, where the file goes beyond them, the
// parameter ranges; enables what can be done with the data. A missing file ends it without a word. A value
// that cannot be and a run-time error end it with a message: DatFileOpen is 0 then, InputValid 0 too unless
// the survey titles are what is missing, and fields keep what was filled. LoadingForm is set from the start
// until the forms have their shape; a failure before leaves it set for the next read or load to clear.
void ReadDataFile();
// Writes the file named in lblFile(1), version 1.4, as the fields stand. Sets DatFilePath and FilesSaved,
// disables mnuModelScan. A run-time error ends it with a message; what was written stays on disk.
void WriteDataFile();
// "Save As": asks for a name, then WriteDataFile.
void SaveDataFileAs();
// Asks for a data file and reads it into a cleared form.
void OpenDataFile();
// Sets BasicParmsMatch: whether the parameters in frmPin still fit the data just read.
void CompareBasicParms();

}  // namespace tarnvik
