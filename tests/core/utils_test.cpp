#include "core/utils.h"

#include <vector>

#include "core/globals.h"
#include "platform/paths.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

using Utils = ProgramTest;

std::vector<std::string> LogicalLines(const std::string& bytes, int count) {
  WriteBytes("lines.txt", bytes);
  File1.Open("lines.txt");
  std::vector<std::string> lines;
  for (int i = 0; i < count; ++i) lines.emplace_back(ReadDataLine());
  File1.Close();
  return lines;
}

TEST_F(Utils, data_lines_lose_their_comments) {
  const struct {
    const char* bytes;
    std::vector<std::string> lines;
  } rows[] = {
      {"1965 2008 # years\r\n", {"1965 2008 "}},
      {"  1234 # c\n", {"  123"}},  // the cut is counted on the trimmed text
      {"# a\r\n#b\r\n7\r\n", {"7"}},
      {"   # only a comment\r\n5", {"", "5"}},
      {"a\t\"b\"\r\n", {"a  b "}},
      {"1\r\n\r\n2", {"1", "", "2"}},
      {"1", {"1", "", "", ""}},
      {"# nothing but comments\n# c", {"", ""}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(LogicalLines(row.bytes, static_cast<int>(row.lines.size())), row.lines);
}

TEST_F(Utils, names_are_derived_from_paths_and_the_clock) {
  EXPECT_EQ(DefaultRootName(), "TARNVIK1116260105");
  EXPECT_EQ(CurrentYear(), 2026);
  EXPECT_EQ(DirOfPath("c:\\runs\\a.ctl"), "c:\\runs\\");
  EXPECT_EQ(DirOfPath(InFolder("a.ctl")), folder + kPathSeparator);
  EXPECT_EQ(DirOfPath("model.ctl"), "");
  EXPECT_EQ(WithEnding("a.b.ctl", "rep"), "a.b.rep");
  EXPECT_EQ(LogPathOf("case.ctl"), "case.log");
  EXPECT_EQ(LogPathOf("case.ctlx"), "case.clog");
}

}  // namespace
}  // namespace tarnvik
