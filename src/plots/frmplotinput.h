// frmPlotInput "Input Data and Parameter Values Plots": the state record of 14 tabs, each with one chart.
//
// The charts hold no data of their own: each is drawn from the fields and grids of frmInput and frmPin and
// from the per-survey store.
#pragma once

#include "platform/chart.h"
#include "platform/form.h"
#include "platform/lists.h"

namespace tarnvik {

// Pages of SSTab1.
enum InputPlotTab : int {
  kInputFisheryAge,
  kInputCpue,
  kInputSurveyAge,
  kInputSurveyIndex,
  kInputCatch,
  kInputCatchWeight,
  kInputStockWeight,
  kInputSpawningWeight,
  kInputMaturity,
  kInputM,  // enabled while M is estimated
  kInputRecruitDeviations,
  kInputFDeviations,
  kInputFisherySelectivity,  // this and the next: enabled while the selectivity is nonparametric
  kInputSurveySelectivity
};

struct PlotInputForm : Form {
  PlotInputForm();
  void Load() override;      // frmPlotInput_Form_Load
  void Activate() override;  // frmPlotInput_Form_Activate
  void Unload() override;    // frmPlotInput_Form_Unload

  TabStrip SSTab1{this, "SSTab1"};

  // Page by page: the chart, the lists that choose what it shows, in frames, and the note that there is
  // nothing to show.
  Chart Chart2{this, "Chart2"};
  Frame frmPlot2{this, "frmPlot2"};
  ComboBox cboPlot2{this, "cboPlot2"};
  Label lblFishNoData{this, "lblFishNoData"};

  Chart Chart3{this, "Chart3"};
  Label lblCPUENoData{this, "lblCPUENoData"};

  Chart Chart4{this, "Chart4"};
  Frame frmPlot4a{this, "frmPlot4a"};
  ComboBox cboPlot4a{this, "cboPlot4a"};  // surveys
  Frame frmPlot4b{this, "frmPlot4b"};
  ComboBox cboPlot4b{this, "cboPlot4b"};  // years of the survey
  Label lblSurvNoData{this, "lblSurvNoData"};

  Chart Chart5{this, "Chart5"};
  Frame frmPlot5{this, "frmPlot5"};
  ComboBox cboPlot5{this, "cboPlot5"};
  Label lblNoData5{this, "lblNoData5"};

  Chart Chart1{this, "Chart1"};
  Label lblNoData1{this, "lblNoData1"};

  Chart Chart6{this, "Chart6"};
  Frame frmPlot6{this, "frmPlot6"};
  ComboBox cboPlot6{this, "cboPlot6"};
  Label lblNoData6{this, "lblNoData6"};

  Chart Chart7{this, "Chart7"};
  Frame frmPlot7{this, "frmPlot7"};
  ComboBox cboPlot7{this, "cboPlot7"};
  Label lblNoData7{this, "lblNoData7"};

  Chart Chart11{this, "Chart11"};
  Frame frmPlot11{this, "frmPlot11"};
  ComboBox cboPlot11{this, "cboPlot11"};
  Label lblNoData11{this, "lblNoData11"};

  Chart Chart8{this, "Chart8"};
  Frame frmPlot8{this, "frmPlot8"};
  ComboBox cboPlot8{this, "cboPlot8"};
  Label lblNoData8{this, "lblNoData8"};

  Chart Chart14{this, "Chart14"};
  Label lblMNoData{this, "lblMNoData"};

  Chart Chart9{this, "Chart9"};
  Label lblNoData9{this, "lblNoData9"};

  Chart Chart10{this, "Chart10"};
  Label lblNoData10{this, "lblNoData10"};

  Chart Chart12{this, "Chart12"};
  Frame frmPlot12{this, "frmPlot12"};  // its caption says whether the list holds periods or years
  ComboBox cboPlot12{this, "cboPlot12"};
  Label lblNoData12{this, "lblNoData12"};

  Chart Chart13{this, "Chart13"};
  Frame frmPlot13{this, "frmPlot13"};
  ComboBox cboPlot13{this, "cboPlot13"};
  Label lblNoData13{this, "lblNoData13"};

 private:
  void Design();  // captions, pages, containers, hidden notes, handlers of the lists
};

inline FormOf<PlotInputForm> frmPlotInput{"frmPlotInput"};

// Sets PlotInputOpen and brings the first page to the front.
void frmPlotInput_Form_Load();
// While a data file and a parameter file are open: RefreshInputPlots, so that each return to the form shows
// the input as it is now.
void frmPlotInput_Form_Activate();
// Clears PlotInputOpen.
void frmPlotInput_Form_Unload();

}  // namespace tarnvik
