// frmOutput "Output Data Plots": the state record of 22 tabs of charts with their selectors.
//
// The charts hold no data of their own: each is drawn from the tables of frmOutputData and frmSTD.
#pragma once

#include "platform/chart.h"
#include "platform/form.h"
#include "platform/lists.h"

namespace tarnvik {

// Pages of SSTab1.
enum OutputTab : int {
  kPlotNumbers,
  kPlotEndNumbers,
  kPlotCpue,
  kPlotSurveyIndex,
  kPlotFisheryAge,
  kPlotSurveyAge,
  kPlotFisherySample,
  kPlotSurveySample,
  kPlotRecruits,
  kPlotSurplus,
  kPlotCatch,
  kPlotBiomassTotals,
  kPlotBiomassAtAge,
  kPlotBiomassRatios,
  kPlotUnfished,
  kPlotAgeF,
  kPlotAverageF,
  kPlotFRatios,
  kPlotFvsSsb,
  kPlotFisherySelectivity,
  kPlotSurveySelectivity,
  kPlotLikelihood
};

struct OutputForm : Form {
  OutputForm();
  void Load() override;    // frmOutput_Form_Load
  void Unload() override;  // frmOutput_Form_Unload

  TabStrip SSTab1{this, "SSTab1"};

  // Numbers at age: up to five years in one chart
  Chart Chart1{this, "Chart1"};
  Frame FramePlot1{this, "FramePlot1"};  // around the list of the same number, here and below
  ComboBox cboPlot1{this, "cboPlot1"};
  ControlArray<Label> lblPlot1{this, "lblPlot1", {0, 1, 2, 3, 4}};
  CommandButton cmdPlot1{this, "cmdPlot1"};
  CommandButton cmdClearPlot1{this, "cmdClearPlot1"};
  // Numbers in the last year and in the year after
  Chart Chart23{this, "Chart23"};
  ControlArray<OptionButton> Option23{this, "Option23", {0, 1}};
  CommandButton cmdPlot23{this, "cmdPlot23"};
  // CPUE index; the page is disabled when the model had no CPUE series
  Chart Chart27{this, "Chart27"};
  ControlArray<OptionButton> Option27{this, "Option27", {0, 1, 2, 3}};
  // Survey index
  Chart Chart3{this, "Chart3"};
  Frame FramePlot3{this, "FramePlot3"};
  ComboBox cboPlot3{this, "cboPlot3"};
  ControlArray<OptionButton> Option3a{this, "Option3a", {0, 1, 2, 3}};
  // Fishery proportions at age by year
  Chart Chart4{this, "Chart4"};
  Frame FramePlot4{this, "FramePlot4"};
  ComboBox cboPlot4{this, "cboPlot4"};
  CheckBox Check4{this, "Check4"};
  ControlArray<OptionButton> Option4{this, "Option4", {0, 1, 2}};
  // Survey proportions at age by survey and year
  Chart Chart5{this, "Chart5"};
  Frame FramePlot5a{this, "FramePlot5a"};
  ComboBox cboPlot5a{this, "cboPlot5a"};
  Frame FramePlot5b{this, "FramePlot5b"};
  ComboBox cboPlot5b{this, "cboPlot5b"};
  CheckBox Check5{this, "Check5"};
  ControlArray<OptionButton> Option5{this, "Option5", {0, 1, 2}};
  // Sample sizes
  Chart Chart17{this, "Chart17"};
  Chart Chart18{this, "Chart18"};
  Frame FramePlot18{this, "FramePlot18"};
  ComboBox cboPlot18{this, "cboPlot18"};
  // Recruits, surplus production, catch
  Chart Chart9{this, "Chart9"};
  ControlArray<OptionButton> Option9{this, "Option9", {0, 1}};
  CommandButton cmdPlot9{this, "cmdPlot9"};
  Chart Chart11{this, "Chart11"};
  CommandButton cmdPlot11{this, "cmdPlot11"};
  Chart Chart10{this, "Chart10"};
  ControlArray<OptionButton> Option10{this, "Option10", {0, 1, 2}};
  // Biomass
  Chart Chart6{this, "Chart6"};
  ControlArray<OptionButton> Option6{this, "Option6", {0, 1, 2}};
  CommandButton cmdPlot6{this, "cmdPlot6"};
  Chart Chart7{this, "Chart7"};
  ControlArray<OptionButton> Option7{
      this, "Option7", {0, 1, 2, 3, 4, 5, 6, 7}};  // even: by year, odd: by age
  ControlArray<Frame> FramePlot7{this, "FramePlot7", {0, 1}};
  ControlArray<ComboBox> Combo7{this, "Combo7", {0, 1}};  // years, ages
  Chart Chart26{this, "Chart26"};
  ControlArray<OptionButton> Option26{this, "Option26", {0, 1}};
  CommandButton cmdPlot26{this, "cmdPlot26"};
  Chart Chart8{this, "Chart8"};
  ControlArray<OptionButton> Option8{this, "Option8", {0, 1, 2}};
  // Fishing mortality
  Chart Chart2{this, "Chart2"};
  Frame FramePlot2{this, "FramePlot2"};
  ComboBox cboPlot2{this, "cboPlot2"};
  Chart Chart12{this, "Chart12"};
  ControlArray<OptionButton> Option12{this, "Option12", {0, 1}};
  CommandButton cmdPlot12{this, "cmdPlot12"};
  Chart Chart25{this, "Chart25"};
  ControlArray<OptionButton> Option25{this, "Option25", {0, 1}};
  CommandButton cmdPlot25{this, "cmdPlot25"};
  Chart Chart15{this, "Chart15"};
  // Selectivity
  Chart Chart13{this, "Chart13"};
  ControlArray<OptionButton> Option13{this, "Option13", {0, 1}};
  ControlArray<Frame> FramePlot13{this, "FramePlot13", {0, 1}};
  ControlArray<ComboBox> cboPlot13{this, "cboPlot13", {0, 1}};  // periods, years
  Chart Chart14{this, "Chart14"};
  Frame FramePlot14{this, "FramePlot14"};
  ComboBox cboPlot14{this, "cboPlot14"};
  // Likelihood components
  Chart Chart16{this, "Chart16"};

