#include "modelrun/runmodel.h"

#include <filesystem>

#include "core/frmmain.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "modelrun/modeloutput.h"
#include "platform/host.h"
#include "platform/paths.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "support/test_program.h"

namespace fs = std::filesystem;

namespace tarnvik {
namespace {

// The example case, opened with full paths from the test's folder, which holds the real estimation program.
struct RunModelTest : ProgramTest {
  void SetUp() override {
    ProgramTest::SetUp();
    fs::create_symlink(fs::path(TARNVIK_BIN) / "tarnvik.exe", "tarnvik.exe");
    host.files = {CopyExample(folder)};
    OpenControlFile();
    ShowPath(frmInput->lblCTL, InFolder("cod.ctl"));
    ShowPath(frmInput->lblFile(0), InFolder("cod.pin"));
    ShowPath(frmInput->lblFile(1), InFolder("cod.dat"));
    ASSERT_EQ(PinFileOpen, -1);
    host.TakeTexts();
  }
  void Run() {
    host.answers = {Answer::Ok};
    frmMain->mnuModelRun.UserClick();
  }
  // A model that leaves these files in the case's folder.
  void ModelLeaves(std::vector<std::string> names) {
    host.process = [this, names](const std::string&) {
      for (const std::string& name : names) WriteBytes(InFolder(name), "left by the model\n");
      return 1;
    };
  }
  static constexpr const char* kQuestion =
      "Before Running Tarnvik - ||Input Data File and Parameters File Will be Rewritten from Input "
      "Forms||Click OK to "
      "Run Tarnvik or Cancel to |Terminate Run Before Overwriting Existing Files";
};

TEST_F(RunModelTest, the_real_model_fits_the_example_and_its_results_are_scanned) {
  frmMain->mnuViewLog.SetEnabled(false);
  Run();
  EXPECT_EQ(host.TakeTexts(), (std::vector<std::string>{kQuestion, "Input Files Have Been Saved",
                                                        "Tarnvik - Model Run Completed"}));
  EXPECT_EQ(host.commands, (std::vector<std::string>{"CMD.EXE /C " + InFolder("tarnvik.exe") + " -ainp " +
                                                     InFolder("cod.pin") + " -ind " + InFolder("cod.dat") +
                                                     " 2> " + InFolder("cod.log")}));
  EXPECT_EQ(ModelRunOK, -1);
  EXPECT_EQ(StdFileRead, -1);
  EXPECT_EQ(OutputFormsOpen, -1);
  EXPECT_EQ(ReadBytes("cod.log"), "");
  EXPECT_EQ(ReadBytes("cod.rep"), ReadBytes("TARNVIK.REP"));
  EXPECT_TRUE(frmMain->mnuModelScan.Enabled());
  EXPECT_FALSE(frmMain->mnuViewLog.Enabled());
  EXPECT_EQ(frmMain->StatusBar1.Panel(2), "");
  EXPECT_EQ(MousePointer(), Pointer::Default);
  EXPECT_NEAR(std::stod(frmOutputData->lblSumm(10).Caption()), 224.999, 0.01);
  EXPECT_NEAR(std::stod(frmOutputData->MSFlexGrid(5).TextMatrix(1, 3)), 136345, 136);
  EXPECT_EQ(frmOutputData->MSFlexGrid(5).TextMatrix(52, 0), "2014");
  EXPECT_NE(frmOutputData->MSFlexGrid(5).TextMatrix(52, 4), "N/A");

  // Opening the case again finds the results current.
  host.files = {InFolder("cod.ctl")};
  OpenControlFile();
  EXPECT_FALSE(frmOutputData.Loaded());
  EXPECT_TRUE(frmMain->mnuModelScan.Enabled());
  frmMain->mnuModelScan.UserClick();
  EXPECT_EQ(StdFileRead, -1);
}

TEST_F(RunModelTest, cancel_changes_nothing) {
  const std::string before = ReadBytes("cod.dat");
  WriteBytes("TARNVIK.REP", "old");
  host.answers = {Answer::Cancel};
  RunModel();
  EXPECT_EQ(
      host.TakeTexts(),
      (std::vector<std::string>{
          kQuestion, "Run is Terminated|Use Save Individual Files on Menu |to Save Files Under New Names"}));
  EXPECT_EQ(ReadBytes("cod.dat"), before);
  EXPECT_TRUE(FileExists("TARNVIK.REP"));
  EXPECT_TRUE(host.commands.empty());
}

TEST_F(RunModelTest, a_blank_in_the_control_files_path_is_refused_before_anything_is_deleted) {
  WriteBytes("TARNVIK.REP", "old");
  ShowPath(frmInput->lblCTL, InFolder("north sea.ctl"));
  Run();
  EXPECT_EQ(
      host.TakeTexts().back(),
      "Input Files May Not be in a Directory That Contains Embedded Spaces|User Must Save Input Files in a "
      "Different Directory Before Running Model");
  EXPECT_TRUE(FileExists("TARNVIK.REP"));
  EXPECT_EQ(PathHasNoSpaces("  a.ctl "), "True");
}

TEST_F(RunModelTest, old_output_is_gone_before_the_model_starts) {
  for (const char* name :
       {"TARNVIK.REP", "ADMODEL.HES", "VARIANCE", "cod.rep", "cod.std", "cod.par", "cod.log"}) {
    WriteBytes(name, "old");
  }
  WriteBytes("other.rep", "not ours");
  ModelLeaves({});
  Run();
  EXPECT_EQ(host.TakeTexts().back(), "Error Running Basic Estimation Model|Report File is Unavailable");
  for (const char* name :
       {"TARNVIK.REP", "ADMODEL.HES", "VARIANCE", "cod.rep", "cod.std", "cod.par", "cod.log"}) {
    EXPECT_FALSE(FileExists(name)) << name;
  }
  EXPECT_TRUE(FileExists("other.rep"));
  EXPECT_EQ(ModelRunOK, 0);
}

TEST_F(RunModelTest, what_the_model_leaves_decides_the_end) {
  const struct {
    std::vector<std::string> left;
    const char* message;
    int run_ok;
  } rows[] = {
      {{"TARNVIK.REP", "TARNVIK.STD"},
       "Error Running Basic Estimation Model|Output Parameter File is Unavailable",
       0},
      {{"TARNVIK.STD", "TARNVIK.PAR"}, "Error Running Basic Estimation Model|Report File is Unavailable", 0},
      {{"TARNVIK.REP", "TARNVIK.PAR"}, "Output Files Not Current.|Please Run Model Before Proceeding.", -1},
  };
  for (const auto& row : rows) {
    ModelLeaves(row.left);
    Run();
    EXPECT_EQ(host.TakeTexts().back(), row.message);
    EXPECT_EQ(ModelRunOK, row.run_ok);
  }
  EXPECT_EQ(ReadBytes("cod.std"), "Hessian matrix does not appear to be positive definite\r\n");
}

TEST_F(RunModelTest, a_model_that_cannot_run_leaves_its_reason_in_the_log) {
  fs::remove("tarnvik.exe");
  Run();
  EXPECT_EQ(host.TakeTexts().back(), "Error Running Basic Estimation Model|Report File is Unavailable");
  EXPECT_NE(ReadBytes("cod.log").find("tarnvik.exe"), std::string::npos);
  WriteBytes("tarnvik.exe", "#!/bin/sh\nkill -9 $$\n");
  fs::permissions("tarnvik.exe", fs::perms::owner_all);
  Run();
  EXPECT_EQ(host.TakeTexts().back(), "Error Running Basic Estimation Model|Report File is Unavailable");
  host.process = [](const std::string&) { return 0; };
  Run();
  EXPECT_EQ(host.TakeTexts().back(), "Process Creation Failed");
  EXPECT_EQ(MousePointer(), Pointer::Default);
  EXPECT_EQ(frmMain->StatusBar1.Panel(2), "");
}

TEST_F(RunModelTest, a_copy_that_fails_ends_the_run_and_half_a_report_ends_the_scan) {
  ModelLeaves({"TARNVIK.REP", "TARNVIK.STD", "TARNVIK.PAR"});
  fs::create_directory("cod.rep");
  Run();
  EXPECT_EQ(host.TakeTexts().back().substr(0, 20), "Error Running Model|");
  EXPECT_EQ(ModelRunOK, 0);
  fs::remove("cod.rep");
  host.process = [this](const std::string&) {
    WriteBytes(InFolder("TARNVIK.REP"), "Version 1.4\nEstimated numbers of fish at age\n1 2 3\n");
    for (const char* name : {"TARNVIK.STD", "TARNVIK.PAR"}) WriteBytes(InFolder(name), "");
    return 1;
  };
  Run();
  EXPECT_EQ(host.TakeTexts().back().substr(0, 29), "Error Scanning in Report File");
  EXPECT_EQ(OutputFormsOpen, 0);
  EXPECT_FALSE(frmOutputData.Loaded());
  EXPECT_FALSE(frmSTD.Loaded());
}

TEST_F(RunModelTest, a_control_file_named_like_the_model_keeps_its_results_beside) {
  ShowPath(frmInput->lblCTL, InFolder("TARNVIK.ctl"));
  ModelLeaves({"TARNVIK.REP", "TARNVIK.STD", "TARNVIK.PAR"});
  Run();
  EXPECT_EQ(ModelRunOK, -1);
  EXPECT_EQ(ReportPath, InFolder("TARNVIK.rep"));
}

}  // namespace
}  // namespace tarnvik
