// tarnvik-console as outside programs start it: arguments, streams, exit status.
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "platform/paths.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

const std::string kProgram = std::string(TARNVIK_BIN) + "/tarnvik-console";

class Program : public ProgramTest {
 protected:
  // Runs a command line of the shell in the test's folder; the program is $T. Returns the exit status.
  int Run(const std::string& line) {
    WriteBytes(InFolder("run.sh"), "T='" + kProgram + "'\n" + line + "\n");
    const int status = std::system("sh run.sh </dev/null >out 2>err");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string Out() { return ReadBytes(InFolder("out")); }
  std::string Err() { return ReadBytes(InFolder("err")); }
};

TEST_F(Program, reads_script_or_standard_input) {
  WriteBytes(InFolder("script"),
             std::string("# a\r\n\r\nstate GPYearMax\r\nget frmInput.lblCTL\r\nsta") + '\0' + "te\r\nforms");
  const std::string answers = "{\"value\":2031}\n{\"value\":\"" + InFolder("TARNVIK0228312359.ctl") +
                              "\"}\n{\"error\":\"no command sta\\u0000te\"}\n";
  EXPECT_EQ(Run("$T --app-dir . --now 2031-02-28T23:59 script"), 0) << Err();
  EXPECT_EQ(Out().substr(0, answers.size()), answers);
  const std::string from_script = Out();
  EXPECT_EQ(Run("$T --now 2031-02-28T23:59 --app-dir ./ < script"), 0);
  EXPECT_EQ(Out(), from_script);
  EXPECT_EQ(Err(), "");
}

TEST_F(Program, wrong_arguments_end_with_status_2_and_usage) {
  WriteBytes(InFolder("script"), "forms\n");
  for (const char* arguments :
       {"--nonsense", "-", "''", "missing", ".", "script script", "--now", "--now 2031-02-29T00:00 script",
        "--now 2031-2-28T00:00", "--now 2031-12-31T24:00", "--app-dir", "--app-dir missing"}) {
    EXPECT_EQ(Run(std::string("$T ") + arguments), 2) << arguments;
    EXPECT_EQ(Out(), "") << arguments;
    EXPECT_NE(Err().find("usage: tarnvik-console [--app-dir DIR]"), std::string::npos) << arguments;
  }
  EXPECT_EQ(Run("$T --help"), 0);
  for (const char* part :
       {"tarnvik-console [--app-dir DIR]", "  edit NAME ROW COL TEXT", "  answer WORD..."}) {
    EXPECT_NE(Out().find(part), std::string::npos) << part;
  }
}

TEST_F(Program, answers_come_at_once_and_a_gone_listener_ends_it_quietly) {
  EXPECT_EQ(Run("mkfifo in; $T <in >answers & exec 3>in; echo forms >&3\n"
                "n=0; while [ ! -s answers ] && [ $n -lt 200 ]; do sleep 0.05; n=$((n+1)); done\n"
                "test -s answers; seen=$?; exec 3>&-; wait; exit $seen"),
            0);
  EXPECT_EQ(Run("{ yes forms | $T; echo $? >status; } | head -n 1; cat status"), 0);
  EXPECT_NE(Out().find("]}\n0\n"), std::string::npos) << Out();
  EXPECT_EQ(Err().find("tarnvik-console"), std::string::npos) << Err();
  EXPECT_EQ(Run("echo forms | $T >/dev/full"), 1);
  EXPECT_NE(Err().find("cannot write answers"), std::string::npos);
}

TEST_F(Program, exit_ends_it_unless_the_user_cancels) {
  WriteBytes(InFolder("script"), "exit\nstate NFYear\nanswer no no\nexit\nstate NFYear\n");
  EXPECT_EQ(Run("$T --app-dir . script"), 0);
  const std::string ends = "{\"ok\":true}\n";
  EXPECT_EQ(Out().substr(Out().size() - ends.size()), ends);
  EXPECT_NE(Out().find("{\"value\":"), std::string::npos);
}

TEST_F(Program, output_of_the_model_goes_to_the_error_stream) {
  CopyExample(folder);
  std::filesystem::create_directory("tools");
  WriteBytes(InFolder("tools/tarnvik.exe"), "#!/bin/sh\necho iteration 1\n");
  std::filesystem::permissions("tools/tarnvik.exe", std::filesystem::perms::owner_all);
  WriteBytes(
      InFolder("script"),
      "menu mnuOptionsExitPromptDisable\nfile cod.ctl\nmenu mnuFileOpen\nanswer ok\nmenu mnuModelRun\n");
  EXPECT_EQ(Run("$T --app-dir tools script"), 0);
  EXPECT_EQ(Err(), "iteration 1\n");
  EXPECT_EQ(Out().find("iteration"), std::string::npos);
  EXPECT_NE(Out().find(R"({"process":{"command":"CMD.EXE /C )" + InFolder("tools/tarnvik.exe")),
            std::string::npos)
      << Out();
  EXPECT_TRUE(FileExists(InFolder("tools/TARNVIK.CFG")));
}

}  // namespace
}  // namespace tarnvik
