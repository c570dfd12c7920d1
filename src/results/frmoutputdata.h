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

  // 0 and 1 population, 2 and 3 spawning biomass: ratio in the last year, and relative to the reference year;
  // 4 F in the last year to the first, 5 to the reference year; 6 initial equilibrium F; 7 target F, 8 limit
  // F, 9 target and 10 limit spawning biomass; 11 mean recruitment.
  ControlArray<Label> lblRatioCaption{this, "lblRatioCaption", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<Label> lblRatio{this, "lblRatio", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<Label> lblRatioStdDev{this, "lblRatioStdDev", {0, 1, 2, 3, 4, 5}};
  // Around the two ratios of population and of spawning biomass, whose captions are alike.
  ControlArray<Frame> FrameRatio{this, "FrameRatio", {0, 1}};

  // 0 mean recruitment, 1 spawning biomass per recruit, 2 spawning biomass.
  ControlArray<Label> lblUnfishedCaption{this, "lblUnfishedCaption", {0, 1, 2}};
  ControlArray<Label> lblUnfished{this, "lblUnfished", {0, 1, 2}};

  // Likelihood components: 1 recruitment, 2 fishery ages, 3 fishery selectivity, 4 catch, 5 F, 6 CPUE; 10
  // objective function. Root mean square errors: 22 recruitment, 23 catch, 24 F, 25 CPUE.
  ControlArray<Label> lblSummCaption{this, "lblSummCaption", {1, 2, 3, 4, 5, 10, 22, 23, 24}};
  Label LabelCPUE1{this, "LabelCPUE1"};  // the caption of lblSumm(6)
  Label LabelCPUE2{this, "LabelCPUE2"};  // the caption of lblSumm(25)
  ControlArray<Label> lblSumm{this, "lblSumm", {1, 2, 3, 4, 5, 6, 10, 22, 23, 24, 25}};
  // Captions beside the five tables of these two pages: 11 MSFlexGrid1, 12 MSFlexGrid2, 3 to 5 the other
  // three.
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
