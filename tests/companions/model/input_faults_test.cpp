// Broken input files: one line that says what is wrong, exit code 2, and no output files, old ones included.

#include <gtest/gtest.h>

#include "case_runs.h"

namespace {

struct Fault {
  const char* name;
  std::vector<Change> inDat;
  std::vector<Change> inPin;
  const char* message;
};

TEST(InputFaults, are_told_in_one_line) {
  const Fault faults[] = {
      {"older version",
       {{"Tarnvik Version 1.4\n# Model Description", "TARNVIK VERSION 1.3\n# Model Description"}},
       {},
       "error: case.dat: line 1: file version 1.3, this program reads version 1.4"},
      {"text for a number",
       {{"2001 2003 2001 2002", "2001 abc 2001 2002"}},
       {},
       "error: case.dat: line 5: endyr: 'abc' is not a number"},
      {"decimal comma",
       {{"420  510  460", "420  1,5  460"}},
       {},
       "error: case.dat: line 21: catch biomass (2002): '1,5' is not a number"},
      {"not a number",
       {{"420  510  460", "420  510  nan"}},
       {},
       "error: case.dat: line 21: catch biomass (2003): 'nan' is not a number"},
      {"not whole",
       {{"# Number of age classes\n3", "# Number of age classes\n7.5"}},
       {},
       "error: case.dat: line 7: number of age classes: 7.5 is not a whole number from 2 to 100"},
      {"far too many ages",
       {{"# Number of age classes\n3", "# Number of age classes\n30000"}},
       {},
       "error: case.dat: line 7: number of age classes: 30000 is not a whole number from 2 to 100"},
      {"beyond any integer",
       {{"# Number of surveys\n1", "# Number of surveys\n1e300"}},
       {},
       "error: case.dat: line 9: number of surveys: 1e300 is not a whole number from 1 to 100"},
      {"last year first",
       {{"2001 2003 2001 2002", "2001 2001 2001 2001"}},
       {},
       "error: case.dat: line 5: endyr: 2001 is not a whole number from 2002 to 3000"},
      {"negative catch",
       {{"420  510  460", "420  -0.2  460"}},
       {},
       "error: case.dat: line 21: catch biomass (2002): -0.2 is below 0"},
      {"fraction above 1",
       {{"CPUE index\n0.5", "CPUE index\n1.5"}},
       {},
       "error: case.dat: line 33: fraction of Z prior to CPUE: 1.5 is above 1"},
      {"period does not start in styr",
       {{"fishery selectivity periods\n2001", "fishery selectivity periods\n2002"}},
       {},
       "error: case.dat: line 13: start of selectivity period: first period must start in styr"},
      {"periods fall",
       {{"# Number of fishery selectivity periods\n1\n# Starting years of fishery selectivity periods\n2001",
         "# Number of fishery selectivity periods\n3\n# Starting years of fishery selectivity periods\n2001 "
         "2003 2002"}},
       {},
       "error: case.dat: line 13: start of selectivity period: periods are not in order"},
      {"survey without ages",
       {{"then for each survey\n1 1 1", "then for each survey\n0 0 0"}},
       {},
       "error: case.dat: line 53: ages in SURVEY: survey 1 includes no age"},
      {"year outside the case",
       {{"2001  2002  2003  \n# Number of age samples in fishery",
         "2001  2002  2004  \n# Number of age samples in fishery"}},
       {},
       "error: case.dat: line 39: year of fishery age data (3): 2004 is not a whole number from 2001 to "
       "2003"},
      {"negative maturity",
       {{"0.1  0.6  1  \n0.1  0.6  1  \n0.1  0.6  1", "0.1  0.6  1  \n0.1  0.6  -1  \n0.1  0.6  1"}},
       {},
       "error: case.dat: line 86: maturity at age (2002, age 3): -1 is below 0"},
      {"no natural mortality at an age",
       {{"1.5 1.0 1.0", "1.5 0 1.0"}},
       {},
       "error: case.dat: line 89: mult_M (age 2): 0 is not above 0"},
      {"M estimated without a CV",
       {{"# estimate_M\n0", "# estimate_M\n1"}, {"# phases\n-1", "# phases\n4"}},
       {},
       "error: case.dat: line 91: CV of natural mortality: 0 is not above 0"},
      {"initial F without a catch",
       {{"# estimate_initial_equilibrium_F\n0", "# estimate_initial_equilibrium_F\n1"}},
       {},
       "error: case.dat: line 163: initial equilibrium catch biomass: 0.0 is not above 0"},
      {"M of 0", {}, {{"# M\n0.2", "# M\n0"}}, "error: case.pin: line 3: M: 0 is not above 0"},
      {"text in a list",
       {},
       {{"0 0 0 0 0", "0 0 x 0 0"}},
       "error: case.pin: line 7: rec_dev (3): 'x' is not a number"},
      {"a value too many",
       {},
       {{"0 0 0 0 0", "0 0 0 0 0 0"}},
       "error: case.pin: log_sel_annual_FISH: 10 values left, wanted 3 times a number of ages from 1 to 3"},
      {"parameter file of an older version",
       {},
       {{"Version 1.4", "Version 0.9"}},
       "error: case.pin: line 1: file version 0.9, this program reads version 1.4"},
  };
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.name);
    const RunResult run = RunCase(SmallCase().With(fault.inDat, fault.inPin));
    EXPECT_EQ(run.exitCode, model::kInputFault);
    EXPECT_FALSE(run.AnyOutput());
    EXPECT_EQ(run.log, std::string(fault.message) + "\n");
  }
}

