#include "results/scan.h"

namespace tarnvik {

void ScanReportFile() {}
void ScanStdFile() {}
void ScanParFile() {}

}  // namespace tarnvik
