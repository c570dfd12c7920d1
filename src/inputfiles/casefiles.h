// The control file (.ctl) and the flows over all three files of a case.
#pragma once

namespace tarnvik {

void WriteControlFile();
void SaveControlFileAs();
void SaveAllInputFiles();
void SaveAllWithRootName();
void OpenControlFile();
void ReadControlFile();
// Enables the result menus when the result files on disk still belong to the input files.
void CheckResultsCurrent();

void frmInput_cmdBrowseCTL_Click(int);
void frmInput_cmdBrowse1_Click(int);
void frmInput_cmdBrowse2_Click(int);

}  // namespace tarnvik
