// frmSTD "Output Parameters": the state record of the estimated parameters and their standard deviations.
#pragma once

#include "platform/chart.h"
#include "platform/form.h"
#include "platform/grid.h"

namespace tarnvik {

// Tables of MSFlexGrid.
enum ParameterTableId : int {
  kTableRecDevs = 0,
  kTableFDevs = 1,
  kTableFisheryParameters = 2,  // by curve parameter or age; a pair of columns for each period
  kTableSurveyParameters = 3,   // a pair of columns for each survey
  kTableMMultiplier = 4,
  kTableMAtAge = 5,
};

// Single values: lbl1, lblEst, lblStd.
enum PointEstimate : int {
  kPointM = 0,
  kPointLogRec = 1,
  kPointLogF = 2,  // log of average F
  kPointCpueQ = 3,
  kPointCpueExponent = 4,
  kPointMeanRec = 5,
};

struct StdForm : Form {
  StdForm();
  void Load() override;    // frmSTD_Form_Load
  void Unload() override;  // frmSTD_Form_Unload

  // Point estimates and M, deviations, plot of recruitment deviations, plot of F deviations, selectivity and
  // surveys.
  TabStrip SSTab1{this, "SSTab1"};

  Frame FramePoint{this, "FramePoint"};
  ControlArray<Label> lblHeading{this, "lblHeading", {0, 1, 2}};  // the headings of the three columns below
  ControlArray<Label> lbl1{this, "lbl1", {0, 1, 2, 3, 4, 5}};
  ControlArray<Label> lblEst{this, "lblEst", {0, 1, 2, 3, 4, 5}};
  ControlArray<Label> lblStd{this, "lblStd", {0, 1, 2, 3, 4, 5}};

  // The frame of a table has its index.
  ControlArray<Frame> FrameGrid{this, "FrameGrid", {0, 1, 2, 3, 4, 5}};
  ControlArray<Grid> MSFlexGrid{this, "MSFlexGrid", {0, 1, 2, 3, 4, 5}};

  // Charts with their bands of standard deviations: 1 recruitment deviations, 2 F deviations.
  Chart Chart19{this, "Chart19"};
  Chart Chart20{this, "Chart20"};
  ControlArray<Frame> FrameSTD{this, "FrameSTD", {1, 2}};
  ControlArray<Label> lblSTDlevels{this, "lblSTDlevels", {1, 2}};
  ControlArray<Label> lblSTDplus{this, "lblSTDplus", {1, 2}};
  ControlArray<TextBox> txtSTDplus{this, "txtSTDplus", {1, 2}};
  ControlArray<Label> lblSTDminus{this, "lblSTDminus", {1, 2}};
  ControlArray<TextBox> txtSTDminus{this, "txtSTDminus", {1, 2}};
  CommandButton cmdPlot19{this, "cmdPlot19"};
  CommandButton cmdPlot20{this, "cmdPlot20"};

 private:
  void Design();
};

inline FormOf<StdForm> frmSTD{"frmSTD"};

// Brings the first page to the front.
void frmSTD_Form_Load();
// Clears StdFileRead and ParFileRead.
void frmSTD_Form_Unload();
// Draw the chart of the page anew.
void frmSTD_cmdPlot19_Click(int);
void frmSTD_cmdPlot20_Click(int);

}  // namespace tarnvik
