#include "inputedit/surveys.h"

#include "inputedit/small_case.h"

namespace tarnvik {
namespace {

class Surveys : public SmallCase {
 protected:
  static void Select(int survey) { frmInput->cmbiSurv.UserSelect(survey - 1); }
  static void ChooseSpan(int first, int last) {
    Choose(frmInput->cmbSurvFYear, first);
    Choose(frmInput->cmbSurvXYear, last);
  }
  static std::string Stored(int survey) {
    return Span(SurvFYear(survey), SurvXYear(survey)) + " " + NumberText(SurvNYears(survey));
  }
  static std::string Shown() {
    return frmInput->lblSurvTitle.Caption() + " " + frmInput->cmbSurvFYear.Text() + "-" +
           frmInput->cmbSurvXYear.Text();
  }
};

// The years of the survey that comes are selected one after the other, beside those of the one that goes:
// spans that do not meet bring no box.
TEST_F(Surveys, each_survey_keeps_its_own_data) {
  ChooseSpan(1995, 1997);
  TypeSurveyCell(15, 1, 3, "11");
  frmInput->chkSurvFit.UserCheck(1);
  Select(2);
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(15), 1), "1995|||||");
  EXPECT_EQ(frmInput->chkSurvFit.Value(), 0);
  ChooseSpan(2000, 2002);
  TypeSurveyCell(15, 1, 3, "22");
  TypeSurveyCell(16, 3, 1, "0.5");
  Select(1);
  EXPECT_EQ(Shown(), "Survey 1 1995-1997");
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(15), 1), "1995|||11||");
  EXPECT_EQ(frmInput->chkSurvFit.Value(), 1);
  Select(2);
  EXPECT_EQ(Shown(), "Survey 2 2000-2002");
  EXPECT_EQ(Stored(1) + ", " + Stored(2), "1995-1997 3, 2000-2002 3");
  EXPECT_EQ(frmInput->ORVFlexGrid(15).Rows(), 4);
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(15), 1), "2000|||22||");
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(16), 3), "2002|0.5|");
  EXPECT_TRUE(host.messages.empty());
  // A row of the store stands for a year of the case, wherever the survey begins.
  EXPECT_EQ(SurvAgeFit(2, 3, 6), "22");
  EXPECT_EQ(SurvYearFit(2, 1, 8), "0.5");
}

