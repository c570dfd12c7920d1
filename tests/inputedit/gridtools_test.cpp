#include "inputedit/gridtools.h"

#include "example_case.h"
#include "inputedit/frmedittextbox.h"
#include "inputedit/frmfillnodata.h"

namespace tarnvik {
namespace {

class GridTools : public ExampleCase {
 protected:
  void Blank(int grid, int first_row, int last_row) {
    for (int row = first_row; row <= last_row; ++row) {
      for (int col = 1; col < InputGrid(grid).Cols(); ++col) InputGrid(grid).SetTextMatrix(row, col, " ");
    }
  }
  // The cells of a row, each with a bar behind it.
  std::string Row(int grid, int row) {
    std::string cells;
    for (int col = 0; col < InputGrid(grid).Cols(); ++col)
      cells += InputGrid(grid).TextMatrix(row, col) + "|";
    return cells;
  }
  // Presses a "Fill Blanks" button and answers the dialog; what the dialog said.
  std::string Fill(int button, const char* value) {
    std::string said;
    host.modal_acts.push_back([&] {
      said = frmFillNoData->txtWhichGrid.Text() + "|" + frmFillNoData->lblExplain.Caption();
      frmFillNoData->txtDataVal.SetText(value);
      (*value ? frmFillNoData->cmdOK : frmFillNoData->cmdCancel).UserClick();
    });
    frmInput->cmdFillBlanks(button).UserClick();
    EXPECT_FALSE(frmFillNoData.Loaded());
    return said;
  }
};

TEST_F(GridTools, condensing_and_expanding_keep_rows_by_year) {
  Blank(1, 1, 2);
  Blank(1, 4, 4);
  Blank(1, 51, 52);
  const auto kept = Row(1, 3);
  const auto last = Row(1, 50);
  frmInput->cmdCondenseGrd(1).UserClick();
  EXPECT_EQ(InputGrid(1).Rows(), 49);
  EXPECT_EQ(FishAgeNYears, 48);
  EXPECT_EQ(FishCPUENYears, 52);
  EXPECT_EQ(Row(1, 0).substr(0, 16), "Year|Fit? (y/n)|");
  EXPECT_EQ(Row(1, 1), kept);
  EXPECT_EQ(Row(1, 2), "1966| | | | | | | | |");
  EXPECT_EQ(Row(1, 48), last);

  frmInput->cmdExpandGrd(1).UserClick();
  EXPECT_EQ(InputGrid(1).Rows(), 53);
  EXPECT_EQ(FishAgeNYears, 52);
  EXPECT_EQ(Row(1, 1), "1963|||||||||");
  EXPECT_EQ(Row(1, 3), kept);
  EXPECT_EQ(Row(1, 50), last);
  EXPECT_EQ(Row(1, 52), "2014|||||||||");
}

TEST_F(GridTools, condensing_keeps_what_counts_as_data) {
  const struct {
    int row, col;
    const char* kept;
  } rows[] = {{52, 2, "2014| |n|"}, {1, 1, "1963|n| |"}, {20, 1, "1982|n| |"}, {0, 0, "1963|||"}};
  for (const auto& row : rows) {
    Read();
    Blank(5, 1, 52);
    if (row.row > 0) InputGrid(5).SetTextMatrix(row.row, row.col, "n");
    frmInput->cmdCondenseGrd(0).UserClick();
    EXPECT_EQ(Row(5, 1), row.kept);
    EXPECT_EQ(InputGrid(5).Rows(), 2) << row.kept;
    EXPECT_EQ(FishCPUENYears, 1) << row.kept;
  }
}

TEST_F(GridTools, blanks_are_filled_from_the_dialog) {
  Blank(1, 1, 1);
  Blank(1, 3, 3);
  EXPECT_EQ(
      Fill(1, "-99"),
      "Fishery Age Composition Data|The current grid will be condensed and blank grid cells for Fishery "
      "Proportion at Age will be filled with this value.");
  EXPECT_EQ(InputGrid(1).Rows(), 52);
  EXPECT_EQ(Row(1, 2), "1965| | |-99|-99|-99|-99|-99|-99|");

  InputGrid(5).SetTextMatrix(2, 1, "");
  Fill(0, "");  // cancelled
  EXPECT_EQ(Row(5, 2), "1964||n|");
  EXPECT_EQ(
      Fill(0, "-1"),
      "Observed Fishery CPUE Data|The current grid will be condensed and blank grid cells for Fishery CPUE "
      "will be filled with this value.");
  EXPECT_EQ(Row(5, 2), "1964|-1|n|");

  frmInput->cmbiSurv.UserSelect(1);
  Blank(15, 1, 1);
  EXPECT_EQ(
      Fill(2, "-99"),
      "Survey 2 Age Composition Data|Blank grid cells for Survey 2 Proportion at Age will be filled with "
      "this value.");
  frmInput->cmbiSurv.UserSelect(0);
  frmInput->cmbiSurv.UserSelect(1);
  EXPECT_EQ(Row(15, 1).substr(9), "-99|-99|-99|-99|-99|-99|");
}

TEST_F(GridTools, survey_title_goes_into_every_label) {
  frmInput->cmbiSurv.UserSelect(1);
  host.modal_acts.push_back([] {
    EXPECT_EQ(frmEditTextBox->Caption(), "Edit Survey Title");
    EXPECT_EQ(frmEditTextBox->Text1.Text(), "IBTS_Q3_gam");
    EXPECT_EQ(frmEditTextBox->Text1.SelLength, 11);
    frmEditTextBox->Text1.SetText("Autumn 100%y");
    frmEditTextBox->Text1.OnKeyPress('x');
    EXPECT_TRUE(frmEditTextBox.Loaded());
    frmEditTextBox->Text1.OnKeyPress(13);
  });
  frmInput->lblSurvTitle.UserClick();
  EXPECT_FALSE(frmEditTextBox.Loaded());
  EXPECT_EQ(SurvTitle(2), "Autumn 100%y");
  EXPECT_EQ(frmInput->lblSurvTitle.Caption(), "Autumn 100%y");
  const std::string label = "Survey 2: Autumn 100%y";
  EXPECT_EQ(InputGrid(3).TextMatrix(0, 1), label);
  EXPECT_EQ(InputGrid(9).TextMatrix(2, 0), label);
  EXPECT_EQ(InputGrid(10).TextMatrix(0, 2), label);
  EXPECT_EQ(frmInput->listSurvFit.List(1), label);
  EXPECT_EQ(PinGrid(6).TextMatrix(2, 0), label);

  host.modal_acts.push_back([] {
    frmEditTextBox->Text1.SetText("never");
    frmEditTextBox->cmdCancel.UserClick();
  });
  frmInput->lblSurvTitle.UserClick();
  EXPECT_EQ(SurvTitle(2), "Autumn 100%y");
}

TEST_F(GridTools, period_note_comes_once_and_edits_are_carried_on) {
  EXPECT_FALSE(frmInput->cmdCondenseGrd(0).Enabled());
  frmInput_ORVFlexGrid_event9(5);
  EXPECT_TRUE(frmInput->cmdCondenseGrd(0).Enabled());
  EXPECT_FALSE(frmInput->cmdCondenseGrd(1).Enabled());

  Grid& periods = InputGrid(8);
  for (const auto& [row, col] : {std::pair{1, 1}, {2, 2}, {2, 1}, {3, 1}}) {
    periods.SetSelection(row, col, row, col);
    frmInput_ORVFlexGrid_event9(8);
    EXPECT_EQ(host.messages.size(), row > 1 && col == 1 ? 1U : 0U) << row << ' ' << col;
  }
  EXPECT_EQ(host.messages[0].icon, Icon::Information);
  EXPECT_EQ(host.TakeTexts()[0],
            "Editing the Selectivity Period Start Year Will Automatically|"
            "Adjust the End Year of the Previous Selectivity Period");
  periods.SetTextMatrix(2, 1, "1975");
  frmInput_ORVFlexGrid_event1(8);
  EXPECT_EQ(InputGrid(11).TextMatrix(2, 0), "Select. Period 2: 1975 - 1984");
  EXPECT_EQ(PinGrid(4).TextMatrix(2, 0), "Select. Period 2: 1975 - 1984");

  frmInput->cmbiSurv.UserSelect(1);
  InputGrid(16).SetTextMatrix(3, 1, "77");
  frmInput_ORVFlexGrid_event1(16);
  EXPECT_EQ(SurvYearFit(2, 1, 1994 - 1963 + 1), "77");
}

}  // namespace
}  // namespace tarnvik
