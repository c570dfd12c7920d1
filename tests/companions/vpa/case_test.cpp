// The case that comes out, number by number.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <sstream>

#include "vpa_folder.h"

namespace {

struct Expected {
  const char* comment;
  const char* values;
};

void ExpectValues(const std::string& text, const std::vector<Expected>& rows) {
  for (const Expected& row : rows) EXPECT_EQ(ValuesUnder(text, row.comment), row.values) << row.comment;
}

TEST(Case, figures_of_the_tiny_stock_are_those_worked_out_by_hand) {
  const VpaFolder folder;
  const Outcome run = folder.Convert();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.log, "");
  EXPECT_NE(run.progress.find("age 0 is dropped: the case begins with age 1\n"
                              "index 1 (age 0 of Trawl: spring) is left out of survey Survey 2\n"),
            std::string::npos);
  EXPECT_EQ(folder.Text("tiny_tarnvik.ctl"),
            "# Model Description\r\nTiny stock\r\n# Parameter Input File\r\ntiny_tarnvik.pin\r\n"
            "# Input Data File\r\ntiny_tarnvik.dat\r\n");
  ExpectValues(folder.Text("tiny_tarnvik.dat"),
               {{"styr endyr", "2001 2005 2001 2001"},
                {"Number of age classes", "3"},
                {"Number of surveys", "2"},
                {"Catch biomass:2001 to 2005, n=5", "85  0  80  55  62.5"},
                {"Years to fit fishery age", "1 0 1 1 1"},
                {"Number of age samples in fishery", "100  0  100  100  100"},
                {"Fishery age composition data (Tiny stock)  1 2 3+",
                 "0.166667  0.333333  0.5/0  0  0/0.5  0.25  0.25/0.25  0.25  0.5/0.3  0.3  0.4"},
                {"(1..nselages_SURVEY)", "2 3"},
                {"Number of years of SURVEY data (S; one,Survey 2)", "3 4"},
                {"Ages in S; one SURVEY", "1 1 0"},
                {"Ages in Survey 2 SURVEY", "0 0 1"},
                {"Fit S; one SURVEY index values (2002-2004)", "1 0 1"},
                {"Fit S; one SURVEY age composition", "1 0 1"},
                {"Years of Survey 2 SURVEY", "2001  2002  2003  2004"},
                {"Fraction of Z Prior to SURVEY", "0.25  0.5"},
                {"Untransformed S; one", "5  0  16"},
                {"Untransformed Survey 2", "5  6  5  20"},
                {"Number of age samples in S; one", "50  0  50"},
                {"S; one SURVEY age composition data,", "0.4  0.6  0/0  0  0/0.25  0.75  0"},
                {"Survey 2 SURVEY age composition data,", "0  0  1/0  0  1/0  0  1/0  0  1"},
                {"Catch Weight", "0.5  1  2/0.5  1  2/0.5  1  2/0.5  1  2/0.5  1  2"},
                {"Stock Weight", "0.4  0.9  1.8/0.4  0.9  1.8/0.5  1  2/0.4  0.9  1.8/0.4  0.9  1.75"},
                {"Spawning Weight", "0.4  0.9  1.8/0.4  0.9  1.8/0.5  1  2/0.4  0.9  1.8/0.4  0.9  1.75"},
                {"Prior to Spawning Season", "0.2"},
                {"(mult_M)", "2 1.5 1"},
                {"SURVEY biomass index (S", "10 10"},
                {"fit_survey_index_number_per_tow", "1 1"},
                {"Initial equilibrium catch", "85"}});
  ExpectValues(folder.Text("tiny_tarnvik.pin"), {{"NATURAL MORTALITY", "0.2"},
                                                 {"MEAN LOG RECRUITMENT", "4.094344562"},
                                                 {"RECRUITMENT DEVIATIONS", "0 0 0 0 0 0 0"},
                                                 {"log_sel_period_SURVEY", "1 1/1 1 1"},
                                                 {"log_sel_annual_FISH", "1 1 1/1 1 1/1 1 1/1 1 1/1 1 1"}});
}

TEST(Case, a_first_age_above_1_becomes_age_1_and_a_biomass_file_rules_over_the_sum) {
  const VpaFolder folder;
  folder.Change("tiny.dat", "1\n-\n", "1\nland.dat\n");
  folder.Change("tiny.dat", "pf.dat\npm.dat", "-\n-");
  folder.Write("land.dat", "Landings\n1 1\n1999 2005\n0 15\n5\n7\n7\n0\n12.5\n13\n14\n15\n");
  folder.Change("cn.dat", "0 3\n1\n5 10", "2 3\n1\n5 10");
  folder.Write("tarnvik_survey_list.txt", "1\nPots 3\n1\n5\n");
  EXPECT_EQ(folder.Convert().status, 0);
  const std::string dat = folder.Text("tiny_tarnvik.dat");
  EXPECT_NE(dat.find("Model Description:  Tiny stock - age 1 of the case is age 2 of the stock\r\n"),
            dat.npos);
  ExpectValues(dat, {{"Number of age classes", "2"},
                     {"Catch biomass:", "0  12.5  13  14  15"},
                     {"(mult_M)", "1.5 1"},
                     {"Ages in Pots 3 SURVEY", "0 1"},
                     {"Prior to Spawning Season", "0"},
                     {"estimate_initial_equilibrium_F", "0"},
                     {"Initial equilibrium catch", "0.0"}});
}

