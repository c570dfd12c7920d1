#include "inputedit/frmeditgp.h"

#include "core/frmmain.h"
#include "inputedit/example_case.h"
#include "platform/paths.h"

namespace tarnvik {
namespace {

const char* const kConflict =
    "Warning! The New General Parameter Ranges Conflict|with the General Parameters of the Current Input "
    "Data.|"
    "Some Data May Be Deleted.||Do You Wish to Continue?";

class ParameterRanges : public ExampleCase {
 protected:
  // Types the four values, "*" for a last year that follows the calendar, and presses OK. The boxes shown.
  std::vector<std::string> Enter(const std::string& first, const std::string& last, const std::string& ages,
                                 const std::string& surveys) {
    EditGPForm& form = *frmEditGP;
    form.txtYr(0).SetText(first);
    form.chkAuto.UserCheck(last == "*" ? 1 : 0);
    if (last != "*") form.txtYr(1).SetText(last);
    form.txtAges.SetText(ages);
    form.txtSurveys.SetText(surveys);
    form.cmdOK.UserClick();
    return host.TakeTexts();
  }
  static std::string InForce() {
    std::string text;
    for (const std::int16_t value : {GPYearMin, GPYearMax, GPAutoYear, GPAgeMax, GPSurveyMax})
      text += std::to_string(value) + ' ';
    return text;
  }
  static std::string Case() {
    std::string text;
    for (const std::int16_t value : {NFYear, NXYear, NYears, NAges, NIndex})
      text += std::to_string(value) + ' ';
    return text;
  }
};

TEST_F(ParameterRanges, what_cannot_be_a_range_is_refused_and_nothing_changes) {
  const struct {
    const char *first, *last, *ages, *surveys, *message;
  } rows[] = {
      {"", "", "", "", "Please Enter a Minimum Value for the Year Range"},
      {"0", "", "", "", "Invalid Value for the Year Range Minimum Value"},
      {"abc", "2026", "60", "50", "Invalid Value for the Year Range Minimum Value"},
      {"99999", "2026", "60", "50", "Invalid Value for the Year Range Minimum Value"},
      {"1900", "", "", "", "Please Enter a Maximum Value for the Year Range"},
      {"1900", "-5", "", "", "Invalid Value for the Year Range Maximum Value"},
      {"1900", "1e999", "60", "50", "Invalid Value for the Year Range Maximum Value"},
      {"1900", "1899", "", "", "Year Range Minimum Must Be Less Than Year Range Maximum"},
      {"2027", "*", "", "", "Year Range Minimum Must Be Less Than Year Range Maximum"},
      {"1900", "*", "", "", "Please Enter a Maximum Value for the Age Range"},
      {"1900", "*", "0", "", "Invalid Value for the Age Range Maximum Value"},
      {"1900", "*", "32768", "50", "Invalid Value for the Age Range Maximum Value"},
      {"1900", "*", "60", "", "Please Enter a Maximum Value for the Number of Surveys"},
      {"1900", "*", "60", "0.9", "Invalid Value for the Number of Surveys Maximum Value"},
      {"1964", "*", "60", "50", kConflict},
      {"1900", "2013", "60", "50", kConflict},
      {"1900", "*", "5", "50", kConflict},
      {"1900", "*", "60", "1", kConflict},
  };
  const std::string before = InForce() + Case();
  for (const auto& row : rows) {
    host.answers = {Answer::Cancel};
    EXPECT_EQ(Enter(row.first, row.last, row.ages, row.surveys), std::vector<std::string>{row.message});
    EXPECT_TRUE(frmEditGP.Loaded());
    EXPECT_EQ(InForce() + Case(), before) << row.message;
  }
  EXPECT_FALSE(FileExists("TARNVIK.CFG"));
}

TEST_F(ParameterRanges, last_year_follows_the_calendar_or_is_typed) {
  const auto last_year = [] {
    const TextBox& last = frmEditGP->txtYr(1);
    return last.Text() + " " + ColorText(last.BackColor()) + (last.Enabled() ? "" : ", locked");
  };
  EXPECT_EQ(last_year(), "2026 ButtonFace, locked");
  EXPECT_EQ(Enter("1963", "2014", "6", "2"), std::vector<std::string>());
  EXPECT_FALSE(frmEditGP.Loaded());
  EXPECT_EQ(InForce(), "1963 2014 0 6 2 ");
  EXPECT_EQ(last_year(), "2014 WindowBackground");
}

TEST_F(ParameterRanges, wider_and_narrower_ranges_keep_what_still_fits) {
  const std::string catch_1990 = InputGrid(0).TextMatrix(28, 1);
  frmInput->cmbNAges.SetListIndex(5);
  Enter("1963", "2014", "6", "2");
  EXPECT_EQ(Enter("1900", "*", "100", "2"), std::vector<std::string>());
  EXPECT_EQ(frmInput->cmbNAges.ListCount(), 100);
  EXPECT_EQ(frmInput->cmbNFYear.ListCount(), 127);
  EXPECT_EQ(Case(), "1963 2014 52 6 2 ");
  host.answers = {Answer::Ok};
  const std::vector<std::string> boxes = Enter("1990", "2000", "4", "1");
  ASSERT_EQ(boxes.size(), 3u);  // the other two tell of the counts of ages to estimate
  EXPECT_EQ(boxes[0], kConflict);
  EXPECT_EQ(Case(), "1990 2000 11 4 1 ");
  EXPECT_EQ(frmInput->cmbiSurv.ListCount(), 1);
  EXPECT_EQ(InputGrid(0).TextMatrix(1, 0), "1990");
  EXPECT_EQ(InputGrid(0).TextMatrix(1, 1), catch_1990);
}

// One who sets the ranges before there is a case creates it within them, in whatever order.
TEST_F(ParameterRanges, new_case_lies_within_the_ranges) {
  UnloadForm(frmPin);
  UnloadForm(frmInput);
  EndProgram();
  StartProgram(host);
  const struct {
    const char *first, *last, *ages, *surveys;
    const char* after;
  } rows[] = {
      {"1990", "2000", "8", "3", "1990 2000 11 1 1 "},
      {"1950", "1960", "1", "1", "1950 1960 11 1 1 "},
      {"2000", "2000", "60", "50", "2000 2000 1 1 1 "},
      {"1", "32767", "60", "50", "2000 2000 1 1 1 "},
  };
  for (const auto& row : rows) {
    host.answers = {Answer::Ok};
    Enter(row.first, row.last, row.ages, row.surveys);
    frmMain->mnuFileCreateAll.UserClick();
    EXPECT_EQ(host.TakeTexts(), std::vector<std::string>()) << row.first;
    EXPECT_EQ(Case(), row.after);
    EXPECT_EQ(frmInput->cmbNFYear.Text() + frmInput->cmbNXYear.Text(),
              std::to_string(NFYear) + std::to_string(NXYear));
    EXPECT_EQ(InputGrid(0).Rows(), NYears + 1);
    EXPECT_EQ(InputGrid(15).TextMatrix(1, 0), std::to_string(NFYear));
  }
}

// Ranges that end before a file begins are widened by it.
TEST_F(ParameterRanges, file_beyond_the_last_year_widens_the_ranges) {
  host.answers = {Answer::Ok};
  Enter("1900", "1950", "60", "50");
  Read();
  EXPECT_EQ(Case(), "1963 2014 52 6 2 ");
  EXPECT_EQ(frmInput->cmbNFYear.Text() + frmInput->cmbNXYear.Text(), "19632014");
  EXPECT_EQ(InForce(), "1900 2014 0 60 50 ");
}

}  // namespace
}  // namespace tarnvik
