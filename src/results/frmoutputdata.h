// frmOutputData "Output Data": the state record of all the tables of a report.
//
// Its fields and grid cells are the only store of the results: the scanners fill them, the output plots read
// them back. Every table is read-only. Row 0 of a grid is its heading row, column 0 its label column; what
// stands in which table is told in result_tables.h.
#pragma once

#include "platform/form.h"
#include "platform/grid.h"
#include "platform/lists.h"

namespace tarnvik {

// Pages of SSTab1.
enum OutputDataTab : int {
  kPageNumbers,
  kPageAgeF,
  kPageCpue,
  kPageSurveyIndex,
  kPageFisheryAge,
  kPageSurveyAge,
  kPageSampleSize,
  kPageRecruitment,
  kPageBiomassTotals,
  kPageBiomassAtAge,
  kPageBiomassRatios,
  kPageUnfished,
  kPageAverageF,
  kPageFRatios,
  kPageSelectivity,
  kPageLikelihood,
  kPageRms
};

// Tables of MSFlexGrid, by what they hold; how each is shaped stands in result_tables.cpp.
enum ResultTableId : int {
  kTableNumbers = 0,  // by year and age, like 1, 19 and 23 to 26
  kTableAgeF = 1,
  kTableSurveyIndex = 2,  // all years of one survey after the other
  kTableFisheryAge = 3,   // observed, predicted, residuals, standardized residuals: a block of years each
  kTableSurveyAge = 4,    // the blocks of table 3, survey by survey
  kTableBiomass = 5,      // population, spawning and exploitable, by year
  kTableRecruitment = 6,
  kTableCatch = 7,
  kTableSurplus = 8,
  kTableAverageF = 9,
  kTableTargetF = 10,  // ratios by year, like 11 to 13
  kTableLimitF = 11,
  kTableTargetSsb = 12,
  kTableLimitSsb = 13,
  kTableFisherySelectivity = 14,  // by age and period
  kTableSurveySelectivity = 15,   // by age and survey
  kTableFisherySample = 16,
  kTableSurveySample = 17,
  kTableCpue = 18,
  kTableAnnualSelectivity = 19,
  kTableUnfishedWeight = 20,
  kTableUnfishedSpawnings = 21,
  kTableUnfishedFraction = 22,
  kTableCatchAtAge = 23,
  kTablePopulationAtAge = 24,
  kTableSpawningAtAge = 25,
  kTableExploitableAtAge = 26,
};

// Single values of lblRatioCaption, lblRatio and, for the first six, lblRatioStdDev.
enum RatioItem : int {
  kRatioPopulation = 0,     // last year to the first
  kRatioPopulationRef = 1,  // last year to the reference year
  kRatioSpawningRef = 2,
  kRatioSpawning = 3,
  kRatioF = 4,
  kRatioFRef = 5,
  kRatioInitialF = 6,
  kRatioTargetF = 7,
  kRatioLimitF = 8,
  kRatioTargetSsb = 9,
  kRatioLimitSsb = 10,
  kRatioMeanRec = 11,
};

// Single values of lblUnfishedCaption and lblUnfished.
enum UnfishedItem : int {
  kUnfishedMeanRec = 0,
  kUnfishedPerRecruit = 1,
  kUnfishedSpawning = 2,
};

// Single values of lblSummCaption and lblSumm: likelihood components, objective function, root mean square
// errors.
enum SummaryItem : int {
  kLikelihoodRecruitment = 1,
  kLikelihoodFisheryAge = 2,
  kLikelihoodSelectivity = 3,
  kLikelihoodCatch = 4,
  kLikelihoodF = 5,
  kLikelihoodCpue = 6,
  kObjectiveFunction = 10,
  kErrorRecruitment = 22,
  kErrorCatch = 23,
  kErrorF = 24,
  kErrorCpue = 25,
};

// Captions of Label8, beside the tables of the last two pages: MSFlexGrid3 to MSFlexGrid5, MSFlexGrid1,
// MSFlexGrid2.
enum SummaryLabel : int {
  kLabelErrorIndex = 3,
  kLabelErrorFisheryAge = 4,
  kLabelErrorSurveyAge = 5,
  kLabelLikelihoodSurveyAge = 11,
  kLabelLikelihoodIndex = 12,
};

struct OutputDataForm : Form {
  OutputDataForm();
  void Load() override;    // frmOutputData_Form_Load
  void Unload() override;  // frmOutputData_Form_Unload

