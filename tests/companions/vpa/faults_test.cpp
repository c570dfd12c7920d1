// Broken input: one line that says what is wrong, exit status 1, and no file touched.

#include <gtest/gtest.h>

#include "vpa_folder.h"

namespace {

struct Fault {
  const char* name;
  const char* file;
  const char* from;  // "" for the whole file
  const char* to;
  const char* message;
};

TEST(Faults, are_told_in_one_line_and_change_no_file) {
  const Fault faults[] = {
      // the index file
      {"index file empty", "tiny.dat", "", "",
       "tiny.dat: line 1: the file ends where the title of the stock should follow"},
      {"index file without its number", "tiny.dat", "stock\n1\n", "stock\n",
       "tiny.dat: line 2: a number is wanted before the file names, not '-'; is the title missing, or is "
       "this not the index file of a stock?"},
      {"fewer than 11 names", "tiny.dat", "-\n-\ntun.dat\n", "-\ntun.dat\n",
       "tiny.dat: line 12: the file ends where the name of the file with tuning data (11 of 11, '-' for "
       "none) should follow"},
      {"needed file left out", "tiny.dat", "nm.dat", "-",
       "tiny.dat: line 7: a file with natural mortality is needed, '-' will not do"},
      {"file missing", "tiny.dat", "mo.dat", "more.dat",
       "tiny.dat: line 8: file with proportion mature not found: more.dat; is the name right, and is this "
       "the index file of a stock?"},
      {"folder for a file", "tiny.dat", "mo.dat", ".", ".: is a folder, not a file"},
      {"matrix for an index file", "tiny.dat", "",
       "Catch numbers\n1 2\n2001 2005\n0 3\n1\n1\n1\n1\n1\n1\n1\n1\n1\n",
       "tiny.dat: line 4: file with catch numbers at age not found: 0 3; is the name right, and is this the "
       "index file of a stock?"},
      // matrices
      {"decimal comma", "sw.dat", "1.75", "1,75",
       "sw.dat: line 11: '1,75' is not a number; a comma as decimal separator?"},
      {"word", "sw.dat", "1.75", "NA", "sw.dat: line 11: 'NA' is not a number"},
      {"nan", "sw.dat", "1.75", "nan", "sw.dat: line 11: 'nan' is not a number"},
      {"infinite", "sw.dat", "1.75", "1e999", "sw.dat: line 11: '1e999' is not a number"},
      {"huge", "sw.dat", "1.75", "1e99",
       "sw.dat: line 11: 1e99 is too large for a number of fish or a weight"},
      {"negative", "sw.dat", "1.75", "-1.75", "sw.dat: line 11: -1.75 is below 0"},
      {"fraction above 1", "pf.dat", "0.1", "1.1", "pf.dat: line 6: 1.1 is above 1"},
      {"column missing", "cn.dat", "5 40 20 20", "5 40 20", "cn.dat: line 8: 3 values for 4 ages (0-3)"},
      {"row missing", "cn.dat", "5 40 20 20\n", "",
       "cn.dat: line 9: the file ends where the row of 2005 should follow"},
      {"row too many", "cn.dat", "5 40 20 20\n", "5 40 20 20\n5 40 20 20\n",
       "cn.dat: line 11: more rows than the years 2001-2005 of the head allow"},
      {"matrix under a form code of one row", "sw.dat", "1 3\n1\n", "1 3\n2\n",
       "sw.dat: line 7: more rows than the form code of the head allow; should the form code be 1?"},
      {"form code", "sw.dat", "1 3\n1\n", "1 3\n4\n", "sw.dat: line 5: form code: '4' is none of 1, 2, 3, 5"},
      {"title missing", "sw.dat", "Stock weights\n", "",
       "sw.dat: line 3: first and last year: 1 is not a whole number from 1000 to 3000; is a line missing "
       "above, or does the title begin with #?"},
      {"last year first", "sw.dat", "2000 2005", "2005 2000",
       "sw.dat: line 3: first and last year: the first, 2005, is after the last, 2000"},
      {"one year only", "sw.dat", "2000 2005", "2000",
       "sw.dat: line 3: first and last year: one number, two are wanted"},
      {"negative age", "sw.dat", "1 3\n1\n", "-1 3\n1\n",
       "sw.dat: line 4: first and last age: -1 is not a whole number from 0 to 1000"},
      {"huge age", "sw.dat", "1 3\n1\n", "1 1e9\n1\n",
       "sw.dat: line 4: first and last age: 1e9 is not a whole number from 0 to 1000"},
      {"years do not cover", "sw.dat", "2000 2005", "1999 2004",
       "sw.dat: line 3: years 1999-2004 do not cover those of the catch numbers, 2001-2005"},
      {"ages do not cover", "sw.dat", "1 3\n1\n", "2 4\n1\n",
       "sw.dat: line 4: ages 2-4 do not cover those of the catch numbers, 1-3"},
      {"catch numbers of all years alike", "cn.dat", "0 3\n1\n", "0 3\n2\n",
       "cn.dat: line 7: more rows than the form code of the head allow; should the form code be 1?"},
      {"no mortality at an age", "nm.dat", "0.4", "0",
       "nm.dat: natural mortality is 0 at age 1 in all years of the catch numbers"},
      // tuning data
      {"no fleet", "tun.dat", "", "Tuning\n100\n", "tun.dat: no fleet in the tuning data"},
      {"fewer rows than years", "tun.dat", "2000 2006", "2000 2007",
       "tun.dat: line 14: 'Pots' is not a number; fewer rows than the years 2000-2007 of the fleet above?"},
      {"more rows than years", "tun.dat", "2000 2006", "2000 2005",
       "tun.dat: line 13: the name of a fleet is wanted, not a row of numbers; more rows than the years "
       "2000-2005 of the fleet above?"},
      {"no alpha and beta", "tun.dat", "1 1 0 0.5", "1 1",
       "tun.dat: line 5: 2 values, four are wanted: 1 1 alpha beta"},
      {"months for parts of the year", "tun.dat", "1 1 0 0.5", "1 1 0 6",
       "tun.dat: line 5: beta: 6 is not from 0 to 1"},
      {"tuning column missing", "tun.dat", "0.5 1 2 6 8", "0.5 1 2 6",
       "tun.dat: line 11: 4 values, 5 are wanted: effort and ages 0-3"},
      {"tuning decimal comma", "tun.dat", "0.5 1 2 6 8", "0.5 1 2,5 6 8",
       "tun.dat: line 11: '2,5' is not a number; a comma as decimal separator?"},
      {"cut", "tun.dat", "1 4\n1 5\n", "1 4\n",
       "tun.dat: line 21: the file ends where the row of 2005 of fleet Pots should follow"},
      // the list of surveys
      {"unknown index", "tarnvik_survey_list.txt", "1  4  5", "1  4  6",
       "tarnvik_survey_list.txt: line 7: unknown index '6'; the tuning data have 1 to 5"},
      {"repeated index", "tarnvik_survey_list.txt", "1  4  5", "1  4  3",
       "tarnvik_survey_list.txt: line 7: index 3 is named twice"},
      {"another count of indices", "tarnvik_survey_list.txt", "1  4  5", "1  4",
       "tarnvik_survey_list.txt: line 7: 2 index numbers, the line above says 3"},
      {"no survey", "tarnvik_survey_list.txt", "2\r\nS", "0\r\nS",
       "tarnvik_survey_list.txt: line 1: the number of surveys: '0' is not a whole number from 1 to 100"},
      {"only age 0", "tarnvik_survey_list.txt", "3\r\n1  4  5", "1\r\n1",
       "tarnvik_survey_list.txt: line 7: survey Survey 2 has no index of age 1 or older"},
      {"age beyond the plus group", "tun.dat", "3 3\n1 1", "4 4\n1 1",
       "tarnvik_survey_list.txt: line 7: index 5 (age 4 of Pots) is not of the ages of the catch numbers, "
       "1-3"},
      {"no year with all indices", "tun.dat", "Pots\n2001 2005", "Pots\n1991 1995",
       "tarnvik_survey_list.txt: line 7: survey Survey 2: in no year of 2001-2005 have all its indices "
       "values"},
  };
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.name);
    const VpaFolder folder;
    folder.Write("tiny_tarnvik.pin", "of an old run");
    folder.Change(fault.file, fault.from, fault.to);
    const std::vector<std::string> before = folder.Files();
    const Outcome run = folder.Convert();
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.progress, "");
    EXPECT_EQ(run.log, std::string(fault.message) + "\n");
    EXPECT_EQ(folder.Files(), before);
    EXPECT_EQ(folder.Text("tiny_tarnvik.pin"), "of an old run");
  }
}

