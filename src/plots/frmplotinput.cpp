#include "plots/frmplotinput.h"

#include "core/globals.h"
#include "plots/input_lists.h"
#include "plots/input_plots.h"

namespace tarnvik {

namespace {

using F = PlotInputForm;

constexpr const char* kNoDataInYear = "Please Note: This Year Contains No Data";
constexpr const char* kNoDataInPlot = "Please Note: This Plot Contains No Data";
constexpr const char* kNoDataInSurvey = "Please Note: This Survey Contains No Data";

struct PageRow {
  InputPlotTab page;
  Chart F::*chart;
  Label F::*no_data;
  const char* no_data_caption;
};

const PageRow kPages[] = {
    {kInputFisheryAge, &F::Chart2, &F::lblFishNoData, kNoDataInYear},
    {kInputCpue, &F::Chart3, &F::lblCPUENoData, kNoDataInPlot},
    {kInputSurveyAge, &F::Chart4, &F::lblSurvNoData, kNoDataInYear},
    {kInputSurveyIndex, &F::Chart5, &F::lblNoData5, kNoDataInSurvey},
    {kInputCatch, &F::Chart1, &F::lblNoData1, kNoDataInPlot},
    {kInputCatchWeight, &F::Chart6, &F::lblNoData6, kNoDataInYear},
    {kInputStockWeight, &F::Chart7, &F::lblNoData7, kNoDataInYear},
    {kInputSpawningWeight, &F::Chart11, &F::lblNoData11, kNoDataInYear},
    {kInputMaturity, &F::Chart8, &F::lblNoData8, kNoDataInYear},
    {kInputM, &F::Chart14, &F::lblMNoData, kNoDataInPlot},
    {kInputRecruitDeviations, &F::Chart9, &F::lblNoData9, kNoDataInPlot},
    {kInputFDeviations, &F::Chart10, &F::lblNoData10, kNoDataInPlot},
    {kInputFisherySelectivity, &F::Chart12, &F::lblNoData12, kNoDataInPlot},
    {kInputSurveySelectivity, &F::Chart13, &F::lblNoData13, kNoDataInPlot},
};

constexpr const char* kSelectYear = "Select Year to Plot";
constexpr const char* kSelectSurvey = "Select Survey to Plot";

struct ListRow {
  InputPlotTab page;
  Frame F::*frame;
  const char* caption;
  ComboBox F::*list;
  Handler click;
};

const ListRow kLists[] = {
    {kInputFisheryAge, &F::frmPlot2, kSelectYear, &F::cboPlot2, frmPlotInput_cboPlot2_Click},
    {kInputSurveyAge, &F::frmPlot4a, kSelectSurvey, &F::cboPlot4a, frmPlotInput_cboPlot4a_Click},
    {kInputSurveyAge, &F::frmPlot4b, kSelectYear, &F::cboPlot4b, frmPlotInput_cboPlot4b_Click},
    {kInputSurveyIndex, &F::frmPlot5, kSelectSurvey, &F::cboPlot5, frmPlotInput_cboPlot5_Click},
    {kInputCatchWeight, &F::frmPlot6, kSelectYear, &F::cboPlot6, frmPlotInput_cboPlot6_Click},
    {kInputStockWeight, &F::frmPlot7, kSelectYear, &F::cboPlot7, frmPlotInput_cboPlot7_Click},
    {kInputSpawningWeight, &F::frmPlot11, kSelectYear, &F::cboPlot11, frmPlotInput_cboPlot11_Click},
    {kInputMaturity, &F::frmPlot8, kSelectYear, &F::cboPlot8, frmPlotInput_cboPlot8_Click},
    {kInputFisherySelectivity, &F::frmPlot12, "", &F::cboPlot12, frmPlotInput_cboPlot12_Click},
    {kInputSurveySelectivity, &F::frmPlot13, "Select a Survey to Plot", &F::cboPlot13,
     frmPlotInput_cboPlot13_Click},
};

}  // namespace

PlotInputForm::PlotInputForm() : Form("frmPlotInput", "Input Data and Parameter Values Plots") { Design(); }

void PlotInputForm::Load() { frmPlotInput_Form_Load(); }
void PlotInputForm::Activate() { frmPlotInput_Form_Activate(); }
void PlotInputForm::Unload() { frmPlotInput_Form_Unload(); }

void PlotInputForm::Design() {
  SSTab1.SetPages({"Fishery Prop. at Age", "Fishery CPUE", "Survey Prop. at Age", "Survey Biomass Index",
                   "Catch Biomass", "Catch Weight at Age", "Stock Weight at Age", "Spawning Weight at Age",
                   "Maturity at Age", "M", "Recruitment Deviations", "F Mortality Deviations",
                   "Fishery Selectivity", "Survey Selectivity"});
  for (const PageRow& row : kPages) {
    (this->*row.chart).SetContainer(&SSTab1, row.page);
    Label& no_data = this->*row.no_data;
    no_data.SetContainer(&SSTab1, row.page);
    no_data.SetCaption(row.no_data_caption);
    no_data.SetVisible(false);
  }
  for (const ListRow& row : kLists) {
    Frame& frame = this->*row.frame;
    frame.SetContainer(&SSTab1, row.page);
    frame.SetCaption(row.caption);
    ComboBox& list = this->*row.list;
    list.SetContainer(&frame);
    list.OnClick = row.click;
  }
}

void frmPlotInput_Form_Load() {
  PlotInputOpen = kTrue;
  frmPlotInput->SSTab1.SetTab(kInputFisheryAge);
}

void frmPlotInput_Form_Activate() {
  if (DatFileOpen == kTrue && PinFileOpen == kTrue) RefreshInputPlots();
}

void frmPlotInput_Form_Unload() { PlotInputOpen = kFalse; }

}  // namespace tarnvik
