#include "results/frmoutput.h"

#include <vector>

#include "core/globals.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"

namespace tarnvik {

namespace {

struct ChartPlace {
  int page;
  Chart OutputForm::*chart;
};

const ChartPlace kCharts[] = {
    {kPlotNumbers, &OutputForm::Chart1},
    {kPlotEndNumbers, &OutputForm::Chart23},
    {kPlotCpue, &OutputForm::Chart27},
    {kPlotSurveyIndex, &OutputForm::Chart3},
    {kPlotFisheryAge, &OutputForm::Chart4},
    {kPlotSurveyAge, &OutputForm::Chart5},
    {kPlotFisherySample, &OutputForm::Chart17},
    {kPlotSurveySample, &OutputForm::Chart18},
    {kPlotRecruits, &OutputForm::Chart9},
    {kPlotSurplus, &OutputForm::Chart11},
    {kPlotCatch, &OutputForm::Chart10},
    {kPlotBiomassTotals, &OutputForm::Chart6},
    {kPlotBiomassAtAge, &OutputForm::Chart7},
    {kPlotBiomassRatios, &OutputForm::Chart26},
    {kPlotUnfished, &OutputForm::Chart8},
    {kPlotAgeF, &OutputForm::Chart2},
    {kPlotAverageF, &OutputForm::Chart12},
    {kPlotFRatios, &OutputForm::Chart25},
    {kPlotFvsSsb, &OutputForm::Chart15},
    {kPlotFisherySelectivity, &OutputForm::Chart13},
    {kPlotSurveySelectivity, &OutputForm::Chart14},
    {kPlotLikelihood, &OutputForm::Chart16},
};

// A list with its frame.
struct ListPlace {
  int page;
  Frame OutputForm::*frame;
  const char* caption;
  ComboBox OutputForm::*list;
  Handler click;
};

constexpr const char* kSelectYear = "Select Year to Plot";
constexpr const char* kSelectAge = "Select Age to Plot";
constexpr const char* kSelectSurvey = "Select Survey to Plot";
constexpr const char* kSelectPeriod = "Select Period to Plot";

const ListPlace kLists[] = {
    {kPlotNumbers, &OutputForm::FramePlot1, kSelectYear, &OutputForm::cboPlot1, frmOutput_cboPlot1_Click},
    {kPlotSurveyIndex, &OutputForm::FramePlot3, kSelectSurvey, &OutputForm::cboPlot3,
     frmOutput_cboPlot3_Click},
    {kPlotFisheryAge, &OutputForm::FramePlot4, kSelectYear, &OutputForm::cboPlot4, frmOutput_cboPlot4_Click},
    {kPlotSurveyAge, &OutputForm::FramePlot5a, kSelectSurvey, &OutputForm::cboPlot5a,
     frmOutput_cboPlot5a_Click},
    {kPlotSurveyAge, &OutputForm::FramePlot5b, kSelectYear, &OutputForm::cboPlot5b,
     frmOutput_cboPlot5b_Click},
    {kPlotSurveySample, &OutputForm::FramePlot18, kSelectSurvey, &OutputForm::cboPlot18,
     frmOutput_cboPlot18_Click},
    {kPlotAgeF, &OutputForm::FramePlot2, kSelectAge, &OutputForm::cboPlot2, frmOutput_cboPlot2_Click},
    {kPlotSurveySelectivity, &OutputForm::FramePlot14, kSelectSurvey, &OutputForm::cboPlot14,
     frmOutput_cboPlot14_Click},
};

// Two lists on one page, of which the option chosen there needs one.
struct ListPairPlace {
  int page;
  ControlArray<Frame> OutputForm::*frames;
  const char* captions[2];
  ControlArray<ComboBox> OutputForm::*lists;
  Handler click;
};

const ListPairPlace kListPairs[] = {
    {kPlotBiomassAtAge,
     &OutputForm::FramePlot7,
     {kSelectYear, kSelectAge},
     &OutputForm::Combo7,
     frmOutput_Combo7_Click},
    {kPlotFisherySelectivity,
     &OutputForm::FramePlot13,
     {kSelectPeriod, kSelectYear},
     &OutputForm::cboPlot13,
     frmOutput_cboPlot13_Click},
};

struct OptionGroup {
  int page;
  ControlArray<OptionButton> OutputForm::*options;
  Handler click;
  std::vector<const char*> captions;
};

const OptionGroup kOptions[] = {
    {kPlotEndNumbers,
     &OutputForm::Option23,
     frmOutput_Option23_Click,
     {"End Year Numbers", "End Year + 1 Numbers"}},
    {kPlotCpue,
     &OutputForm::Option27,
     frmOutput_Option27_Click,
     {"CPUE Biomass Index -- Observed and Predicted", "Residuals", "Log-Scale Residuals",
      "Standardized Log-Scale Residuals"}},
    {kPlotSurveyIndex,
     &OutputForm::Option3a,
     frmOutput_Option3a_Click,
     {"Survey Biomass Index -- Observed and Predicted", "Residuals", "Log-Scale Residuals",
      "Standardized Log-Scale Residuals"}},
    {kPlotFisheryAge,
     &OutputForm::Option4,
     frmOutput_Option4_Click,
     {"Fishery Proportion at Age -- Observed and Predicted", "Residuals", "Standardized Residuals"}},
    {kPlotSurveyAge,
     &OutputForm::Option5,
     frmOutput_Option5_Click,
     {"Survey Proportion at Age -- Observed and Predicted", "Residuals", "Standardized Residuals"}},
    {kPlotRecruits,
     &OutputForm::Option9,
     frmOutput_Option9_Click,
     {"Recruits", "Standardized Log-Scale Residuals for Recruitment"}},
    {kPlotCatch,
     &OutputForm::Option10,
     frmOutput_Option10_Click,
     {"Total Catch Biomass -- Observed and Predicted", "Residuals", "Standardized Log-Scale Residuals"}},
    {kPlotBiomassTotals,
     &OutputForm::Option6,
     frmOutput_Option6_Click,
     {"Population Biomass", "Spawning Biomass", "Exploitable Biomass"}},
    {kPlotBiomassAtAge,
     &OutputForm::Option7,
     frmOutput_Option7_Click,
     {"Catch Biomass by Year", "Catch Biomass by Age", "Population Biomass by Year",
      "Population Biomass by Age", "Spawning Biomass by Year", "Spawning Biomass by Age",
      "Exploitable Biomass by Yr", "Exploitable Biomass by Age"}},
    {kPlotBiomassRatios,
     &OutputForm::Option26,
     frmOutput_Option26_Click,
     {"Ratio of Annual Spawning Biomass to Target", "Ratio of Annual Spawning Biomass to Limit"}},
    {kPlotUnfished,
     &OutputForm::Option8,
     frmOutput_Option8_Click,
     {"Unfished Mean Spawning Weight", "Unfished Expected Spawnings",
      "Fraction of Unfished Spawning Biomass"}},
    {kPlotAverageF,
     &OutputForm::Option12,
     frmOutput_Option12_Click,
     {"Average Annual Fishing Mortality", "Standardized Log-Scale Residuals"}},
    {kPlotFRatios,
     &OutputForm::Option25,
     frmOutput_Option25_Click,
     {"Ratio of Annual Fishing Mortality to Target", "Ratio of Annual Fishing Mortality to Limit"}},
    {kPlotFisherySelectivity,
     &OutputForm::Option13,
     frmOutput_Option13_Click,
     {"Plot by Selectivity Period", "Plot by Year"}},
};

struct BandPlace {
  int band;
  int page;
  CommandButton OutputForm::*button;
  Handler click;
};

const BandPlace kBands[] = {
    {8, kPlotEndNumbers, &OutputForm::cmdPlot23, frmOutput_cmdPlot23_Click},
    {3, kPlotRecruits, &OutputForm::cmdPlot9, frmOutput_cmdPlot9_Click},
    {4, kPlotSurplus, &OutputForm::cmdPlot11, frmOutput_cmdPlot11_Click},
    {0, kPlotBiomassTotals, &OutputForm::cmdPlot6, frmOutput_cmdPlot6_Click},
    {7, kPlotBiomassRatios, &OutputForm::cmdPlot26, frmOutput_cmdPlot26_Click},
    {5, kPlotAverageF, &OutputForm::cmdPlot12, frmOutput_cmdPlot12_Click},
    {6, kPlotFRatios, &OutputForm::cmdPlot25, frmOutput_cmdPlot25_Click},
};

}  // namespace

OutputForm::OutputForm() : Form("frmOutput", "Output Data Plots") {
  Design();
  BindHandlers();
}

void OutputForm::Load() { frmOutput_Form_Load(); }
void OutputForm::Unload() { frmOutput_Form_Unload(); }

void OutputForm::Design() {
  SSTab1.SetPages({"Numbers at Age",
                   "End, Proj. Numbers",
                   "CPUE Biomass Index",
                   "Survey Biomass Index",
                   "Fishery Prop. at Age",
                   "Survey Prop. at Age",
                   "Fishery Sample Size",
                   "Survey Sample Size",
                   "Recruits",
                   "Surplus Production",
                   "Total Catch Biomass",
                   "Biomass Totals",
                   "Biomass at Age",
                   "Biomass Target / Limit Ratios",
                   "Unfished Biomass",
                   "Age Specific F",
                   "Avg. Annual F",
                   "F Target and Limit Ratios",
                   "F vs. SSB",
                   "Fishery Selectivity",
                   "Survey Selectivity",
                   "Likelihood Components"});
  for (const ChartPlace& place : kCharts) (this->*place.chart).SetContainer(&SSTab1, place.page);
  for (const ListPlace& place : kLists) {
    (this->*place.frame).SetCaption(place.caption);
    (this->*place.frame).SetContainer(&SSTab1, place.page);
    (this->*place.list).SetContainer(&(this->*place.frame));
  }
  for (const ListPairPlace& place : kListPairs) {
    for (const int which : {0, 1}) {
      Frame& frame = (this->*place.frames)(which);
      frame.SetCaption(place.captions[which]);
      frame.SetContainer(&SSTab1, place.page);
      (this->*place.lists)(which).SetContainer(&frame);
    }
  }
  // What goes with the first option of the page.
  FramePlot7(0).SetVisible(false);
  cboPlot13(1).SetEnabled(false);
  for (const OptionGroup& group : kOptions) {
    (this->*group.options).ForEach([&](OptionButton& option) {
      option.SetCaption(group.captions[static_cast<std::size_t>(option.Index())]);
      option.SetContainer(&SSTab1, group.page);
    });
    (this->*group.options)(0).SetValue(true);
  }
  for (const BandPlace& place : kBands)
    DesignBands(*this, place.band, this->*place.button, SSTab1, place.page);

  lblPlot1.ForEach([this](Label& label) { label.SetContainer(&SSTab1, kPlotNumbers); });
  cmdPlot1.SetCaption("Show Plot");
  cmdPlot1.SetContainer(&SSTab1, kPlotNumbers);
  cmdClearPlot1.SetCaption("Clear Plot");
  cmdClearPlot1.SetContainer(&SSTab1, kPlotNumbers);
  for (CheckBox* check : {&Check4, &Check5}) {
    check->SetCaption("Limit Selection to Years with Both Observed and Predicted Values Only");
    check->SetContainer(&SSTab1, check == &Check4 ? kPlotFisheryAge : kPlotSurveyAge);
  }
}

void OutputForm::BindHandlers() {
  for (const ListPlace& place : kLists) (this->*place.list).OnClick = place.click;
  for (const ListPairPlace& place : kListPairs)
    (this->*place.lists).SetHandler(&ComboBox::OnClick, place.click);
  for (const OptionGroup& group : kOptions)
    (this->*group.options).SetHandler(&OptionButton::OnClick, group.click);
  for (const BandPlace& place : kBands) (this->*place.button).OnClick = place.click;
  cmdPlot1.OnClick = frmOutput_cmdPlot1_Click;
  cmdClearPlot1.OnClick = frmOutput_cmdClearPlot1_Click;
  Check4.OnClick = frmOutput_Check4_Click;
  Check5.OnClick = frmOutput_Check5_Click;
}

void frmOutput_Form_Load() {
  OutputFormsOpen = kTrue;
  frmOutput->SSTab1.SetTab(0);
}

void frmOutput_Form_Unload() {
  OutputFormsOpen = kFalse;
  UnloadForm(frmOutputData);
  UnloadForm(frmSTD);
}

void UnloadResultForms() {
  UnloadForm(frmOutput);
  UnloadForm(frmSTD);
  UnloadForm(frmOutputData);
}

}  // namespace tarnvik
