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
    {0, kMainTabs, kPageNumbers, "Estimated Numbers (000s) of Fish at Age"},
    {1, kMainTabs, kPageAgeF, "Estimated Fishing Mortality"},
    {3, kMainTabs, kPageFisheryAge, "Fishery Proportion at Age"},
    {4, kMainTabs, kPageSurveyAge, "Survey Proportion at Age"},
    {16, kMainTabs, kPageSampleSize, "Fishery Sample Size"},
    {17, kMainTabs, kPageSampleSize, "Survey Sample Size"},
    {6, kMainTabs, kPageRecruitment, "Recruitment (1000s of Age-1 Recruits)"},
    {8, kMainTabs, kPageRecruitment, "Surplus Production (mt)"},
    {7, kTotalTabs, 0, "Catch Biomass (mt)"},
    {5, kTotalTabs, 1, "Biomass (mt)"},
    {23, kAgeTabs, 0, "Catch Biomass at Age"},
    {24, kAgeTabs, 1, "Population Biomass at Age"},
    {25, kAgeTabs, 2, "Spawning Biomass at Age"},
    {26, kAgeTabs, 3, "Exploitable Biomass at Age"},
    {12, kMainTabs, kPageBiomassRatios, "Ratio of Annual Spawning Biomass to Target"},
    {13, kMainTabs, kPageBiomassRatios, "Ratio of Annual Spawning Biomass to Limit"},
    {20, kMainTabs, kPageUnfished, "Unfished Mean Spawning Weight"},
    {21, kMainTabs, kPageUnfished, "Unfished Expected Spawnings"},
    {22, kMainTabs, kPageUnfished, "Fraction of Unfished Spawning Biomass"},
    {9, kMainTabs, kPageAverageF, "Estimated Average Annual Fishing Mortality"},
    {10, kMainTabs, kPageFRatios, "Ratio of Annual F Mortality to Target"},
    {11, kMainTabs, kPageFRatios, "Ratio of Annual F Mortality to Limit"},
    {14, kMainTabs, kPageSelectivity, "Fishery Selectivity by Age"},
    {15, kMainTabs, kPageSelectivity, "Survey Selectivity by Age"},
    {19, kMainTabs, kPageSelectivity, "Fishery Selectivity at Age by Year"},
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
    {0, kPageBiomassTotals, "Ratio in Last Year"},
    {1, kPageBiomassTotals, "Ratio in Last Yr Relative to Reference Yr"},
    {2, kPageBiomassTotals, "Ratio in Last Yr Relative to Reference Yr"},
    {3, kPageBiomassTotals, "Ratio in Last Year"},
    {4, kPageAverageF, "Ratio of F in Last Year to F in First Year"},
    {5, kPageAverageF, "Ratio of F in Last Year to F in Reference Year"},
    {6, kPageAverageF, "Initial Equilibrium F Mort Prior to First Year"},
    {7, kPageFRatios, "Target F:"},
    {8, kPageFRatios, "Limit F:"},
    {9, kPageBiomassRatios, "Target Spawning Biomass:"},
    {10, kPageBiomassRatios, "Limit Spawning Biomass:"},
    {11, kPageRecruitment, "Mean Recruitment"},
};

const ValuePlace kUnfishedValues[] = {
    {0, kPageUnfished, "Unfished Mean Recruitment (1000s)"},
    {1, kPageUnfished, "Unfished Spawning Biomass Per Recruit"},
    {2, kPageUnfished, "Unfished Spawning Biomass"},
};

const ValuePlace kSummaryValues[] = {
    {10, kPageLikelihood, "Objective Function Value:"},
    {1, kPageLikelihood, "Recruitment Deviations"},
    {4, kPageLikelihood, "Catch Biomass"},
    {5, kPageLikelihood, "Fishing Mortality Deviations"},
    {2, kPageLikelihood, "Fishery Age Composition"},
    {3, kPageLikelihood, "Fishery Selectivity"},
    {22, kPageRms, "Recruitment Dev."},
    {23, kPageRms, "Catch Biomass"},
    {24, kPageRms, "Fishing Mortality Dev."},
};

// The tables of the last two pages, which have a caption beside them instead of a frame.
struct SummaryTable {
  Grid OutputDataForm::*grid;
  int label;
  int page;
  const char* caption;
};

const SummaryTable kSummaryTables[] = {
    {&OutputDataForm::MSFlexGrid1, 11, kPageLikelihood, "Survey Age Composition"},
    {&OutputDataForm::MSFlexGrid2, 12, kPageLikelihood, "Survey Biomass Index"},
    {&OutputDataForm::MSFlexGrid3, 3, kPageRms, "Survey Biomass Index"},
    {&OutputDataForm::MSFlexGrid4, 4, kPageRms, "Fishery Age Composition"},
    {&OutputDataForm::MSFlexGrid5, 5, kPageRms, "Survey Age Composition"},
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
  MSFlexGrid(18).SetContainer(&FrameCPUE);
  Frame3.SetCaption("Survey Biomass Index");
  Frame3.SetContainer(&SSTab1, kPageSurveyIndex);
  MSFlexGrid(2).SetContainer(&Frame3);
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
  PlaceValue(LabelCPUE1, lblSumm(6), SSTab1, kPageLikelihood, "CPUE Biomass Index");
  PlaceValue(LabelCPUE2, lblSumm(25), SSTab1, kPageRms, "CPUE Biomass Index");
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
  JumpToBlock(frmOutputData->cmbJumpSurvey, frmOutputData->MSFlexGrid(2));
}

void frmOutputData_Combo1_Click(int) { JumpToBlock(frmOutputData->Combo1, frmOutputData->MSFlexGrid(3)); }

void frmOutputData_Combo2_Click(int) { JumpToBlock(frmOutputData->Combo2, frmOutputData->MSFlexGrid(4)); }

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
