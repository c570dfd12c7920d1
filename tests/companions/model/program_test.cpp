// Exit codes, files and messages of whole runs; the last tests start the executable itself.

#include "program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "case_runs.h"
#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace fs = std::filesystem;

namespace {

TEST(Program, warnings_and_notes_come_with_a_fit) {
  const Change none = {"# nboot\n0", "# nboot\n0"};
  struct Told {
    Change inDat;
    Change inPin;
    const char* log;
  };
  const Change samePin = {"# M\n0.2", "# M\n0.2"};
  const Told cases[] = {
      {{"# nboot\n0", "# nboot\n100"},
       samePin,
       "note: nboot = 100: bootstrap replicates are not run; the single fit and its standard deviations are "
       "reported\n"},
      {{"# CV of catch biomass deviations\n0.1", "# CV of catch biomass deviations\n0"},
       samePin,
       "warning: the coefficient of variation of catch biomass deviations is 0; 0.01 is used\n"},
      {none,
       {"# log_beta_FISH\n0.0", "# log_beta_FISH\n-60"},
       "warning: initial value -60 of log_beta_FISH moved inside its bounds -4 to 2.5\n"},
      {{"2001 2003 2001 2002", "2001 2003 2002 2002"},
       {"0 0 0 0 0", "0 0"},
       "note: the initial age structure is that of an unfished stock, since recyr is after styr and initial "
       "F is not estimated\n"}};
  for (const Told& told : cases) {
    const RunResult run = RunCase(SmallCase().With({told.inDat}, {told.inPin}));
    EXPECT_EQ(run.exitCode, model::kFitted);
    EXPECT_EQ(run.log, told.log);
  }
}

TEST(Program, with_nothing_to_estimate_reports_the_start_values) {
  std::string fixed = "# phases\n";
  for (int i = 0; i < 20; ++i) fixed += "-1\n";
  const RunResult run = RunCase(SmallCase().With({{kSmallPhases, fixed}}));
  EXPECT_EQ(run.exitCode, model::kFitted);
  EXPECT_EQ(run.log, "note: nothing is estimated; no standard deviations\n");
  EXPECT_EQ(run.std, "");
  EXPECT_NE(run.rep.find("Converged\n"), std::string::npos);
  EXPECT_NE(run.par.find("# Number of parameters = 0 "), std::string::npos);
  EXPECT_NE(run.par.find("# mean_log_rec:\n 7.5\n"), std::string::npos);
}

// Phase 0 counts as 1, and a negative one is like a flag of 0.
TEST(Program, phases_decide_what_is_estimated) {
  const RunResult run = RunCase(SmallCase().With(
      {{kSmallPhases,
        "# phases\n-1\n0\n-7\n0\n0\n-1\n-1\n-1\n9\n9\n-1\n-1\n-1\n-1\n-1\n-1\n-1\n-1\n-1\n-1\n"}}));
  EXPECT_EQ(run.exitCode, model::kFitted);
  EXPECT_NE(run.progress.find("phase  1  parameters    5 "), std::string::npos) << run.progress;
  EXPECT_NE(run.progress.find("phase  9  parameters    7 "), std::string::npos) << run.progress;
  EXPECT_EQ(run.std.find("rec_dev"), std::string::npos);
}

TEST(Program, start_that_gives_no_number_ends_without_files) {
  for (const char* start : {"# mean_log_rec\n1e308", "# mean_log_rec\n-1e308"}) {
    const RunResult run = RunCase(SmallCase().With({}, {{"# mean_log_rec\n7.5", start}}));
    EXPECT_EQ(run.exitCode, model::kNotFinite);
    EXPECT_EQ(run.log,
              "error: the objective function is not finite at the initial values; check the initial "
              "parameter values\n");
    EXPECT_FALSE(run.AnyOutput());
  }
}

TEST(Program, fit_that_ends_early_says_so) {
  const model::MinimiserLimits short_ = {1e-6, 0, 3};
  const RunResult run = RunCase(CodCase(), {short_, short_});
  EXPECT_EQ(run.exitCode, model::kNotConverged);
  EXPECT_NE(run.log.find("warning: not converged, max gradient "), std::string::npos) << run.log;
  EXPECT_NE(run.log.find("; results are not reliable\n"), std::string::npos);
  EXPECT_NE(run.rep.find("NOT CONVERGED\n"), std::string::npos);
  EXPECT_FALSE(run.par.empty());
}

// Far from a minimum the Hessian may have any sign.
TEST(Program, hessian_that_is_not_positive_definite_leaves_no_deviations) {
  const model::MinimiserLimits none = {1e-6, 0, 1};
  const RunResult run =
      RunCase(SmallCase().With({}, {{"# mean_log_rec\n7.5", "# mean_log_rec\n3"}}), {none, none});
  EXPECT_NE(run.log.find("warning: Hessian matrix is not positive definite; no standard deviations\n"),
            std::string::npos)
      << run.log;
  EXPECT_EQ(run.std, "");
  EXPECT_FALSE(run.rep.empty());
}

// The spawning weight has no part in the fit, which so converges.
TEST(Program, quantity_that_overflows_leaves_no_deviations_and_zeros_in_the_report) {
  const RunResult run = RunCase(SmallCase().With({{"0.3  0.8  1.5  \n# Fraction of Z Prior to Spawning",
                                                   "0.3  1e308  1.5  \n# Fraction of Z Prior to Spawning"}}));
  EXPECT_EQ(run.exitCode, model::kNoDeviations);
  EXPECT_EQ(run.log, "warning: Hessian matrix is not positive definite; no standard deviations\n");
  EXPECT_EQ(run.std, "");
  const std::string title = "Spawning biomass (mt) by year\n 2001 2002 2003\n";
  EXPECT_EQ(Words(run.rep.substr(run.rep.find(title) + title.size())).at(2), "0");
}

TEST(Program, files_that_cannot_be_written_are_named) {
  for (const char* blocked : {"TARNVIK.REP", "TARNVIK.PAR~", "TARNVIK.REP~"}) {
    SCOPED_TRACE(blocked);
    const TemporaryFolder folder;
    WriteText(folder.path / "a.dat", SmallCase().dat);
    WriteText(folder.path / "a.pin", SmallCase().pin);
    fs::create_directories(folder.path / blocked / "inside");
    std::ostringstream progress, log;
    const auto code = model::RunProgram(
        {"-ind", (folder.path / "a.dat").string(), "-ainp", (folder.path / "a.pin").string()},
        {folder.path, {}}, {progress, log});
    EXPECT_EQ(code, model::kCannotWrite);
    EXPECT_EQ(log.str().rfind("error: cannot write " + std::string(blocked).substr(0, 11) + ": ", 0), 0U)
        << log.str();
    EXPECT_FALSE(fs::is_regular_file(folder.path / "TARNVIK.REP"));
    EXPECT_EQ(fs::exists(folder.path / "TARNVIK.PAR"), std::string(blocked) == "TARNVIK.REP~");
  }
}

// ---- The executable ----

int Start(const std::string& arguments) {
  const int status = std::system(("\"" TARNVIK_EXE "\" " + arguments + " > out.txt 2> err.txt").c_str());
#ifdef _WIN32
  return status;
#else
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
}

// The executable writes into the current folder, which must be back where it was for the other tests.
class InOwnFolder : public ::testing::Test {
 protected:
  InOwnFolder() { fs::current_path(folder_.path); }
  ~InOwnFolder() override { fs::current_path(before_); }

