#include "results/frmoutputdata.h"

#include "core/frmmain.h"
#include "core/globals.h"
#include "platform/host.h"
#include "results/frmoutput.h"
#include "results/viewers.h"

namespace tarnvik {

namespace {

// Where a table lies: its tab control, the page, and the title of its frame.
struct TablePlace {
  int grid;
  TabStrip OutputDataForm::*strip;
  int page;
  const char* title;
};

constexpr auto kMainTabs = &OutputDataForm::SSTab1;
constexpr auto kAgeTabs = &OutputDataForm::SSTab2;
constexpr auto kTotalTabs = &OutputDataForm::SSTab3;

const TablePlace kTables[] = {
    {kTableNumbers, kMainTabs, kPageNumbers, "Estimated Numbers (000s) of Fish at Age"},
    {kTableAgeF, kMainTabs, kPageAgeF, "Estimated Fishing Mortality"},
    {kTableFisheryAge, kMainTabs, kPageFisheryAge, "Fishery Proportion at Age"},
    {kTableSurveyAge, kMainTabs, kPageSurveyAge, "Survey Proportion at Age"},
    {kTableFisherySample, kMainTabs, kPageSampleSize, "Fishery Sample Size"},
    {kTableSurveySample, kMainTabs, kPageSampleSize, "Survey Sample Size"},
    {kTableRecruitment, kMainTabs, kPageRecruitment, "Recruitment (1000s of Age-1 Recruits)"},
    {kTableSurplus, kMainTabs, kPageRecruitment, "Surplus Production (mt)"},
    {kTableCatch, kTotalTabs, 0, "Catch Biomass (mt)"},
    {kTableBiomass, kTotalTabs, 1, "Biomass (mt)"},
    {kTableCatchAtAge, kAgeTabs, 0, "Catch Biomass at Age"},
    {kTablePopulationAtAge, kAgeTabs, 1, "Population Biomass at Age"},
    {kTableSpawningAtAge, kAgeTabs, 2, "Spawning Biomass at Age"},
    {kTableExploitableAtAge, kAgeTabs, 3, "Exploitable Biomass at Age"},
    {kTableTargetSsb, kMainTabs, kPageBiomassRatios, "Ratio of Annual Spawning Biomass to Target"},
    {kTableLimitSsb, kMainTabs, kPageBiomassRatios, "Ratio of Annual Spawning Biomass to Limit"},
    {kTableUnfishedWeight, kMainTabs, kPageUnfished, "Unfished Mean Spawning Weight"},
    {kTableUnfishedSpawnings, kMainTabs, kPageUnfished, "Unfished Expected Spawnings"},
    {kTableUnfishedFraction, kMainTabs, kPageUnfished, "Fraction of Unfished Spawning Biomass"},
    {kTableAverageF, kMainTabs, kPageAverageF, "Estimated Average Annual Fishing Mortality"},
    {kTableTargetF, kMainTabs, kPageFRatios, "Ratio of Annual F Mortality to Target"},
    {kTableLimitF, kMainTabs, kPageFRatios, "Ratio of Annual F Mortality to Limit"},
    {kTableFisherySelectivity, kMainTabs, kPageSelectivity, "Fishery Selectivity by Age"},
    {kTableSurveySelectivity, kMainTabs, kPageSelectivity, "Survey Selectivity by Age"},
    {kTableAnnualSelectivity, kMainTabs, kPageSelectivity, "Fishery Selectivity at Age by Year"},
};

// A single value and the caption beside it.
struct ValuePlace {
  int index;
  int page;
  const char* caption;
};

// The two captions of spawning biomass stand the other way round than those of population biomass: users and
// their papers know the page like this.
const ValuePlace kRatios[] = {
    {kRatioPopulation, kPageBiomassTotals, "Ratio in Last Year"},
    {kRatioPopulationRef, kPageBiomassTotals, "Ratio in Last Yr Relative to Reference Yr"},
    {kRatioSpawningRef, kPageBiomassTotals, "Ratio in Last Yr Relative to Reference Yr"},
    {kRatioSpawning, kPageBiomassTotals, "Ratio in Last Year"},
    {kRatioF, kPageAverageF, "Ratio of F in Last Year to F in First Year"},
    {kRatioFRef, kPageAverageF, "Ratio of F in Last Year to F in Reference Year"},
    {kRatioInitialF, kPageAverageF, "Initial Equilibrium F Mort Prior to First Year"},
    {kRatioTargetF, kPageFRatios, "Target F:"},
    {kRatioLimitF, kPageFRatios, "Limit F:"},
    {kRatioTargetSsb, kPageBiomassRatios, "Target Spawning Biomass:"},
    {kRatioLimitSsb, kPageBiomassRatios, "Limit Spawning Biomass:"},
    {kRatioMeanRec, kPageRecruitment, "Mean Recruitment"},
};

const ValuePlace kUnfishedValues[] = {
    {kUnfishedMeanRec, kPageUnfished, "Unfished Mean Recruitment (1000s)"},
    {kUnfishedPerRecruit, kPageUnfished, "Unfished Spawning Biomass Per Recruit"},
    {kUnfishedSpawning, kPageUnfished, "Unfished Spawning Biomass"},
};

const ValuePlace kSummaryValues[] = {
    {kObjectiveFunction, kPageLikelihood, "Objective Function Value:"},
    {kLikelihoodRecruitment, kPageLikelihood, "Recruitment Deviations"},
    {kLikelihoodCatch, kPageLikelihood, "Catch Biomass"},
    {kLikelihoodF, kPageLikelihood, "Fishing Mortality Deviations"},
    {kLikelihoodFisheryAge, kPageLikelihood, "Fishery Age Composition"},
    {kLikelihoodSelectivity, kPageLikelihood, "Fishery Selectivity"},
    {kErrorRecruitment, kPageRms, "Recruitment Dev."},
    {kErrorCatch, kPageRms, "Catch Biomass"},
    {kErrorF, kPageRms, "Fishing Mortality Dev."},
};

// The tables of the last two pages, which have a caption beside them instead of a frame.
struct SummaryTable {
  Grid OutputDataForm::*grid;
  int label;
  int page;
  const char* caption;
};

const SummaryTable kSummaryTables[] = {
    {&OutputDataForm::MSFlexGrid1, kLabelLikelihoodSurveyAge, kPageLikelihood, "Survey Age Composition"},
    {&OutputDataForm::MSFlexGrid2, kLabelLikelihoodIndex, kPageLikelihood, "Survey Biomass Index"},
    {&OutputDataForm::MSFlexGrid3, kLabelErrorIndex, kPageRms, "Survey Biomass Index"},
    {&OutputDataForm::MSFlexGrid4, kLabelErrorFisheryAge, kPageRms, "Fishery Age Composition"},
    {&OutputDataForm::MSFlexGrid5, kLabelErrorSurveyAge, kPageRms, "Survey Age Composition"},
};

void PlaceValue(Label& caption, Label& value, Control& container, int page, const char* text) {
  caption.SetCaption(text);
  caption.SetContainer(&container, page);
  value.SetContainer(&container, page);
}

// The handlers of a grid outside the array, which has no index to be known by.
template <Grid OutputDataForm::*grid>
void SummaryGrid_KeyDown(int, int code, bool control) {
  ResultGridKeyDown(*frmOutputData.*grid, code, control);
}
template <Grid OutputDataForm::*grid>
void SummaryGrid_RightClick(int) {
  ResultGridRightClick(*frmOutputData.*grid);
}
template <Grid OutputDataForm::*grid>
void BindSummaryGrid(OutputDataForm& form) {
  (form.*grid).OnKeyDown = SummaryGrid_KeyDown<grid>;
  (form.*grid).OnRightClick = SummaryGrid_RightClick<grid>;
}

// All blocks of the three tables with a jump list have NYears rows.
void JumpToBlock(const ComboBox& list, Grid& grid) {
  if (list.ListIndex() >= 0) grid.SetTopRow(list.ListIndex() * NYears + 1);
}

}  // namespace

OutputDataForm::OutputDataForm() : Form("frmOutputData", "Output Data") {
  Design();
  BindHandlers();
}

void OutputDataForm::Load() { frmOutputData_Form_Load(); }
void OutputDataForm::Unload() { frmOutputData_Form_Unload(); }

void OutputDataForm::Design() {
  SSTab1.SetPages({"Numbers at Age", "Age Specific  F ", " CPUE  Biomass  Index ", " Survey  Biomass  Index ",
                   "Fishery Proportion at Age", "Survey Proportion at Age", "Fishery and Survey Sample Size",
                   "Recruitment and Surplus Production", "Biomass Totals", "Biomass at Age",
                   "Biomass Target and Limit Ratios", "Unfished Biomass", "Average Annual F",
                   "F Target and Limit Ratios", "Fishery and Survey Selectivity", "Likelihood Components",
                   "RMS Errors"});
  SSTab2.SetPages({"Catch Biomass", "Population Biomass", "Spawning Biomass", "Exploitable Biomass"});
  SSTab2.SetContainer(&SSTab1, kPageBiomassAtAge);
  SSTab3.SetPages({"Catch Biomass", "Pop., Spawning and Exploitable Biomass"});
  SSTab3.SetContainer(&SSTab1, kPageBiomassTotals);

  for (const TablePlace& place : kTables) {
    Frame& frame = FrameGrid(place.grid);
    frame.SetCaption(place.title);
    frame.SetContainer(&(this->*place.strip), place.page);
    MSFlexGrid(place.grid).SetContainer(&frame);
  }
  FrameCPUE.SetCaption("CPUE Biomass Index");
  FrameCPUE.SetContainer(&SSTab1, kPageCpue);
  MSFlexGrid(kTableCpue).SetContainer(&FrameCPUE);
  Frame3.SetCaption("Survey Biomass Index");
  Frame3.SetContainer(&SSTab1, kPageSurveyIndex);
  MSFlexGrid(kTableSurveyIndex).SetContainer(&Frame3);
  cmbJumpSurvey.SetContainer(&SSTab1, kPageSurveyIndex);
  Combo1.SetContainer(&SSTab1, kPageFisheryAge);
  Combo2.SetContainer(&SSTab1, kPageSurveyAge);

  FrameRatio(0).SetCaption("Population Biomass");
  FrameRatio(1).SetCaption("Spawning Biomass");
  FrameRatio.ForEach([this](Frame& frame) { frame.SetContainer(&SSTab3, 1); });
  for (const ValuePlace& place : kRatios) {
    Control* container = &SSTab1;
    if (place.page == kPageBiomassTotals) container = &FrameRatio(place.index / 2);
    PlaceValue(lblRatioCaption(place.index), lblRatio(place.index), *container, place.page, place.caption);
    if (lblRatioStdDev.Has(place.index)) lblRatioStdDev(place.index).SetContainer(container, place.page);
  }
  for (const ValuePlace& place : kUnfishedValues) {
    PlaceValue(lblUnfishedCaption(place.index), lblUnfished(place.index), SSTab1, place.page, place.caption);
  }
  for (const ValuePlace& place : kSummaryValues) {
    PlaceValue(lblSummCaption(place.index), lblSumm(place.index), SSTab1, place.page, place.caption);
  }
  PlaceValue(LabelCPUE1, lblSumm(kLikelihoodCpue), SSTab1, kPageLikelihood, "CPUE Biomass Index");
  PlaceValue(LabelCPUE2, lblSumm(kErrorCpue), SSTab1, kPageRms, "CPUE Biomass Index");
  for (const SummaryTable& table : kSummaryTables) {
    Label8(table.label).SetCaption(table.caption);
    Label8(table.label).SetContainer(&SSTab1, table.page);
    (this->*table.grid).SetContainer(&SSTab1, table.page);
  }
}

void OutputDataForm::BindHandlers() {
  cmbJumpSurvey.OnClick = frmOutputData_cmbJumpSurvey_Click;
  Combo1.OnClick = frmOutputData_Combo1_Click;
  Combo2.OnClick = frmOutputData_Combo2_Click;
  MSFlexGrid.ForEach([](Grid& grid) {
    grid.OnKeyDown = [](int index, int code, bool control) {
      ResultGridKeyDown(frmOutputData->MSFlexGrid(index), code, control);
    };
    grid.OnRightClick = [](int index) { ResultGridRightClick(frmOutputData->MSFlexGrid(index)); };
  });
  BindSummaryGrid<&OutputDataForm::MSFlexGrid1>(*this);
  BindSummaryGrid<&OutputDataForm::MSFlexGrid2>(*this);
  BindSummaryGrid<&OutputDataForm::MSFlexGrid3>(*this);
  BindSummaryGrid<&OutputDataForm::MSFlexGrid4>(*this);
  BindSummaryGrid<&OutputDataForm::MSFlexGrid5>(*this);
}

void frmOutputData_Form_Load() {
  OutputFormsOpen = kTrue;
  frmOutputData->SSTab1.SetTab(0);
}

void frmOutputData_Form_Unload() {
  OutputFormsOpen = kFalse;
  UnloadForm(frmOutput);
}

void frmOutputData_cmbJumpSurvey_Click(int) {
  JumpToBlock(frmOutputData->cmbJumpSurvey, frmOutputData->MSFlexGrid(kTableSurveyIndex));
}

void frmOutputData_Combo1_Click(int) {
  JumpToBlock(frmOutputData->Combo1, frmOutputData->MSFlexGrid(kTableFisheryAge));
}

void frmOutputData_Combo2_Click(int) {
  JumpToBlock(frmOutputData->Combo2, frmOutputData->MSFlexGrid(kTableSurveyAge));
}

void ResultGridKeyDown(Grid& grid, int code, bool control) {
  if (!control) return;
  ActiveGrid = &grid;
  GridKeyShortcut(code);
}

void ResultGridRightClick(Grid& grid) {
  ActiveGrid = &grid;
  TheHost().PopUpMenu(frmMain->mnuEdit);
}

}  // namespace tarnvik
