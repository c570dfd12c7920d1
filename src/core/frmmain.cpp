#include "core/frmmain.h"

namespace tarnvik {

namespace {

void SetResultMenus(bool enabled) {
  for (MenuItem MainForm::*item :
       {&MainForm::mnuModelScan, &MainForm::mnuViewReport, &MainForm::mnuViewStdDev, &MainForm::mnuViewOutPar,
        &MainForm::mnuViewPlotCollect}) {
    ((*frmMain).*item).SetEnabled(enabled);
  }
}

}  // namespace

void DisableResultMenus() { SetResultMenus(false); }

void EnableResultMenus() { SetResultMenus(true); }

}  // namespace tarnvik