 private:
  const fs::path before_ = fs::current_path();
  const TemporaryFolder folder_;
};

TEST_F(InOwnFolder, wrong_command_lines_are_refused) {
  WriteText("x.dat", SmallCase().dat);
  for (const char* arguments : {"", "-ainp x.pin", "-ind x.dat", "-ainp x.pin -ainp x.dat",
                                "-ainp x.pin -ind x.dat more", "x.pin x.dat"}) {
    WriteText("TARNVIK.REP", "of an old run");
    EXPECT_EQ(Start(arguments), model::kUsage) << arguments;
    EXPECT_EQ(ReadText("err.txt"), "error: usage: tarnvik.exe -ainp <parameter file> -ind <data file>\n");
    EXPECT_FALSE(fs::exists("TARNVIK.REP"));
  }
  EXPECT_EQ(Start("-ainp x.pin -ind gone.dat"), model::kInputFault);
  EXPECT_EQ(ReadText("err.txt"), "error: gone.dat: cannot open file\n");
  EXPECT_EQ(Start("-ainp . -ind x.dat"), model::kInputFault);
  EXPECT_EQ(ReadText("err.txt"), "error: .: cannot open file\n");
}

TEST_F(InOwnFolder, clean_run_writes_three_files_in_order_and_nothing_else) {
  WriteText("cod.dat", CodCase().dat);
  WriteText("cod.pin", CodCase().pin);
  ASSERT_EQ(Start("-ainp cod.pin -ind cod.dat"), model::kFitted);
  EXPECT_EQ(ReadText("err.txt"), "");
  const std::vector<std::string> progress = Lines(ReadText("out.txt"));
  ASSERT_EQ(progress.size(), 8U);
  EXPECT_EQ(progress[0], "Tarnvik 1.4 estimation program");
  EXPECT_EQ(progress[1], "data cod.dat: 1963-2014, 6 ages, 2 surveys, 4 selectivity periods");
  EXPECT_EQ(progress[2].rfind("phase  1  parameters    3  evaluations ", 0), 0U) << progress[2];

  int files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(".")) ++files;
  EXPECT_EQ(files, 7);  // two inputs, three outputs, two streams
  EXPECT_LE(fs::last_write_time("TARNVIK.PAR"), fs::last_write_time("TARNVIK.STD"));
  EXPECT_LE(fs::last_write_time("TARNVIK.STD"), fs::last_write_time("TARNVIK.REP"));
  const std::vector<std::string> report = Lines(ReadText("TARNVIK.REP"));
  EXPECT_EQ(report[report.size() - 2], "data file cod.dat");
  EXPECT_EQ(report.back(), "parameter file cod.pin");
}

}  // namespace
