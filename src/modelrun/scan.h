// Scanners of the model's output files. They fill the forms of results from files that must have been written
// for the case on the forms: the files do not tell their dimensions, and a file of other dimensions gives
// displaced values or an error.
#pragma once

namespace tarnvik {

// Reads ReportPath into frmOutputData and frmSTD, then the standard deviations or, failing those, the
// parameters; draws the output plots and brings frmOutputData to the front. Sets OutputFormsOpen,
// FishAgeYears, SurveyIndexYears. Uses the dimensions in force, SurvNYears and frmInput.cmbRefYr. Shows which
// file is missing, that the files are of another version, or which section is missing and then the error,
// after which no form of results is loaded. Raises nothing.
void ScanReportFile();

// Reads StdPath into frmSTD and into the columns of standard deviations of frmOutputData. Uses frmPin's
// selectivity parameters and frmInput.ORVFlexGrid(11). Sets StdFileRead when it has read the whole file. A
// file without data gives a warning; an error is shown and unloads frmSTD. Raises nothing.
void ScanStdFile();

// Reads the parameter file beside the control file of frmInput.lblCTL into frmSTD, puts "N/A" where the
// standard deviations would stand and disables the bands of the plots. Sets ParFileRead when it has read the
// whole file. Shows each parameter that is missing; an error is shown and unloads frmSTD. Raises nothing.
void ScanParFile();

}  // namespace tarnvik