TEST_F(Surveys, a_span_that_ends_before_it_starts_is_refused) {
  ChooseSpan(1998, 2000);
  Choose(frmInput->cmbSurvFYear, 2001);
  Choose(frmInput->cmbSurvXYear, 1997);
  EXPECT_EQ(host.messages.at(0).icon, Icon::Exclamation);
  EXPECT_EQ(
      host.TakeTexts(),
      (std::vector<std::string>{"Please Select a Survey Start Year that Comes BEFORE |the Survey End Year",
                                "Please Select a Survey End Year that Comes AFTER |the Survey Start Year"}));
  EXPECT_EQ(Shown(), "Survey 1 1998-2000");
  EXPECT_EQ(Stored(1), "1998-2000 3");
  Choose(frmInput->cmbSurvFYear, 2000);
  EXPECT_EQ(Stored(1), "2000-2000 1");
  EXPECT_EQ(frmInput->ORVFlexGrid(16).Rows(), 2);
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(Surveys, a_span_is_cut_with_the_case_and_never_widened) {
  ChooseSpan(1997, 2003);
  for (int row = 1; row <= 7; ++row) {
    TypeSurveyCell(16, row, 1, NumberText(row));
    TypeSurveyCell(15, row, 5, NumberText(row));
  }
  const struct {
    ComboBox& combo;
    int year;
    const char *span, *cells;
  } rows[] = {
      {frmInput->cmbNFYear, 1996, "1997-2003 7", "1|2|3|4|5|6|7"},
      {frmInput->cmbNFYear, 1999, "1999-2003 5", "3|4|5|6|7"},
      {frmInput->cmbNXYear, 2001, "1999-2001 3", "3|4|5"},
      {frmInput->cmbNFYear, 1990, "1999-2001 3", "3|4|5"},
      {frmInput->cmbNXYear, 2010, "1999-2001 3", "3|4|5"},
      {frmInput->cmbNFYear, 2003, "2003-2003 1", ""},  // wholly outside: one empty year at the near end
  };
  for (const auto& row : rows) {
    Choose(row.combo, row.year);
    SCOPED_TRACE(&row - rows);
    EXPECT_EQ(Stored(1), row.span);
    EXPECT_EQ(Shown(), "Survey 1 " + std::string(row.span).substr(0, 9));
    EXPECT_EQ(ColumnText(frmInput->ORVFlexGrid(16), 1), row.cells);
    EXPECT_EQ(ColumnText(frmInput->ORVFlexGrid(15), 5), row.cells);
    EXPECT_EQ(ListText(frmInput->cmbSurvFYear), Span(NFYear, NXYear));
  }
  // An edit now goes to its own year.
  Choose(frmInput->cmbSurvXYear, 2006);
  TypeSurveyCell(16, 2, 1, "9");
  Choose(frmInput->cmbNFYear, 2001);
  Choose(frmInput->cmbSurvFYear, 2002);
  EXPECT_EQ(ColumnText(frmInput->ORVFlexGrid(16), 1), "||9||");
}

TEST_F(Surveys, a_survey_taken_away_comes_back_as_new) {
  Select(2);
  ChooseSpan(1998, 2000);
  TypeSurveyCell(16, 1, 1, "7");
  SurvTitle(2) = "Autumn";
  frmInput->ORVFlexGrid(12).SetTextMatrix(1, 1, "2");
  for (int survey : {0, 1}) frmInput->listSurvFit.UserMark(survey, true);
  Choose(frmInput->cmbNIndex, 1);
  EXPECT_EQ(frmInput->ORVFlexGrid(3).Cols(), 1);
  Choose(frmInput->cmbNIndex, 3);
  EXPECT_EQ(Shown(), "Survey 1 1995-2004");
  EXPECT_EQ(SurvTitle(2), "Survey 2");
  EXPECT_EQ(Stored(2), "1995-2004 10");
  EXPECT_EQ(SurvYearFit(2, 0, 4) + SurvYearFit(2, 1, 4), "1998");
  EXPECT_EQ(SurvAgeFit(3, 0, 10), "2004");
  EXPECT_EQ(RowText(frmInput->ORVFlexGrid(10), 0, 1), "Survey 1|Survey 2|Survey 3");
  EXPECT_EQ(frmInput->ORVFlexGrid(12).TextMatrix(1, 1), "2");
  for (int grid : {3, 5}) EXPECT_EQ(frmPin->ORVFlexGrid1(grid).Cols(), 4);
  EXPECT_EQ(frmPin->ORVFlexGrid1(6).Rows(), 4);
  const bool marked[] = {true, false, false};
  for (int survey = 0; survey < 3; ++survey)
    EXPECT_EQ(frmInput->listSurvFit.Selected(survey), marked[survey]);
}

// A data file may give a survey any years: what lies outside the case is shown as nothing.
TEST_F(Surveys, years_outside_the_case_leave_cells_and_combos_empty) {
  const struct {
    int first, last;
    const char *shown, *cells;
  } rows[] = {{1993, 1996, "-1996", "||i1995|i1996"},
              {2003, 2006, "2003-", "i2003|i2004||"},
              {1980, 1981, "-", "|"},
              {1999, 1980, "1999-", ""}};
  for (int p = 1; p <= 10; ++p) SurvYearFit(2, 1, p) = "i" + NumberText(1994 + p);
  for (const auto& row : rows) {
    SCOPED_TRACE(Span(row.first, row.last));
    SurvFYear(2) = Int16(row.first);
    SurvXYear(2) = Int16(row.last);
    SurvNYears(2) = Int16(row.last - row.first + 1);
    Select(1);
    Select(2);
    EXPECT_EQ(Shown(), std::string("Survey 2 ") + row.shown);
    EXPECT_EQ(ColumnText(frmInput->ORVFlexGrid(16), 1), row.cells);
    StoreSurveyGrid(16);
    EXPECT_EQ(SurvYearFit(2, 1, 1) + SurvYearFit(2, 1, 10), "i1995i2004");
    EXPECT_TRUE(host.messages.empty());
  }
}

// Whoever opens the next file walks the store by the dimensions in force.
TEST_F(Surveys, a_store_beyond_the_bound_stays_and_leaves_no_dimension_in_force) {
  NIndex = NYears = NAges = 30000;
  EXPECT_THROW(ReDimSurveys(), RunTimeError);
  EXPECT_EQ(NIndex + NYears + NAges + NFYear + NXYear, 0);
  EXPECT_EQ(SurvAgeFit.Rows(), 10);
}

}  // namespace
}  // namespace tarnvik
