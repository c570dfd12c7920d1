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

struct ListPlace {
  int page;
  ComboBox OutputForm::*list;
};

const ListPlace kLists[] = {
    {kPlotNumbers, &OutputForm::cboPlot1},    {kPlotSurveyIndex, &OutputForm::cboPlot3},
    {kPlotFisheryAge, &OutputForm::cboPlot4}, {kPlotSurveyAge, &OutputForm::cboPlot5a},
    {kPlotSurveyAge, &OutputForm::cboPlot5b}, {kPlotSurveySample, &OutputForm::cboPlot18},
    {kPlotAgeF, &OutputForm::cboPlot2},       {kPlotSurveySelectivity, &OutputForm::cboPlot14},
};

struct OptionGroup {
  int page;
  ControlArray<OptionButton> OutputForm::*options;
  std::vector<const char*> captions;
};

const OptionGroup kOptions[] = {
    {kPlotEndNumbers, &OutputForm::Option23, {"End Year Numbers", "End Year + 1 Numbers"}},
    {kPlotCpue,
     &OutputForm::Option27,
     {"CPUE Biomass Index -- Observed and Predicted", "Residuals", "Log-Scale Residuals",
      "Standardized Log-Scale Residuals"}},
    {kPlotSurveyIndex,
     &OutputForm::Option3a,
     {"Survey Biomass Index -- Observed and Predicted", "Residuals", "Log-Scale Residuals",
      "Standardized Log-Scale Residuals"}},
    {kPlotFisheryAge,
     &OutputForm::Option4,
     {"Fishery Proportion at Age -- Observed and Predicted", "Residuals", "Standardized Residuals"}},
    {kPlotSurveyAge,
     &OutputForm::Option5,
     {"Survey Proportion at Age -- Observed and Predicted", "Residuals", "Standardized Residuals"}},
    {kPlotRecruits, &OutputForm::Option9, {"Recruits", "Standardized Log-Scale Residuals for Recruitment"}},
    {kPlotCatch,
     &OutputForm::Option10,
     {"Total Catch Biomass -- Observed and Predicted", "Residuals", "Standardized Log-Scale Residuals"}},
    {kPlotBiomassTotals,
     &OutputForm::Option6,
     {"Population Biomass", "Spawning Biomass", "Exploitable Biomass"}},
    {kPlotBiomassAtAge,
     &OutputForm::Option7,
     {"Catch Biomass by Year", "Catch Biomass by Age", "Population Biomass by Year",
      "Population Biomass by Age", "Spawning Biomass by Year", "Spawning Biomass by Age",
      "Exploitable Biomass by Yr", "Exploitable Biomass by Age"}},
    {kPlotBiomassRatios,
     &OutputForm::Option26,
     {"Ratio of Annual Spawning Biomass to Target", "Ratio of Annual Spawning Biomass to Limit"}},
    {kPlotUnfished,
     &OutputForm::Option8,
     {"Unfished Mean Spawning Weight", "Unfished Expected Spawnings",
      "Fraction of Unfished Spawning Biomass"}},
    {kPlotAverageF,
     &OutputForm::Option12,
     {"Average Annual Fishing Mortality", "Standardized Log-Scale Residuals"}},
    {kPlotFRatios,
     &OutputForm::Option25,
     {"Ratio of Annual Fishing Mortality to Target", "Ratio of Annual Fishing Mortality to Limit"}},
    {kPlotFisherySelectivity, &OutputForm::Option13, {"Plot by Selectivity Period", "Plot by Year"}},
};

struct BandPlace {
  int band;
  int page;
  CommandButton OutputForm::*button;
};

const BandPlace kBands[] = {
    {8, kPlotEndNumbers, &OutputForm::cmdPlot23},    {3, kPlotRecruits, &OutputForm::cmdPlot9},
    {4, kPlotSurplus, &OutputForm::cmdPlot11},       {0, kPlotBiomassTotals, &OutputForm::cmdPlot6},
    {7, kPlotBiomassRatios, &OutputForm::cmdPlot26}, {5, kPlotAverageF, &OutputForm::cmdPlot12},
    {6, kPlotFRatios, &OutputForm::cmdPlot25},
};

}  // namespace

OutputForm::OutputForm() : Form("frmOutput", "Output Data Plots") { Design(); }

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
  for (const ListPlace& place : kLists) (this->*place.list).SetContainer(&SSTab1, place.page);
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
  FramePlot7(0).SetCaption("Select Year to Plot");
  FramePlot7(1).SetCaption("Select Age to Plot");
  for (const int which : {0, 1}) {
    FramePlot7(which).SetContainer(&SSTab1, kPlotBiomassAtAge);
    Combo7(which).SetContainer(&FramePlot7(which));
    cboPlot13(which).SetContainer(&SSTab1, kPlotFisherySelectivity);
  }
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

}  // namespace tarnvik