  // Bands of standard deviations: 0 biomass totals, 3 recruits, 4 surplus production, 5 average F, 6 ratios
  // of F, 7 ratios of biomass, 8 numbers in the last years.
  ControlArray<Frame> FrameSTD{this, "FrameSTD", {0, 3, 4, 5, 6, 7, 8}};
  ControlArray<Label> lblSTDlevels{this, "lblSTDlevels", {0, 3, 4, 5, 6, 7, 8}};
  ControlArray<Label> lblSTDplus{this, "lblSTDplus", {0, 3, 4, 5, 6, 7, 8}};
  ControlArray<TextBox> txtSTDplus{this, "txtSTDplus", {0, 3, 4, 5, 6, 7, 8}};
  ControlArray<Label> lblSTDminus{this, "lblSTDminus", {0, 3, 4, 5, 6, 7, 8}};
  ControlArray<TextBox> txtSTDminus{this, "txtSTDminus", {0, 3, 4, 5, 6, 7, 8}};

 private:
  void Design();        // captions, pages, containers, and the first option of each group set
  void BindHandlers();  // which procedure each event of a control runs
};

inline FormOf<OutputForm> frmOutput{"frmOutput"};

// Sets OutputFormsOpen and brings the first page to the front.
void frmOutput_Form_Load();
// Clears OutputFormsOpen and unloads frmOutputData and frmSTD.
void frmOutput_Form_Unload();
// Unload frmOutput, frmSTD and frmOutputData.
void UnloadResultForms();

// The click handlers, which stand with the plots. Each finds out what is selected, notes it where its drawing
// routine looks for it, and draws; it shows nothing and raises nothing but where that is said.

// --- Numbers at age. The labels hold the years chosen: PlotIndex and PlotSeriesSel, which every other plot
// uses too, are set from them.
// Adds the year of the list to the years chosen; says so when there are five already.
void frmOutput_cboPlot1_Click(int);
void frmOutput_cmdPlot1_Click(int);  // draws the years chosen, if any
void frmOutput_cmdClearPlot1_Click(int);

// --- Lists
void frmOutput_cboPlot2_Click(int);
void frmOutput_cboPlot3_Click(int);
void frmOutput_cboPlot4_Click(int);
void frmOutput_cboPlot5a_Click(int);  // fills cboPlot5b, which draws
void frmOutput_cboPlot5b_Click(int);
void frmOutput_cboPlot13_Click(int);
void frmOutput_cboPlot14_Click(int);
void frmOutput_cboPlot18_Click(int);
void frmOutput_Combo7_Click(int);

// --- Limits to the years with observations. They may show what RefillFisheryYears and RefillSurveyYears do.
void frmOutput_Check4_Click(int);
void frmOutput_Check5_Click(int);
// Residuals there are only for years with observations: checks Check4, Check5 for them and disables it.
void frmOutput_Option4_Click(int);
void frmOutput_Option5_Click(int);

// --- Options
void frmOutput_Option3a_Click(int);
void frmOutput_Option6_Click(int);
void frmOutput_Option7_Click(int);  // shows the list that goes with the option
void frmOutput_Option8_Click(int);
void frmOutput_Option9_Click(int);  // enables the bands or disables them; so does Option12
void frmOutput_Option10_Click(int);
void frmOutput_Option12_Click(int);
void frmOutput_Option13_Click(int);  // enables the list that goes with the option
void frmOutput_Option23_Click(int);
void frmOutput_Option25_Click(int);
void frmOutput_Option26_Click(int);
void frmOutput_Option27_Click(int);

// --- "Update Plot" beside the bands
void frmOutput_cmdPlot6_Click(int);
void frmOutput_cmdPlot9_Click(int);
void frmOutput_cmdPlot11_Click(int);
void frmOutput_cmdPlot12_Click(int);
void frmOutput_cmdPlot23_Click(int);
void frmOutput_cmdPlot25_Click(int);
void frmOutput_cmdPlot26_Click(int);

// Captions and places of the controls of one band of standard deviations: frame, labels, boxes and button.
// FormT is OutputForm or StdForm, which name these controls alike.
template <class FormT>
void DesignBands(FormT& form, int band, CommandButton& button, Control& tabs, int page) {
  Frame& frame = form.FrameSTD(band);
  frame.SetCaption("Select Standard Deviation");
  frame.SetContainer(&tabs, page);
  form.lblSTDlevels(band).SetCaption("Levels to Plot");
  form.lblSTDplus(band).SetCaption("+ Std Dev:");
  form.lblSTDminus(band).SetCaption("- Std Dev:");
  button.SetCaption("Update Plot");
  Control* const controls[] = {&form.lblSTDlevels(band), &form.lblSTDplus(band),  &form.txtSTDplus(band),
                               &form.lblSTDminus(band),  &form.txtSTDminus(band), &button};
  for (Control* control : controls) control->SetContainer(&frame);
}

}  // namespace tarnvik