TEST(Faults, a_binary_file_is_no_text) {
  const VpaFolder folder;
  folder.Change("sw.dat", "1e0", std::string("1\0", 2));
  EXPECT_EQ(folder.Convert().log, "sw.dat: is not a text file; saved by a spreadsheet or as UTF-16?\n");
}

TEST(Faults, a_folder_in_the_place_of_one_file_leaves_the_others_as_they_were) {
  const VpaFolder folder;
  folder.Write("tiny_tarnvik.dat", "of an old run");
  std::filesystem::create_directories(folder.path / "tiny_tarnvik.ctl" / "sub");
  const std::vector<std::string> before = folder.Files();
  const Outcome run = folder.Convert();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.log, "tiny_tarnvik.ctl: cannot be written: Is a directory\n");
  EXPECT_EQ(folder.Files(), before);
  EXPECT_EQ(folder.Text("tiny_tarnvik.dat"), "of an old run");
}

// A file cut within a number may still be whole, with a shorter number; it is a case or a line, never a
// crash.
TEST(Faults, files_cut_anywhere_end_in_a_case_or_in_one_line) {
  for (const char* file : {"tiny.dat", "cn.dat", "cw.dat", "pm.dat", "tun.dat", "tarnvik_survey_list.txt"}) {
    const VpaFolder folder;
    const std::string whole = folder.Text(file);
    for (std::size_t length = 0; length < whole.size(); length += 3) {
      SCOPED_TRACE(std::string(file) + " cut at " + std::to_string(length));
      folder.Write(file, whole.substr(0, length));
      const Outcome run = folder.Convert();
      EXPECT_EQ(run.log.find('\n') + 1, run.log.size());
      EXPECT_EQ(run.log.empty(), run.status == 0);
    }
  }
}

}  // namespace
