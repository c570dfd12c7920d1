// Effects of the menu entries.
#pragma once

namespace tarnvik {

struct MainForm;

// Captions, shortcuts, help ids, parents and effects of all entries, from the menu table.
void SetUpMenu(MainForm& form);

void frmMain_mnuModelRun_Click(int);
void frmMain_mnuModelScan_Click(int);

}  // namespace tarnvik
