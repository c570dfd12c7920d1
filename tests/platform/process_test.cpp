#include "platform/process.h"

#include <chrono>
#include <filesystem>

#include "platform/runtime_error.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

using Process = ProgramTest;

std::string output;
void Keep(std::string_view piece) { output += piece; }

TEST_F(Process, a_command_line_is_taken_apart_as_the_interpreter_would) {
  const CommandLine line = TakeApart("CMD.EXE /C /a/tarnvik.exe -ainp  b.pin -ind b.dat 2> b.log");
  EXPECT_TRUE(line.interpreted);
  EXPECT_EQ(line.words, (std::vector<std::string>{"/a/tarnvik.exe", "-ainp", "b.pin", "-ind", "b.dat"}));
  EXPECT_EQ(line.error_file, "b.log");
  EXPECT_FALSE(TakeApart("x.exe y").interpreted);
}

TEST_F(Process, output_and_errors_go_where_they_belong_and_no_shell_sees_the_words) {
  WriteBytes("say.sh", "#!/bin/sh\necho out \"$1\"\necho err >&2\n");
  std::filesystem::permissions("say.sh", std::filesystem::perms::owner_all);
  output.clear();
  EXPECT_EQ(RunConsoleProcess("CMD.EXE /C " + InFolder("say.sh") + " $HOME;ls 2> say.log", {Keep, nullptr}),
            1);
  EXPECT_EQ(output, "out $HOME;ls\n");
  EXPECT_EQ(ReadBytes("say.log"), "err\n");
}

TEST_F(Process, a_program_that_is_told_to_stop_ends_before_its_time) {
  WriteBytes("wait.sh", "#!/bin/sh\necho waiting\nexec sleep 100\n");
  std::filesystem::permissions("wait.sh", std::filesystem::perms::owner_all);
  output.clear();
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(RunConsoleProcess(InFolder("wait.sh"), {Keep, [] { return !output.empty(); }}), 1);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(50));
  EXPECT_EQ(output, "waiting\n");
}

TEST_F(Process, an_interpreted_start_always_succeeds_and_leaves_the_reason) {
  WriteBytes("plain.exe", "not a program");
  for (const char* name : {"missing.exe", "plain.exe"}) {
    EXPECT_EQ(RunConsoleProcess("CMD.EXE /C " + InFolder(name) + " 2> why.log"), 1) << name;
    EXPECT_NE(ReadBytes("why.log").find(name), std::string::npos) << name;
  }
  EXPECT_EQ(RunConsoleProcess(InFolder("missing.exe")), 0);
  EXPECT_EQ(RunConsoleProcess(""), 0);
}

TEST_F(Process, a_program_that_cannot_be_started_raises_file_not_found) {
  try {
    StartProcess("no-such-program-anywhere x");
    ADD_FAILURE();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number, kErrFileNotFound);
  }
}

}  // namespace
}  // namespace tarnvik
