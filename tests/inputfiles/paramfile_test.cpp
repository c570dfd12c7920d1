#include "inputfiles/paramfile.h"

#include <algorithm>
#include <filesystem>

#include "core/frmmain.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/case_test.h"

namespace tarnvik {
namespace {

const std::string kError = "Error Reading Parameter Input File|";

class ParameterFile : public CaseTest {
 protected:
  void SetUp() override {
    CaseTest::SetUp();
    OpenCase(control);
    EXPECT_EQ(LastText(), "no box");
    lines = LinesOf(ReadBytes("cod.pin"));
  }
  std::ptrdiff_t At(const char* comment) const {
    const auto begins = [&](const std::string& line) { return line.starts_with(comment); };
    return std::find_if(lines.begin(), lines.end(), begins) - lines.begin();
  }
  void Erase(const char* comment, int count) {
    lines.erase(lines.begin() + At(comment), lines.begin() + At(comment) + count);
  }
  // The lines behind some comments joined by bars; behind the last, which heads a table, so many lines below.
  std::string Values(std::initializer_list<const char*> comments, int table_row) {
    std::string values;
    for (const char* comment : comments) {
      values += lines.at(std::size_t(At(comment) + (comment == comments.end()[-1] ? table_row : 1))) + "|";
    }
    return values;
  }
  static std::string Cells(int grid, int row) {
    const Grid& g = frmPin->ORVFlexGrid1(grid);
    std::string cells;
    for (int col = 1; col < g.Cols(); ++col) cells += g.TextMatrix(row, col) + ",";
    return cells;
  }
  // Reads a file of these bytes in place of the example's; the boxes are those of this read.
  void Read(const std::string& bytes) {
    WriteBytes("other.pin", bytes);
    host.messages.clear();
    host.files.push_back(InFolder("other.pin"));
    frmInput_cmdBrowse1_Click(0);
    EXPECT_FALSE(File1.IsOpen());
  }
  Texts lines;
};

// Every cell of the parameter grids gets a number of its own: grid, row, column.
void NumberAllCells() {
  for (const int g : {2, 3, 4, 5, 6, 7}) {
    Grid& grid = frmPin->ORVFlexGrid1(g);
    for (int row = 1; row < grid.Rows(); ++row) {
      for (int col = 1; col < grid.Cols(); ++col) {
        grid.SetTextMatrix(row, col, NumberText(g * 1000 + row * 10 + col));
      }
    }
  }
}

TEST_F(ParameterFile, selectivities_not_in_use_are_neutral_and_every_option_survives_a_reread) {
  const std::string betas = "2021 2022 2023 2024 |2031 2032 2033 2034 |", six = "1 1 1 1 1 1 |";
  const std::string neutral = "-2.0 -2.0 -2.0 -2.0 |", none = "0.0 0.0 0.0 0.0 |1.0 1.0 1.0 1.0 |";
  const struct {
    int model, option;  // parametric: flat-topped or three parameters; nonparametric: by period or by year
    std::string fishery, surveys;
  } rows[] = {
      {0, 0, neutral + betas + six + six, "-2.0 -2.0 |5021 5022 |5031 5032 |1 1 1 1 |"},
      {0, 1, "2011 2012 2013 2014 |" + betas + six + six, "5011 5012 |5021 5022 |5031 5032 |1 1 1 1 |"},
      {1, 0, neutral + none + "4011 4012 4013 4014 4015 4016 |" + six,
       "-2.0 -2.0 |0.0 0.0 |1.0 1.0 |6021 6022 6023 6024 |"},
      {1, 1, neutral + none + six + "7521 7522 7523 7524 |",
       "-2.0 -2.0 |0.0 0.0 |1.0 1.0 |6021 6022 6023 6024 |"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.fishery);
    frmInput->opFSelModel(row.model).SetValue(true);
    frmInput->opSurvSelModel(row.model).SetValue(true);
    frmInput->opFishSelParametric(row.option).SetValue(true);
    frmInput->opFishSelNonPar(row.option).SetValue(true);
    frmInput->opSurvSelParametric(row.option).SetValue(true);
    frmInput->txtFishSelAge.SetText("4");
    NumberAllCells();
    WriteParameterFile();
    lines = LinesOf(ReadBytes(PinFilePath));
    EXPECT_EQ(row.fishery, Values({"# log_gamma_FISH", "# log_beta_FISH", "# log_a50_FISH",
                                   "# log_sel_period_FISH", "# log_sel_annual_FISH"},
                                  52));
    EXPECT_EQ(row.surveys, Values({"# log_gamma_SURVEY (IBTS_Q1_gam,IBTS_Q3_gam)", "# log_beta_SURVEY (",
                                   "# log_a50_SURVEY (", "# log_sel_period_SURVEY"},
                                  2));
    EXPECT_EQ(Values({"# qSURVEY (IBTS_Q1_gam,IBTS_Q3_gam)", "# exp_SURVEY ("}, 1), "3011 3012 |3021 3022 |");
    Read(Joined(lines));
    lines[2] = "# FILE " + InFolder("other.pin") + " SETS INITIAL PARAMETER VALUES";
    WriteParameterFile();
    EXPECT_EQ(LinesOf(ReadBytes("other.pin")), lines);
  }
}

TEST_F(ParameterFile, earlier_versions_lack_sections_and_say_so) {
  const Texts current = lines;
  const struct {
    const char* version;
    bool cpue, periods;
  } rows[] = {
      {"Tarnvik Version 1.3", true, true}, {"Tarnvik Version 1.2", true, false}, {"values", false, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.version);
    lines = current;
    lines[0] = std::string("# Statistical Catch-at-Age Model: ") + row.version;
    Erase("# log_sel_annual_FISH", 53);
    Erase("# log_sel_period_SURVEY", 3);
    if (!row.periods) Erase("# log_sel_period_FISH", 5);
    if (!row.cpue) Erase("# FISHERY CPUE PARAMETERS", 5);
    Read(Joined(lines));
    EXPECT_EQ(
        LastText(),
        "Parameter Input File is from a Previous Version|Please Check Data for Completeness and Accuracy");
    EXPECT_EQ(PinFileOpen, kTrue);
    EXPECT_EQ(frmPin->txtParmFile(3).Text(), row.cpue ? "1" : "");
    EXPECT_EQ(Cells(2, 1), "-2.0,-2.0,-2.0,-2.0,");
    EXPECT_EQ(Cells(4, 1), row.periods ? "1,1,1,1,1,1," : ",,,,,,");
    EXPECT_EQ(Cells(5, 3) + Cells(6, 1), "1.0,1.0,,,,,,,");
  }
}

TEST_F(ParameterFile, cut_at_every_line_is_told_or_read_as_far_as_it_goes) {
  for (std::ptrdiff_t n = 0; n <= std::ssize(lines); ++n) {
    SCOPED_TRACE(n);
    Read(Joined({lines.begin(), lines.begin() + n}));
    const bool before_index = n > At("# log_sel_period_FISH") && n <= At("# qSURVEY");
    const bool enough = n > At("# log_sel_annual_FISH");
    EXPECT_EQ(LastText(), enough         ? std::string("no box")
                          : before_index ? kError + "Unable to Retrieve Survey Index Parameters"
                                         : kError + "Input past end of file");
    EXPECT_EQ(PinFileOpen, Flag(enough));
    EXPECT_EQ(frmPin.Loaded(), enough || before_index);
  }
}

TEST_F(ParameterFile, missing_rows_warn_and_reading_goes_on) {
  for (std::size_t year = 1; year <= 52; ++year)
    lines[lines.size() - 53 + year] = std::to_string(year) + " 9";
  Erase("1 1 1 1 1 1 ", 2);  // of the four periods
  Read(Joined(lines));
  EXPECT_EQ(LastText(),
            "Warning: Parameter Input File Fishery Selectivity Periods Do Not Match General Parameters");
  EXPECT_EQ(Cells(4, 2) + Cells(4, 3), "1,1,1,1,1,1,,,,,,,");
  EXPECT_EQ(Cells(5, 1) + Cells(7, 1), "-2.0,-2.0,1,9,,,,,");
  // The comment that ends the surveys' rows is used up; the first line behind it passes for the next comment.
  lines.erase(lines.begin() + At("# log_sel_period_SURVEY") + 1);
  Read(Joined(lines));
  EXPECT_EQ(LastText(), "Warning: Parameter Input File Number of Surveys Do Not Match General Parameters");
  EXPECT_EQ(Cells(7, 1) + Cells(7, 52), "2,9,,,,,,,,,,,");
}

TEST_F(ParameterFile, odd_and_hostile_files) {
  std::string many, binary;
  for (int i = 1; i <= 100000; ++i) many += std::to_string(i) + "  ", binary += static_cast<char>(i * 7);
  for (const char* line_end : {"\r", "\n"}) {
    Read(Joined(lines, line_end));
    EXPECT_EQ(LastText() + Cells(7, 52), "no box1,1,1,1,1,1,");
  }
  lines[6] = "\t13.5\t# thousands";
  lines[8] = lines[32] = many;
  lines[12] = "nan 1e999";
  Read(Joined(lines));
  EXPECT_EQ(LastText() + frmPin->txtParmFile(1).Text() + ' ' + Cells(3, 1), "no box13.5 1,2,");
  const Grid &recruits = frmPin->ORVFlexGrid1(0), &fishing = frmPin->ORVFlexGrid1(1);
  EXPECT_EQ(recruits.TextMatrix(57, 1) + fishing.TextMatrix(2, 1) + fishing.TextMatrix(3, 1), "571e999");
  Read("");
  EXPECT_EQ(LastText(), kError + "Input past end of file");
  Read(binary);
  EXPECT_EQ(LastText(), kError + "Unable to Retrieve Survey Index Parameters");
  EXPECT_EQ(PinFileOpen, kFalse);
}

TEST_F(ParameterFile, write_to_a_full_disk_is_told_and_leaves_the_flag_down) {
  std::filesystem::create_symlink("/dev/full", "full.pin");
  frmMain->mnuModelScan.SetEnabled(true);
  for (const auto& [name, text] :
       {std::pair("full.pin", "Error Saving Input Parameter File |Disk full"), {"new.pin", "no box"}}) {
    host.files.push_back(name);
    SaveParameterFileAs();
    EXPECT_EQ(LastText(), text);
    EXPECT_EQ(FilesSaved, Flag(std::string(name) == "new.pin"));
  }
  EXPECT_EQ(LinesOf(ReadBytes("new.pin"))[2], "# FILE new.pin SETS INITIAL PARAMETER VALUES");
  EXPECT_TRUE(frmMain->mnuModelScan.Enabled());
}

}  // namespace
}  // namespace tarnvik
