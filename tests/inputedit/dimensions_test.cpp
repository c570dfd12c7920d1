#include "inputedit/dimensions.h"

#include "inputedit/general_combos.h"
#include "inputedit/small_case.h"
#include "platform/runtime_error.h"

namespace tarnvik {
namespace {

class Dimensions : public SmallCase {
 protected:
  static std::vector<Grid*> YearGrids() {
    std::vector<Grid*> grids;
    for (int index : {0, 1, 4, 5, 6, 7, 14}) grids.push_back(&frmInput->ORVFlexGrid(index));
    for (int index : {1, 7}) grids.push_back(&frmPin->ORVFlexGrid1(index));
    return grids;
  }
  static std::string Cell(const std::string& year, int column) { return year + "." + NumberText(column); }
  // Every cell gets a text that tells its year and column.
  static void FillYearGrids() {
    for (Grid* grid : YearGrids()) {
      for (int row = 1; row < grid->Rows(); ++row) {
        for (int column = 1; column < grid->Cols(); ++column) {
          grid->SetTextMatrix(row, column, Cell(grid->TextMatrix(row, 0), column));
        }
      }
    }
  }
};

TEST_F(Dimensions, years_keep_their_rows_and_new_years_are_empty) {
  FillYearGrids();
  const struct {
    ComboBox& combo;
    int year;
    int first, last;            // the span afterwards
    int first_kept, last_kept;  // the years whose data are still there
    const char* box;
  } rows[] = {
      {frmInput->cmbNFYear, 1998, 1998, 2004, 1998, 2004, ""},
      {frmInput->cmbNXYear, 2002, 1998, 2002, 1998, 2002, ""},
      {frmInput->cmbNFYear, 1994, 1994, 2002, 1998, 2002, ""},
      {frmInput->cmbNXYear, 2006, 1994, 2006, 1998, 2002, ""},
      {frmInput->cmbNFYear, 2002, 2002, 2006, 2002, 2002, ""},
      // The other end follows to the same year.
      {frmInput->cmbNFYear, 2008, 2008, 2008, 0, 0, "Resetting End Year to Next Available Year"},
      {frmInput->cmbNXYear, 2001, 2001, 2001, 0, 0, "Resetting First Year to First Available Year"},
  };
  for (const auto& row : rows) {
    Choose(row.combo, row.year);
    SCOPED_TRACE(row.combo.Name() + " " + NumberText(row.year));
    for (const auto& box : host.messages) EXPECT_EQ(box.icon, Icon::Information);
    EXPECT_EQ(host.TakeTexts(), std::vector<std::string>(*row.box ? 1 : 0, row.box));
    EXPECT_EQ(frmInput->cmbNFYear.Text() + "-" + frmInput->cmbNXYear.Text(), Span(row.first, row.last));
    EXPECT_EQ(Span(NFYear, NXYear), Span(row.first, row.last));
    for (const Grid* grid : YearGrids()) {
      SCOPED_TRACE(grid->FullName());
      ASSERT_EQ(grid->Rows(), row.last - row.first + 2);
      EXPECT_NE(grid->TextMatrix(0, 1), "");
      for (int year = row.first; year <= row.last; ++year) {
        std::string expected = NumberText(year);
        for (int column = 1; column < grid->Cols(); ++column) {
          const bool kept = year >= row.first_kept && year <= row.last_kept;
          expected += "|" + (kept ? Cell(NumberText(year), column) : "");
        }
        EXPECT_EQ(RowText(*grid, year - row.first + 1), expected);
      }
    }
  }
}

// A condensed grid is expanded before it is refitted, and its count of years stays that of the old span: the
// next rebuilding of the grid takes it from there.
TEST_F(Dimensions, the_condensable_grids_keep_the_old_count_of_years) {
  const Grid& grid = frmInput->ORVFlexGrid(1);
  frmInput->ORVFlexGrid(1).SetTextMatrix(4, 3, "7");
  CondenseGrid(1);
  ASSERT_EQ(grid.Rows(), 2);
  Choose(frmInput->cmbNFYear, 1997);
  EXPECT_EQ(grid.Rows(), 9);
  EXPECT_EQ(FishAgeNYears, 10);
  EXPECT_EQ(FishCPUENYears, 10);
  Choose(frmInput->cmbNAges, 4);
  EXPECT_EQ(grid.Rows(), 11);
  EXPECT_EQ(RowText(grid, 2), "1998|||7|||");
}

TEST_F(Dimensions, remembered_selections_survive_only_inside_the_new_span) {
  const struct {
    int recruitment, reference, periods, first, last;
    const char* after;
  } rows[] = {
      {1998, 2001, 9, 1996, 2004, "1998 2001 9"}, {1998, 2001, 10, 1996, 2004, "1998 2001 1"},
      {1997, 2001, 3, 1998, 2004, "1998 2001 3"}, {1998, 2002, 1, 1995, 2002, "1998 1995 1"},
      {2003, 2001, 1, 1995, 2002, "1995 2001 1"},
  };
  for (const auto& row : rows) {
    Choose(frmInput->cmbNFYear, 1995);
    Choose(frmInput->cmbNXYear, 2004);
    Choose(frmInput->cmbRecYr, row.recruitment);
    Choose(frmInput->cmbRefYr, row.reference);
    Choose(frmInput->cmbSelPer, row.periods);
    Choose(frmInput->cmbNFYear, row.first);
    Choose(frmInput->cmbNXYear, row.last);
    SCOPED_TRACE(&row - rows);
    EXPECT_EQ(frmInput->cmbRecYr.Text() + " " + frmInput->cmbRefYr.Text() + " " + NumberText(NSelPer),
              row.after);
    EXPECT_EQ(frmInput->ORVFlexGrid(8).Rows(), NSelPer + 1);
    EXPECT_EQ(ListText(frmInput->cmbRecYr), Span(row.first, row.last));
  }
}

TEST_F(Dimensions, recruitment_deviations_begin_where_the_options_say_and_keep_values_by_year) {
  Grid& deviations = frmPin->ORVFlexGrid1(0);
  Choose(frmInput->cmbRecYr, 2000);
  for (int row = 1; row < deviations.Rows(); ++row) deviations.SetTextMatrix(row, 1, NumberText(row));
  const struct {
    ComboBox* combo;  // null: the box of the initial equilibrium
    int value;
    int start;
    const char* values;
  } rows[] = {
      {nullptr, 1, 1993, "|||||||1|2|3|4|5"},
      {&frmInput->cmbNAges, 2, 1994, "||||||1|2|3|4|5"},
      {nullptr, 0, 2000, "1|2|3|4|5"},
      {&frmInput->cmbNXYear, 2002, 2000, "1|2|3"},
      // The remembered year is the new first year: one whole span of ages is added in front of it.
      {&frmInput->cmbNFYear, 2000, 1999, "|1|2|3"},
      {&frmInput->cmbRecYr, 2002, 2002, "3"},
  };
  for (const auto& row : rows) {
    if (row.combo) Choose(*row.combo, row.value);
    if (!row.combo) frmInput->chkEstimate(5).UserCheck(row.value);
    SCOPED_TRACE(&row - rows);
    EXPECT_EQ(RecYr, row.start);
    EXPECT_EQ(ColumnText(deviations, 1), row.values);
    for (int r = 1; r < deviations.Rows(); ++r)
      EXPECT_EQ(deviations.TextMatrix(r, 0), NumberText(row.start + r - 1));
  }
}

// Two roads write the labels of periods, with a gap of three blanks or of one.
TEST_F(Dimensions, periods_end_before_the_next_starts_and_are_labelled_with_their_spans) {
  Grid& spans = frmInput->ORVFlexGrid(8);
  Choose(frmInput->cmbSelPer, 2);
  spans.SetTextMatrix(2, 1, "2000");
  Choose(frmInput->cmbSelPer, 3);
  EXPECT_EQ(RowText(spans, 1), "1|1995|1999");
  EXPECT_EQ(RowText(spans, 2), "2|2000|");  // the next one has no start yet
  EXPECT_EQ(RowText(spans, 3), "3||2004");
  EXPECT_EQ(ColumnText(frmInput->ORVFlexGrid(11), 1), "3|3|3");
  EXPECT_EQ(frmPin->ORVFlexGrid1(2).Cols(), 4);
  EXPECT_EQ(frmPin->ORVFlexGrid1(4).Rows(), 4);
  Choose(frmInput->cmbSelPer, 2);
  for (const char* label :
       {frmPin->ORVFlexGrid1(2).TextMatrix(0, 2).c_str(), frmInput->ORVFlexGrid(11).TextMatrix(2, 0).c_str(),
        frmPin->ORVFlexGrid1(4).TextMatrix(2, 0).c_str()}) {
    EXPECT_STREQ(label, "Select. Period 2:   2000 - 2004");
  }
  Choose(frmInput->cmbNFYear, 1996);
  EXPECT_EQ(frmPin->ORVFlexGrid1(2).TextMatrix(0, 1), "Select. Period 1:   1996 - 1999");
  EXPECT_EQ(frmInput->ORVFlexGrid(11).TextMatrix(1, 0), "Select. Period 1: 1996 - 1999");
  EXPECT_EQ(frmPin->ORVFlexGrid1(4).TextMatrix(1, 0), "Select. Period 1: 1996 - 1999");
}

TEST_F(Dimensions, every_age_grid_follows_the_number_of_ages) {
  FillYearGrids();
  TypeSurveyCell(15, 2, 5, "33");  // 1996, age 3
  TypeSurveyCell(15, 2, 4, "22");
  Choose(frmInput->cmbNAges, 2);
  Choose(frmInput->cmbNAges, 4);
  for (int grid : {4, 6, 7, 14}) {
    EXPECT_EQ(RowText(frmInput->ORVFlexGrid(grid), 0), "Year|Age 1|Age 2|Age 3|Age 4");
    EXPECT_EQ(RowText(frmInput->ORVFlexGrid(grid), 1), "1995|1995.1|1995.2||");
  }
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(1), 1), "1995|1995.1|1995.2|1995.3|1995.4||");
  for (int grid : {4, 6, 7}) EXPECT_EQ(RowText(frmPin->ORVFlexGrid1(grid), 0, 1), "Age 1|Age 2|Age 3|Age 4");
  EXPECT_EQ(frmInput->ORVFlexGrid(10).Rows() + frmInput->ORVFlexGrid(13).Rows(), 10);
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(15), 2), "1996||||22||");
  EXPECT_EQ(SurvAgeFit(1, 4, 2) + SurvAgeFit(1, 5, 2), "22");
}

