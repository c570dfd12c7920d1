// The list of indices that scanvpasurvey.exe writes.

#include <gtest/gtest.h>

#include "programs.h"
#include "vpa_folder.h"

#include <sstream>

namespace {

TEST(SurveyList, has_one_line_for_each_age_of_each_fleet) {
  const VpaFolder folder;
  folder.Write("vpa_survey_error.log", "of an old run");
  folder.Change("tun.dat", "1 1 0.5 1\n", "1 1 0 0\n");
  const Outcome run = folder.Scan();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.log, "");
  EXPECT_EQ(
      folder.Text("vpa_survey_list.txt"),
      "5\r\n1 Trawl__spring_age0 0 0 1 0\r\n2 Trawl__spring_age1 1 1 1 0\r\n3 Trawl__spring_age2 2 2 1 0\r\n"
      "4 Trawl__spring_age3 3 3 1 0\r\n5 Pots_age3 3 3 0 0\r\n");
  EXPECT_EQ(folder.Text("vpa_survey_error.log"), "");
}

TEST(SurveyList, says_so_when_there_is_no_fleet) {
  for (const char* how : {"no file", "no fleet"}) {
    SCOPED_TRACE(how);
    const VpaFolder folder;
    if (std::string(how) == "no file")
      folder.Change("tiny.dat", "tun.dat", "-");
    else
      folder.Write("tun.dat", "Tuning data\n100\n# nothing yet\n");
    EXPECT_EQ(folder.Scan().status, 0);
    EXPECT_EQ(folder.Text("vpa_survey_list.txt"), "*** Index Data is Unavailable ***\r\n");
  }
}

TEST(SurveyList, is_not_there_after_a_fault_which_stands_in_the_log) {
  const VpaFolder folder;
  folder.Write("vpa_survey_list.txt", "of an old run");
  folder.Change("tun.dat", "\nPots\n2001", "\nPots\n20O1");
  const Outcome run = folder.Scan();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.log, "tun.dat: line 15: first and last year: '20O1' is not a number\n");
  EXPECT_EQ(folder.Text("vpa_survey_error.log"),
            (folder.path / run.log).string().erase(folder.path.string().size() + run.log.size()) + "\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder.path / "vpa_survey_list.txt"));
}

// The program that starts it does not quote a path: what the system has parted at blanks is one path again.
TEST(SurveyList, path_with_blanks_comes_in_pieces) {
  const VpaFolder folder;
  std::filesystem::rename(folder.path / "tiny.dat", folder.path / "my tiny stock.dat");
  std::ostringstream progress, log;
  EXPECT_EQ(vpa::RunScanVpaSurvey({(folder.path / "my").string(), "tiny", "stock.dat"}, progress, log), 0);
  EXPECT_NE(folder.Text("vpa_survey_list.txt"), "");
}

}  // namespace
