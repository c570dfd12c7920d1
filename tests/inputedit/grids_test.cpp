#include "inputedit/grids.h"

#include "inputedit/dimensions.h"
#include "inputedit/general_combos.h"
#include "inputedit/labels.h"
#include "inputedit/period_case.h"
#include "inputedit/surveys.h"
#include "platform/runtime_error.h"

namespace tarnvik {
namespace {

class BuildGridTest : public PeriodCase {};

TEST_F(BuildGridTest, gives_every_grid_its_shape_and_labels) {
  frmInput->cmbSurvFYear.UserSelect(2);  // survey 1 begins in 1992
  SurvTitle(2) = "Autumn";
  for (const int button : {0, 1}) frmInput->cmdExpandGrd(button).UserClick();
  const std::string years = "1990|1991|1992|1993|1994";
  const std::string ages = "Age 1|Age 2|Age 3";
  const std::string surveys = "Survey 1|Survey 2: Autumn";
  const std::string periods = "Select. Period 1: 1990 - 1991|Select. Period 2: 1992 - 1994";
  const std::string curve = "log gamma|log beta|log a50";
  const struct {
    int build_index, grid;
    std::string header, labels;
  } rows[] = {
      {1, 0, "Year|Catch Biomass", years},
      {2, 1, "Year|Fit? (y/n)|# Samples|" + ages, years},
      {3, 15, "Year|# Samples|Fit Age Data? (y/n)|" + ages, "1992|1993|1994"},
      {4, 3, surveys, ""},
      {5, 6, "Year|" + ages, years},
      {6, 4, "Year|" + ages, years},
      {7, 7, "Year|" + ages, years},
      {8, 8, "Period|Start Year|End Year", "1|2"},
      {9, 9, "|Age Composition|Biomass Index", surveys},
      {10, 5, "Year|Observed CPUE|Fit CPUE? (y=yes, n=no)", years},
      {11, 10, "|" + surveys, ages},
      {12, 11, "|# Ages", periods},
      {13, 12, "|# Ages", surveys},
      {14, 14, "Year|" + ages, years},
      {15, 13, "|Multiplier", ages},
      {16, 16, "Year|Biomass Index|Fit Index Values? (y/n)", "1992|1993|1994"},
      {32, 102, "|Select. Period 1:   1990 - 1991|Select. Period 2:   1992 - 1994", curve},
      {33, 104, "|" + ages, periods},
      {34, 103, "|" + surveys, "q|exponent"},
      {35, 105, "|" + surveys, curve},
      {36, 106, "|" + ages, surveys},
      {37, 107, "|" + ages, years},
  };
  // From a grid of another size, empty but for the start years of the periods.
  for (const auto& row : rows) {
    Grid& grid = CaseGrid(row.grid);
    if (row.grid != 8) grid.Clear();
    grid.Resize(row.grid == 8 ? 9 : 2, 9);
    BuildGrid(row.build_index);
    EXPECT_EQ(RowText(grid, 0), row.header) << row.build_index;
    if (row.grid == 3) {
      EXPECT_EQ(RowText(grid, 1), "|") << "values only: survey 1 stands in column 0";
    } else {
      EXPECT_EQ(ColumnText(grid, 0), row.labels) << row.build_index;
    }
  }
  EXPECT_EQ(RowText(CaseGrid(8), 1) + "|" + RowText(CaseGrid(8), 2), "1|1990|1991|2|1992|1994");
  EXPECT_EQ(CaseGrid(8).CellBackColor(1, 2), kButtonFace);
}

TEST_F(BuildGridTest, keeps_values_and_forces_the_multiplier_of_the_plus_group) {
  Grid& multipliers = CaseGrid(13);
  multipliers.SetTextMatrix(2, 1, "0.8");
  multipliers.SetTextMatrix(3, 1, "0.5");
  BuildGrid(15);
  EXPECT_EQ(multipliers.TextMatrix(2, 1), "0.8");
  EXPECT_EQ(multipliers.TextMatrix(3, 1), "1.0");
}

TEST_F(BuildGridTest, condensed_years_survive_a_change_of_ages) {
  Grid& ages = CaseGrid(1);
  ages.SetTextMatrix(3, 5, "0.3");  // 1992
  frmInput->cmdCondenseGrd(1).UserClick();
  frmInput->cmbNAges.UserSelect(3);
  EXPECT_EQ(RowText(ages, 1), "1992|||||0.3|");
  EXPECT_EQ(ColumnText(ages, 0), "1992");
}

TEST_F(BuildGridTest, without_surveys_only_the_fixed_part_remains) {
  NIndex = 0;
  frmInput->cmbiSurv.Clear();
  BuildAllInputGrids();
  const struct {
    int grid, rows, cols;
  } shapes[] = {{3, 2, 0}, {9, 1, 3}, {10, 4, 1}, {12, 1, 2}, {15, 1, 6}, {16, 1, 3}};
  for (const auto& shape : shapes) {
    EXPECT_EQ(CaseGrid(shape.grid).Rows(), shape.rows) << shape.grid;
    EXPECT_EQ(CaseGrid(shape.grid).Cols(), shape.cols) << shape.grid;
  }
}

TEST_F(BuildGridTest, a_table_beyond_the_bound_is_refused_and_the_grid_keeps_its_shape) {
  NYears = NAges = 30000;
  try {
    BuildGrid(5);
    ADD_FAILURE() << "900 million cells";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number, kErrOutOfMemory);
  }
  EXPECT_EQ(CaseGrid(6).Rows(), 6);
}

class LabelsTest : public PeriodCase {};

TEST_F(LabelsTest, a_survey_title_reaches_every_place_that_shows_it_and_marks_stay) {
  frmInput->listSurvFit.UserMark(1, true);
  frmInput->listSurvSample.UserMark(1, true);
  SurvTitle(2) = "Autumn";
  RelabelSurveys();
  const std::string label = "Survey 2: Autumn";
  const struct {
    int grid, row, col;
  } places[] = {{3, 0, 1}, {9, 2, 0}, {10, 0, 2}, {12, 2, 0}, {103, 0, 2}, {105, 0, 2}, {106, 2, 0}};
  for (const auto& place : places) {
    EXPECT_EQ(CaseGrid(place.grid).TextMatrix(place.row, place.col), label) << place.grid;
  }
  for (const ListBox* list : {&frmInput->listSurvFit, &frmInput->listSurvSample}) {
    EXPECT_EQ(list->List(0), "Survey 1");
    EXPECT_EQ(list->List(1), label);
    EXPECT_TRUE(list->Selected(1));
    EXPECT_EQ(list->ListIndex(), -1);
  }
}

TEST_F(LabelsTest, dropping_the_last_marked_survey_turns_the_phase_of_its_sample_size_off) {
  frmInput->listSurvSample.UserMark(1, true);
  ASSERT_TRUE(frmInput->txtEstSurvSample.Visible());
  frmInput->cmbNIndex.UserSelect(0);
  EXPECT_FALSE(frmInput->txtEstSurvSample.Visible());
  frmInput->cmbNIndex.UserSelect(2);
  ASSERT_EQ(frmInput->listSurvSample.ListCount(), 3);
  EXPECT_FALSE(frmInput->listSurvSample.Selected(1)) << "a survey that comes back is a new one";
}

TEST_F(LabelsTest, an_edited_start_year_shows_in_all_period_labels) {
  Type(CaseGrid(8), 2, 1, "1993");
  EXPECT_EQ(CaseGrid(11).TextMatrix(2, 0), "Select. Period 2: 1993 - 1994");
  EXPECT_EQ(CaseGrid(104).TextMatrix(2, 0), "Select. Period 2: 1993 - 1994");
  EXPECT_EQ(CaseGrid(102).TextMatrix(0, 2), "Select. Period 2:   1993 - 1994");
}

TEST_F(LabelsTest, lists_of_ages_follow_the_number_of_ages) {
  const ListBox& cpue = frmInput->lstCPUEages;
  frmInput->lstCPUEages.UserMark(1, false);
  CaseGrid(10).SetTextMatrix(2, 1, "y");
  frmInput->cmbNAges.UserSelect(3);
  ASSERT_EQ(cpue.ListCount(), 4);
  EXPECT_TRUE(cpue.Selected(0));
  EXPECT_FALSE(cpue.Selected(1));
  EXPECT_FALSE(cpue.Selected(3)) << "a new age is not marked";
  EXPECT_EQ(cpue.List(3), "Age 4");
  EXPECT_EQ(RowText(CaseGrid(10), 2) + ";" + RowText(CaseGrid(10), 4), "Age 2|y|;Age 4||");
  FillCpueAges();
  EXPECT_TRUE(cpue.Selected(1));
  EXPECT_TRUE(cpue.Selected(3));
}

class GeneralCombosTest : public PeriodCase {};

TEST_F(GeneralCombosTest, a_range_cut_only_at_its_end_reaches_surveys_and_deviations) {
  SurvYearFit(1, 1, 2) = "0.91";
  GPYearMax = 1992;
  FillGeneralCombos();
  EXPECT_EQ(SurvXYear(2), 1992);
  EXPECT_EQ(SurvYearFit.Rows(), 3);
  EXPECT_EQ(SurvYearFit(1, 1, 2), "0.91");
  EXPECT_EQ(ColumnText(CaseGrid(101), 0), "1990|1991|1992");
}

TEST_F(GeneralCombosTest, a_wider_range_changes_no_selection_and_no_data) {
  CaseGrid(0).SetTextMatrix(2, 1, "91");
  GPYearMin = 1950;
  GPAgeMax = 70;
  GPSurveyMax = 60;
  FillGeneralCombos();
  EXPECT_EQ(frmInput->cmbNFYear.Text() + " " + frmInput->cmbNXYear.Text(), "1990 1994");
  EXPECT_EQ(frmInput->cmbNFYear.List(0), "1950");
  EXPECT_EQ(frmInput->cmbNAges.Text() + " of " + frmInput->cmbNAges.List(69), "3 of 70");
  EXPECT_EQ(frmInput->cmbNIndex.ListCount(), 60);
  EXPECT_EQ(NAges, 3);
  EXPECT_EQ(NIndex, 2);
  EXPECT_EQ(RowText(CaseGrid(0), 2), "1991|91");
}

}  // namespace
}  // namespace tarnvik