TEST_F(Dimensions, counts_beyond_the_ages_are_reset_with_one_warning_for_each_grid) {
  Grid& fishery = frmInput->ORVFlexGrid(11);
  Grid& surveys = frmInput->ORVFlexGrid(12);
  Choose(frmInput->cmbSelPer, 3);
  for (int row = 1; row <= 3; ++row) fishery.SetTextMatrix(row, 1, row == 1 ? "1" : "3");
  for (int row = 1; row <= 2; ++row) surveys.SetTextMatrix(row, 1, "3");
  host.messages.clear();
  Choose(frmInput->cmbNAges, 2);
  EXPECT_EQ(host.messages.at(0).icon, Icon::Exclamation);
  EXPECT_EQ(host.TakeTexts(),
            (std::vector<std::string>{
                "Number of Ages to Estimate Fishery Selectivity is Invalid|Resetting Value to 2",
                "Number of Ages to Estimate Survey Selectivity is Invalid|Resetting Value to 2"}));
  EXPECT_EQ(ColumnText(fishery, 1), "1|2|2");
  EXPECT_EQ(ColumnText(surveys, 1), "2|2");
  EXPECT_EQ(frmInput->txtFishSelAge.Text(), "1");
}

TEST_F(Dimensions, handlers_rest_while_a_reader_fills_the_form) {
  LoadingForm = kTrue;
  for (ComboBox* combo :
       {&frmInput->cmbNFYear, &frmInput->cmbNXYear, &frmInput->cmbNAges, &frmInput->cmbNIndex,
        &frmInput->cmbSelPer, &frmInput->cmbRecYr, &frmInput->cmbSurvFYear}) {
    combo->UserSelect(combo->ListCount() - 1);
  }
  EXPECT_TRUE(host.messages.empty());
  EXPECT_EQ(Span(NewNFYear, NewNXYear), "1995-2004");
  EXPECT_EQ(Span(NFYear, NXYear), "1995-2004");
  for (int value : {NAges - 3, NIndex - 2, NSelPer - 1, SurvFYear(1) - 1995}) EXPECT_EQ(value, 0);
}

