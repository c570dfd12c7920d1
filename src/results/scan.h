// Scanners of the model's output files.
#pragma once

namespace tarnvik {

// Reads the report into frmOutputData and frmSTD, then the standard deviations or, failing those, the parameters.
void ScanReportFile();
void ScanStdFile();
void ScanParFile();

}  // namespace tarnvik