  TabStrip SSTab1{this, "SSTab1"};
  TabStrip SSTab2{this, "SSTab2"};  // on the page of biomass at age
  TabStrip SSTab3{this, "SSTab3"};  // on the page of biomass totals

  // The frame of MSFlexGrid(i) has the same index; those of the two indices have names of their own, since
  // the scan puts the kind of index into their captions.
  ControlArray<Frame> FrameGrid{this, "FrameGrid", {0,  1,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                                    14, 15, 16, 17, 19, 20, 21, 22, 23, 24, 25, 26}};
  Frame FrameCPUE{this, "FrameCPUE"};
  Frame Frame3{this, "Frame3"};
  ControlArray<Grid> MSFlexGrid{this, "MSFlexGrid", {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                                     14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26}};

  // Jump lists: an entry brings its block of rows to the top of MSFlexGrid(2), (3) or (4).
  ComboBox cmbJumpSurvey{this, "cmbJumpSurvey"};
  ComboBox Combo1{this, "Combo1"};
  ComboBox Combo2{this, "Combo2"};

  ControlArray<Label> lblRatioCaption{this, "lblRatioCaption", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<Label> lblRatio{this, "lblRatio", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<Label> lblRatioStdDev{this, "lblRatioStdDev", {0, 1, 2, 3, 4, 5}};
  // Around the two ratios of population and of spawning biomass, whose captions are alike.
  ControlArray<Frame> FrameRatio{this, "FrameRatio", {0, 1}};

  ControlArray<Label> lblUnfishedCaption{this, "lblUnfishedCaption", {0, 1, 2}};
  ControlArray<Label> lblUnfished{this, "lblUnfished", {0, 1, 2}};

  ControlArray<Label> lblSummCaption{this, "lblSummCaption", {1, 2, 3, 4, 5, 10, 22, 23, 24}};
  Label LabelCPUE1{this, "LabelCPUE1"};  // the caption of lblSumm(6)
  Label LabelCPUE2{this, "LabelCPUE2"};  // the caption of lblSumm(25)
  ControlArray<Label> lblSumm{this, "lblSumm", {1, 2, 3, 4, 5, 6, 10, 22, 23, 24, 25}};
  ControlArray<Label> Label8{this, "Label8", {3, 4, 5, 11, 12}};
  Grid MSFlexGrid1{this, "MSFlexGrid1"};  // likelihood of survey ages
  Grid MSFlexGrid2{this, "MSFlexGrid2"};  // likelihood of survey indices
  Grid MSFlexGrid3{this, "MSFlexGrid3"};  // errors of survey indices
  Grid MSFlexGrid4{this, "MSFlexGrid4"};  // errors of fishery ages by year
  Grid MSFlexGrid5{this, "MSFlexGrid5"};  // errors of survey ages by year

 private:
  void Design();        // captions, pages and containers
  void BindHandlers();  // which procedure each event of a control runs
};

inline FormOf<OutputDataForm> frmOutputData{"frmOutputData"};

// Sets OutputFormsOpen and brings the first page to the front.
void frmOutputData_Form_Load();
// Clears OutputFormsOpen and unloads frmOutput, which takes frmSTD with it.
void frmOutputData_Form_Unload();
// Each brings the chosen block of NYears rows to the top of its table. Raise 9 "Subscript out of range" when
// NYears is no longer that of the results.
void frmOutputData_cmbJumpSurvey_Click(int);
void frmOutputData_Combo1_Click(int);
void frmOutputData_Combo2_Click(int);

// What the grids of frmOutputData and frmSTD do alike: a key with control held makes the grid the active one
// and runs its shortcut; a right click does so and offers copy and select all.
void ResultGridKeyDown(Grid& grid, int code, bool control);
void ResultGridRightClick(Grid& grid);

}  // namespace tarnvik