// Files of other systems and editors.
TEST(Case, line_ends_tabs_blank_lines_and_comments_make_no_difference) {
  const VpaFolder plain;
  plain.Convert();
  struct Style {
    const char* name;
    const char* line_end;
    const char* blank;
  };
  for (const Style& style :
       {Style{"CR LF and comments", " # a comment, 1 2 3\r\n", " "}, Style{"CR", "\r", "   "},
        Style{"tabs and blank lines", "\t\n\n  \t\n# nothing\n", "\t \t"}}) {
    SCOPED_TRACE(style.name);
    const VpaFolder folder;
    for (const char* file : {"tiny.dat", "cn.dat", "cw.dat", "sw.dat", "nm.dat", "pm.dat", "tun.dat"}) {
      std::string text = "\xEF\xBB\xBF";
      for (const char c : folder.Text(file))
        if (c == '\n' || (c == ' ' && std::isdigit(static_cast<unsigned char>(text.back()))))
          text += c == '\n' ? style.line_end : style.blank;
        else
          text += c;
      folder.Write(file, text.substr(0, text.find_last_not_of("\r\n\t ") + 1));
    }
    EXPECT_EQ(folder.Convert().log, "");
    // Line 3 of the data file is its path.
    const auto rest = [](const std::string& text) { return text.substr(text.find("# styr")); };
    EXPECT_EQ(rest(folder.Text("tiny_tarnvik.dat")), rest(plain.Text("tiny_tarnvik.dat")));
  }
}

TEST(Case, names_of_another_system_and_paths_with_blanks_are_found) {
  const VpaFolder folder;
  std::filesystem::create_directories(folder.path / "my stock");
  for (const std::string& file : folder.Files())
    if (file != "my stock") std::filesystem::rename(folder.path / file, folder.path / "my stock" / file);
  folder.Change("my stock/tiny.dat", "cn.dat", "..\\my stock\\CN.DAT");
  EXPECT_EQ(folder.Convert("my stock/tiny.dat").log, "");
  EXPECT_NE(folder.Text("my stock/tiny_tarnvik.ctl"), "");
}

// Computed from the same files with R.
TEST(Case, figures_of_north_sea_cod_agree_with_another_program) {
  const VpaFolder folder{VPA_EXAMPLE};
  folder.Write("tarnvik_survey_list.txt", "2\nQ1\n5\n1 2 3 4 5\nQ3\n4\n6 7 8 9\n");
  EXPECT_EQ(folder.Convert("cod-vpa.dat").log, "");
  const std::string dat = folder.Text("cod-vpa_tarnvik.dat");
  const std::string biomass = ValuesUnder(dat, "Catch biomass:");
  EXPECT_EQ(biomass.substr(0, biomass.find(' ')), "128102.1357");
  EXPECT_EQ(biomass.substr(biomass.rfind(' ') + 1), "45266.26657");
  EXPECT_EQ(ValuesUnder(dat, "(mult_M)"), "6.0637232 3.910901947 1.108799882 0.9999759407 1 1");
  EXPECT_EQ(ValuesUnder(dat, "Fraction of Z Prior to SURVEY"), "0.125  0.625");
  const std::string q3 = ValuesUnder(dat, "Untransformed Q3");
  EXPECT_EQ(q3.substr(0, q3.find(' ')), "19825.194");
  EXPECT_EQ(q3.substr(q3.rfind(' ') + 1), "5859.2609");
  const std::string shares = ValuesUnder(dat, "Q1 SURVEY age composition data,");
  EXPECT_EQ(shares.substr(shares.rfind('/') + 1), "0.433407  0.308279  0.137652  0.05493  0.065733  0");
  EXPECT_EQ(ValuesUnder(folder.Text("cod-vpa_tarnvik.pin"), "MEAN LOG"), "13.21985488");
}

#ifdef TARNVIK_EXE
TEST(Case, north_sea_cod_is_fitted_as_it_comes_however_the_indices_are_grouped) {
  for (const char* list :
       {"2\nQ1\n5\n1 2 3 4 5\nQ3\n4\n6 7 8 9\n", "1\nOne\n1\n3\n", "1\nAll\n9\n1 2 3 4 5 6 7 8 9\n",
        "9\na\n1\n1\nb\n1\n2\nc\n1\n3\nd\n1\n4\ne\n1\n5\nf\n1\n6\ng\n1\n7\nh\n1\n8\ni\n1\n9\n"}) {
    SCOPED_TRACE(list);
    const VpaFolder folder{VPA_EXAMPLE};
    folder.Write("tarnvik_survey_list.txt", list);
    ASSERT_EQ(folder.Convert("cod-vpa.dat").status, 0);
    const std::string run = "cd " + folder.path.string() +
                            " && " TARNVIK_EXE
                            " -ainp cod-vpa_tarnvik.pin -ind cod-vpa_tarnvik.dat >out.txt 2>err.txt";
    EXPECT_EQ(std::system(run.c_str()), 0);
    EXPECT_EQ(folder.Text("err.txt"), "");
    EXPECT_NE(folder.Text("TARNVIK.STD"), "");
    // The case with settings made by hand begins with 136345 mt.
    const std::string rep = folder.Text("TARNVIK.REP");
    const std::size_t at = rep.find("\nSpawning biomass (mt) by year\n");
    ASSERT_NE(at, std::string::npos);
    std::istringstream values(rep.substr(rep.find('\n', rep.find('\n', at + 1) + 1)));
    double first = 0;
    values >> first;
    EXPECT_NEAR(first, 136345, 0.1 * 136345);
  }
}
#endif

}  // namespace
