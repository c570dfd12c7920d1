#include "core/menu.h"

namespace tarnvik {

void SetUpMenu(MainForm&) {}
void frmMain_mnuModelRun_Click(int) {}
void frmMain_mnuModelScan_Click(int) {}

}  // namespace tarnvik
