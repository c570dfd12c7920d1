// frmMain: the main window's menu bar and status bar. What its entries do stands in program/menu.cpp, what
// happens at its start and its end in program/main_form.cpp.
#pragma once

#include "platform/form.h"

namespace tarnvik {

struct MainForm : Form {
  MainForm();
  void Load() override;                                      // frmMain_MDIForm_Load: the start of the program
  void QueryUnload(bool& cancel, UnloadMode mode) override;  // closes every child, any of which may cancel

  // In the order of the menu bar; captions, shortcuts and parents come from the menu table.
  MenuItem mnuFile{this, "mnuFile"};
  MenuItem mnuFileCreate{this, "mnuFileCreate"};
  MenuItem mnuFileCreateAll{this, "mnuFileCreateAll"};
  MenuItem mnuFileCreateData{this, "mnuFileCreateData"};
  MenuItem mnuFileCreatePin{this, "mnuFileCreatePin"};
  MenuItem mnuFileOpen{this, "mnuFileOpen"};
  MenuItem mnuFileSpc1{this, "mnuFileSpc1"};
  MenuItem mnuFileSaveAll{this, "mnuFileSaveAll"};
  MenuItem mnuFileSaveAllAs{this, "mnuFileSaveAllAs"};
  MenuItem mnuSaveAs{this, "mnuSaveAs"};
  MenuItem mnuFileSaveControlAs{this, "mnuFileSaveControlAs"};
  MenuItem mnuFileSaveDataAs{this, "mnuFileSaveDataAs"};
  MenuItem mnuFileSavePinAs{this, "mnuFileSavePinAs"};
  MenuItem mnuFileSpc5{this, "mnuFileSpc5"};
  MenuItem mnuFileImportVPA{this, "mnuFileImportVPA"};
  MenuItem mnuFileSpc4{this, "mnuFileSpc4"};
  MenuItem mnuFileExit{this, "mnuFileExit"};
  MenuItem mnuEdit{this, "mnuEdit"};
  MenuItem mnuEditCopy{this, "mnuEditCopy"};
  MenuItem mnuEditSelect{this, "mnuEditSelect"};
  MenuItem mnuData{this, "mnuData"};
  MenuItem mnuDataPlotInput{this, "mnuDataPlotInput"};
  MenuItem mnuModel{this, "mnuModel"};
  MenuItem mnuModelRun{this, "mnuModelRun"};
  MenuItem mnuModelScan{this, "mnuModelScan"};
  MenuItem mnuOptions{this, "mnuOptions"};
  MenuItem mnuOptionsGPEdit{this, "mnuOptionsGPEdit"};
  MenuItem mnuOptionsSpc1{this, "mnuOptionsSpc1"};
  MenuItem mnuOptionsFileView{this, "mnuOptionsFileView"};
  MenuItem mnuOptionsSpc2{this, "mnuOptionsSpc2"};
  MenuItem mnuOptionsExitPrompt{this, "mnuOptionsExitPrompt"};
  MenuItem mnuOptionsExitPromptEnable{this, "mnuOptionsExitPromptEnable"};
  MenuItem mnuOptionsExitPromptDisable{this, "mnuOptionsExitPromptDisable"};
  MenuItem mnuView{this, "mnuView"};
  MenuItem mnuViewReport{this, "mnuViewReport"};
  MenuItem mnuViewStdDev{this, "mnuViewStdDev"};
  MenuItem mnuViewOutPar{this, "mnuViewOutPar"};
  MenuItem mnuViewLog{this, "mnuViewLog"};
  MenuItem mnuViewSpc{this, "mnuViewSpc"};
  MenuItem mnuViewPlotCollect{this, "mnuViewPlotCollect"};
  MenuItem mnuWindow{this, "mnuWindow"};
  MenuItem mnuHelp{this, "mnuHelp"};
  MenuItem mnuHelpAbout{this, "mnuHelpAbout"};
  MenuItem mnuHelpSpc1{this, "mnuHelpSpc1"};
  MenuItem mnuHelpUsing{this, "mnuHelpUsing"};
  MenuItem mnuHelpSpc2{this, "mnuHelpSpc2"};
  MenuItem mnuHelpRefMan{this, "mnuHelpRefMan"};
  StatusBar StatusBar1{this, "StatusBar1", 3};  // panels: 1 date, 2 message, 3 time

  std::string HelpFile;
};

inline FormOf<MainForm> frmMain{"frmMain"};

// The panel of StatusBar1 for messages.
inline constexpr int kMessagePanel = 2;

// The start of the program: menus, flags, ranges, settings, default names, frmInput.
void frmMain_MDIForm_Load();
// The main window is closing: asks every child, any of which may cancel, then unloads them all.
void frmMain_MDIForm_QueryUnload(bool& cancel);

// Disable mnuModelScan, mnuViewReport, mnuViewStdDev, mnuViewOutPar and mnuViewPlotCollect: there are no
// results.
void DisableResultMenus();
// Enable the same five: the results on disk belong to the case.
void EnableResultMenus();

}  // namespace tarnvik
