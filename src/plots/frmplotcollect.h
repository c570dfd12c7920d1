// frmPlotCollect "Plot Collection": which output plots go into a collection. While it is visible a collection
// may be in the making, and the output plots hold back a message that would stand in its way.
#pragma once

#include "platform/form.h"

namespace tarnvik {

inline constexpr int kPlotBoxes = 29;

struct PlotCollectForm : Form {
  PlotCollectForm();
  void Load() override;  // frmPlotCollect_Form_Load

  TabStrip SSTab1{this, "SSTab1"};
  ControlArray<Label> lblHeading{this, "lblHeading", {0, 1, 2}};  // one on each page
  Label Label3{this, "Label3"};                                   // above boxes 3 to 5
  Label Label5{this, "Label5"};                                   // above boxes 6 to 8
  ControlArray<CheckBox> chkPlots{
      this, "chkPlots", {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                         15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28}};
  CommandButton cmdAll{this, "cmdAll"};
  CommandButton cmdDefault{this, "cmdDefault"};
  CommandButton cmdNone{this, "cmdNone"};
  CommandButton cmdGenerate{this, "cmdGenerate"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

inline FormOf<PlotCollectForm> frmPlotCollect{"frmPlotCollect"};

// Puts the number of plots behind captions; unticks and disables the boxes of plots that the results do not
// have, and ticks those of the two kinds of ratios that they do have. Reads the dimensions in force,
// frmOutputData's table of fishery ages and the pages of frmOutput; loads both forms.
void frmPlotCollect_Form_Load();
void frmPlotCollect_cmdAll_Click(int);
void frmPlotCollect_cmdDefault_Click(int);
void frmPlotCollect_cmdNone_Click(int);
// Makes the collection of the ticked boxes, which unloads the form. Shows a box, and nothing else happens,
// when no results have been scanned or no box among the first 28 is ticked: the last one alone is no choice.
void frmPlotCollect_cmdGenerate_Click(int);
void frmPlotCollect_cmdCancel_Click(int);

// Years of which the fishery's table of ages in frmOutputData has at least one observed share.
int CountYearsObserved();

}  // namespace tarnvik
