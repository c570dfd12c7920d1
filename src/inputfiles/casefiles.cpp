#include "inputfiles/casefiles.h"

namespace tarnvik {

void WriteControlFile() {}
void SaveControlFileAs() {}
void SaveAllInputFiles() {}
void SaveAllWithRootName() {}
void OpenControlFile() {}
void ReadControlFile() {}
void CheckResultsCurrent() {}
void frmInput_cmdBrowseCTL_Click(int) {}
void frmInput_cmdBrowse1_Click(int) {}
void frmInput_cmdBrowse2_Click(int) {}

}  // namespace tarnvik