// Cut anywhere, a file ends in a message and never in a crash; a cut inside a number may leave a shorter
// number.
TEST(InputFaults, files_cut_short_are_refused) {
  const CaseText whole = SmallCase();
  for (std::size_t tenth = 0; tenth < 10; ++tenth) {
    const RunResult dat = RunCase({whole.dat.substr(0, whole.dat.size() * tenth / 10), whole.pin});
    EXPECT_EQ(dat.exitCode, model::kInputFault) << tenth;
    EXPECT_NE(dat.log.find("error: case.dat: file ended while reading "), std::string::npos) << dat.log;
    EXPECT_FALSE(dat.AnyOutput());
    const RunResult pin = RunCase({whole.dat, whole.pin.substr(0, whole.pin.size() * tenth / 10)});
    EXPECT_EQ(pin.exitCode, model::kInputFault) << tenth;
    EXPECT_EQ(Lines(pin.log).size(), 1U) << pin.log;
  }
  const RunResult inList = RunCase({whole.dat.substr(0, whole.dat.find("  460")), whole.pin});
  EXPECT_EQ(inList.log, "error: case.dat: file ended while reading catch biomass (2003) (value 3 of 3)\n");
}

TEST(InputFaults, odd_bytes_give_one_clean_line) {
  std::string binary;
  for (int i = 0; i < 5000; ++i) binary += static_cast<char>(i % 256);
  for (const std::string& dat :
       {std::string(), binary, std::string(10'000'000, '7'), std::string(100, '\0'), std::string("\x1A")}) {
    const RunResult run = RunCase({dat, SmallCase().pin});
    EXPECT_EQ(run.exitCode, model::kInputFault);
    EXPECT_EQ(Lines(run.log).size(), 1U);
    EXPECT_LT(run.log.size(), 200U);
  }
}

// What other systems and editors do to a text file changes nothing.
TEST(InputFaults, blanks_comments_and_line_ends_do_not_matter) {
  CaseText odd = SmallCase();
  std::string dat = "\xEF\xBB\xBF";
  for (const char c : odd.dat)
    dat += c == '\n' ? std::string("\r\n") : c == ' ' ? std::string("\t ") : std::string(1, c);
  odd.dat = dat + "# " + std::string(1'000'000, 'x') + "\x1A";
  const RunResult run = RunCase(odd);
  EXPECT_EQ(run.log, "");
  EXPECT_EQ(run.std, RunCase(SmallCase()).std);
}

TEST(InputFaults, values_after_the_last_item_are_only_warned_of) {
  CaseText longer = SmallCase();
  longer.dat += "1 2 # 3\n3\n";
  const RunResult run = RunCase(longer);
  EXPECT_EQ(run.exitCode, model::kFitted);
  EXPECT_EQ(run.log, "warning: case.dat: 3 values after the last item are ignored\n");
}

}  // namespace
