// What "new" means: empty forms for the dimensions in force, with default names.
#pragma once

namespace tarnvik {

// Empties frmInput and the per-survey store for the dimensions in force and disables what needs a data file.
// The smoothers, shrinkage, bootstrap, selectivity models, CPUE type and phases keep their state. Grid
// headers are gone until the grids are built again. Sets DatFileOpen; empties DatFilePath, ReportPath,
// StdPath, ParPath.
void ClearDataForm();

// An empty data form with built grids, and a name for the file in DatFilePath and lblFile(1): the control
// file's with "dat" behind its dot, or one made of date and time when that file exists. Closes plots and
// results. Raises 7 "Out of memory" for dimensions beyond the bound of a table.
void NewDataFile();

// An empty frmPin with built grids. The name that it would have goes into DatFilePath, while lblFile(0) keeps
// PinFilePath: writers take their paths from the labels. PinFileOpen stays as it was, since nothing has been
// read.
void NewParameterFile();

// A new data file, and names beside it for the parameter file and the control file.
void NewCase();

}  // namespace tarnvik
