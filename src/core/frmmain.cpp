#include "core/frmmain.h"

#include "core/menu.h"

namespace tarnvik {

MainForm::MainForm() : Form("frmMain", "Tarnvik") { SetUpMenu(*this); }

void MainForm::Load() {}

void MainForm::QueryUnload(bool&, UnloadMode) {}

void DisableResultMenus() {}

void UnloadResultForms() {}

}  // namespace tarnvik