TEST_F(Dimensions, a_case_beyond_the_bound_of_a_table_is_refused_whole) {
  FillYearGrids();
  GPYearMin = 1;
  GPYearMax = GPAgeMax = GPSurveyMax = 32000;
  FillGeneralCombos();
  Choose(frmInput->cmbNAges, 100);
  Choose(frmInput->cmbNIndex, 50);
  const struct {
    ComboBox& combo;
    int refused;
  } rows[] = {{frmInput->cmbNFYear, 1},
              {frmInput->cmbNXYear, 32000},
              {frmInput->cmbNXYear, 1},
              {frmInput->cmbNAges, 32000},
              {frmInput->cmbNIndex, 32000}};
  for (const auto& row : rows) {
    const std::string before = row.combo.Text();
    try {
      Choose(row.combo, row.refused);
      ADD_FAILURE() << row.combo.Name();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number, kErrOutOfMemory);
    }
    EXPECT_EQ(row.combo.Text(), before);
  }
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(0), 10), "2004|2004.1");
  EXPECT_EQ(host.TakeTexts(), std::vector<std::string>{"Resetting First Year to First Available Year"});
  Choose(frmInput->cmbNXYear, 2005);
  EXPECT_EQ(SurvAgeFit.Rows(), 11);
}

}  // namespace
}  // namespace tarnvik
