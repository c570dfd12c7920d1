#include "platform/files.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <vector>

#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

using Files = ProgramTest;

int ErrorOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return error.Number;
  }
  return 0;
}

TEST_F(Files, every_line_end_ends_a_line) {
  const struct {
    const char* bytes;
    std::vector<std::string> lines;
  } rows[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\nb\r\n", {"a", "b"}},
      {"a\nb", {"a", "b"}},
      {"a\rb\r", {"a", "b"}},
      {"a\n\nb", {"a", "", "b"}},
      {"a\r\r\nb", {"a", "", "b"}},
      {"\n", {""}},
  };
  for (const auto& row : rows) {
    WriteBytes("in.txt", row.bytes);
    InputFile file;
    file.Open("in.txt");
    std::vector<std::string> lines;
    while (!file.AtEnd()) lines.emplace_back(file.ReadLine());
    EXPECT_EQ(lines, row.lines) << row.bytes;
    EXPECT_EQ(ErrorOf([&] { file.ReadLine(); }), kErrPastEnd);
  }
}

TEST_F(Files, what_cannot_be_read_or_written_raises_its_error) {
  InputFile in;
  EXPECT_EQ(ErrorOf([&] { in.Open("missing.txt"); }), kErrFileNotFound);
  EXPECT_EQ(ErrorOf([&] { in.Open(folder); }), kErrPathAccess);
  EXPECT_EQ(ErrorOf([&] { in.Open("/dev/zero"); }), kErrPathAccess);
  EXPECT_EQ(ErrorOf([&] { in.ReadLine(); }), kErrBadFileName);
  OutputFile out;
  EXPECT_EQ(ErrorOf([&] { out.Open(folder); }), kErrPathAccess);
  EXPECT_EQ(ErrorOf([&] { out.Open("missing/out.txt"); }), kErrPathNotFound);
  EXPECT_EQ(ErrorOf([&] { out.Open(""); }), kErrPathAccess);
  out.Open("/dev/full");
  out.PrintLine("text");
  EXPECT_EQ(ErrorOf([&] { out.Close(); }), kErrDiskFull);
}

TEST_F(Files, output_ends_lines_with_cr_lf_and_keeps_what_was_printed_before_an_error) {
  {
    OutputFile file;
    file.Open("part.txt");
    file.Print("1 ");
    file.PrintLine("2");
  }
  EXPECT_EQ(ReadBytes("part.txt"), "1 2\r\n");
}

TEST_F(Files, a_name_is_found_ignoring_case_when_one_entry_matches) {
  WriteBytes("TARNVIK.REP", "x");
  EXPECT_TRUE(FileExists(InFolder("tarnvik.rep")));
  EXPECT_FALSE(FileExistsAsWritten("tarnvik.rep"));
  EXPECT_EQ(ExistingPath("tarnvik.rep"), "TARNVIK.REP");
  WriteBytes("Tarnvik.Rep", "y");
  EXPECT_FALSE(FileExists("tarnvik.rep"));
  EXPECT_TRUE(FileExists("TARNVIK.REP"));
  EXPECT_FALSE(FileExists(folder));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists(std::string("a\0b", 3)));
}

TEST_F(Files, a_copy_keeps_the_time_of_writing) {
  WriteBytes("a", "1");
  WriteBytes("b", "2");
  const auto hour_ago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time("a", hour_ago);
  CopyFileKeepingTime("a", "c");
  EXPECT_EQ(ReadBytes("c"), "1");
  EXPECT_FALSE(WrittenNotBefore("c", "b"));
  EXPECT_TRUE(WrittenNotBefore("c", "a"));
  EXPECT_TRUE(WrittenNotBefore("b", "c"));
  EXPECT_EQ(ErrorOf([&] { CopyFileKeepingTime("a", "missing/c"); }), kErrPathNotFound);
  EXPECT_EQ(ErrorOf([&] { CopyFileKeepingTime("missing", "c"); }), kErrFileNotFound);
}

}  // namespace
}  // namespace tarnvik
