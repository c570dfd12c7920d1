#include "platform/process.h"

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
  EXPECT_EQ(RunConsoleProcess("CMD.EXE /C " + InFolder("say.sh") + " $HOME;ls 2> say.log", Keep), 1);
  EXPECT_EQ(output, "out $HOME;ls\n");
  EXPECT_EQ(ReadBytes("say.log"), "err\n");
}

TEST_F(Process, an_interpreted_start_always_succeeds_and_leaves_the_reason) {
  WriteBytes("plain.exe", "not a program");
  for (const char* name : {"missing.exe", "plain.exe"}) {
    EXPECT_EQ(RunConsoleProcess("CMD.EXE /C " + InFolder(name) + " 2> why.log", nullptr), 1) << name;
    EXPECT_NE(ReadBytes("why.log").find(name), std::string::npos) << name;
  }
  EXPECT_EQ(RunConsoleProcess(InFolder("missing.exe"), nullptr), 0);
  EXPECT_EQ(RunConsoleProcess("", nullptr), 0);
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
