#include "example_case.h"
#include "inputedit/validation.h"

namespace tarnvik {
namespace {

class ParameterValidation : public ExampleCase {
 protected:
  std::string Fault() {
    ValidateParameters();
    const auto texts = host.TakeTexts();
    EXPECT_EQ(InputValid, Flag(texts.empty()));
    return texts.empty() ? "" : texts[0];
  }
};

// clang-format off
TEST_F(ParameterValidation, field_must_lie_in_its_range) {
  const struct { int field, tab; const char *low, *high, *outside, *missing, *invalid; } rows[] = {
      {0, 0, "0", "1", "1.0001", "Missing Value for Natural Mortality", "Invalid Value for Natural Mortality"},
      {1, 0, "-100", "100", "1e999", "Missing Value for Mean Log Recruitment", "Invalid Value for Mean Log Recruitment"},
      {2, 0, "-10", "10", "-10.1", "Missing Value for Log of Mean Fishing Annual Mortality",
       "Invalid Value for Log of Mean Fishing Annual Mortality"},
      {3, 1, "0.00001", "100000", "0", "Fishery Selectivity Parameter Data is Incomplete|Missing Value for CPUE q",
       "Invalid Value for CPUE q"},
      {4, 1, "0.1", "10", "abc", "Fishery Selectivity Parameter Data is Incomplete|Missing Value for CPUE exponent",
       "Invalid Value for CPUE exponent"},
  };
  // clang-format on
  for (const auto& row : rows) {
    TextBox& field = frmPin->txtParmFile(row.field);
    for (const auto& [text, message] :
         {std::pair{"", row.missing}, {row.outside, row.invalid}, {row.low, ""}, {row.high, ""}}) {
      field.SetText(text);
      EXPECT_EQ(Fault(), message);
      if (*message) {
        EXPECT_EQ(frmPin->SSTab1.Tab(), row.tab) << message;
      }
    }
  }
}

// clang-format off
TEST_F(ParameterValidation, cell_must_lie_in_its_range) {
  const struct { int grid, row, col, tab; const char *low, *high, *outside, *invalid; } rows[] = {
      {0, 1, 1, 0, "-10", "10", "10.1", "Invalid Value for Recruitment Deviation at year 1958"},
      {1, 52, 1, 0, "-10", "10", "-10.1", "Invalid Value for Fishing Mortality Deviation at year 2014"},
      {2, 1, 4, 1, "-60", "1", "1.1", "Invalid Value for log gamma for Period 4"},
      {2, 2, 1, 1, "-60", "10", "10.1", "Invalid Value for log beta for Period 1"},
      {2, 3, 2, 1, "0", "4", "-0.1", "Invalid Value for log a50 for Period 2"},
      {3, 1, 2, 2, "0", "100000", "-1", "Invalid Value for Survey q for Survey 2: IBTS_Q3_gam"},
      {3, 2, 1, 2, "0", "10", "10.1", "Invalid Value for Survey exponent for Survey 1: IBTS_Q1_gam"},
      {5, 1, 1, 2, "-60", "1", "1.1", "Invalid Value for Survey log gamma for Survey 1: IBTS_Q1_gam"},
      {5, 2, 2, 2, "-60", "10", "-61", "Invalid Value for Survey log beta for Survey 2: IBTS_Q3_gam"},
      {5, 3, 2, 2, "-60", "10", "10.1", "Invalid Value for Survey log a50 for Survey 2: IBTS_Q3_gam"},
  };
  // clang-format on
  frmInput->opFishSelParametric(1).SetValue(true);
  frmInput->opSurvSelModel(0).SetValue(true);
  for (const auto& row : rows) {
    for (const auto& [text, message] : {std::pair{row.outside, row.invalid}, {row.low, ""}, {row.high, ""}}) {
      PinGrid(row.grid).SetTextMatrix(row.row, row.col, text);
      EXPECT_EQ(Fault(), message);
      if (*message) {
        EXPECT_EQ(frmPin->SSTab1.Tab(), row.tab) << message;
      }
    }
  }
}

// clang-format off
TEST_F(ParameterValidation, cell_in_view_must_not_be_blank) {
  const struct { int grid, row, col; const char* message; } rows[] = {
      {0, 1, 1, "Recruitment Deviations Data is Incomplete|Missing Value for year 1958"},
      {1, 52, 1, "Fishing Mortality Deviations Data is Incomplete|Missing Value for year 2014"},
      {2, 3, 2, "Fishery Selectivity Parameter Data is Incomplete|Missing Value for log a50 for Period 2"},
      {3, 1, 2, "Survey Index Parameter Data is Incomplete|Missing Value for Survey q for Survey 2: IBTS_Q3_gam"},
      {2, 1, 1, ""},  // flat-topped: no log gamma
      {4, 1, 1, ""}, {5, 1, 1, ""}, {7, 1, 1, ""},
  };
  // clang-format on
  for (const auto& row : rows) {
    Grid& grid = PinGrid(row.grid);
    const std::string good = grid.TextMatrix(row.row, row.col);
    grid.SetTextMatrix(row.row, row.col, " ");
    EXPECT_EQ(Fault(), row.message) << row.grid;
    if (*row.message) grid.SetTextMatrix(row.row, row.col, good);
  }
}

TEST_F(ParameterValidation, counts_say_how_many_cells_are_needed) {
  InputForm& form = *frmInput;
  form.opFSelModel(1).SetValue(true);
  form.opFishSelNonPar(0).SetValue(true);
  InputGrid(11).SetTextMatrix(2, 1, "3");
  PinGrid(4).SetTextMatrix(2, 4, "");
  EXPECT_EQ(Fault(), "");
  PinGrid(4).SetTextMatrix(2, 3, "");
  EXPECT_EQ(Fault(), "Log of Fishery Selectivity Parameters Data is Incomplete|Missing Value for Age 3");
  EXPECT_EQ(frmPin->SSTab1.Tab(), 1);
  InputGrid(11).SetTextMatrix(4, 1, "7");
  EXPECT_EQ(Fault(), "Number of Ages to Estimate Fishery Selectivity is Invalid for Selectivity Period 4");
  EXPECT_EQ(FrontForm(), &frmInput);
  EXPECT_EQ(form.SSTab1.Tab(), kTabFisherySelectivity);

  form.opFishSelNonPar(1).SetValue(true);
  PinGrid(7).SetTextMatrix(52, 6, "");
  EXPECT_EQ(Fault(),
            "Log of Annual Nonparametric Fishery Selectivity Parameters Data is Incomplete|"
            "Missing Value for Age 6 for Year 2014");
  for (const char* text : {"", "0", "7"}) {
    form.txtFishSelAge.SetText(text);
    EXPECT_EQ(Fault(), "Number of Ages to Estimate Fishery Selectivity is Invalid") << text;
  }

  Read();
  PinGrid(6).SetTextMatrix(2, 5, "");
  EXPECT_EQ(Fault(), "");
  PinGrid(6).SetTextMatrix(2, 4, "");
  EXPECT_EQ(Fault(),
            "Log of Nonparametric Survey Selectivity Parameter Data is Incomplete|"
            "Missing Value for Age 4 for Survey 2");
  InputGrid(12).SetTextMatrix(2, 1, "");
  EXPECT_EQ(Fault(), "Number of Ages to Estimate Survey Selectivity is Invalid for Survey 2");
  EXPECT_EQ(form.SSTab1.Tab(), kTabSurveySelectivity);
}

}  // namespace
}  // namespace tarnvik
