#include <filesystem>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/settings.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/paths.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

struct Startup : ProgramTest {
  void Restart() {
    EndProgram();
    StartProgram(host);
  }
};

TEST_F(Startup, names_the_case_by_the_clock_and_opens_nothing) {
  const std::string root = InFolder("TARNVIK1116260105");
  EXPECT_EQ(frmInput->lblCTL.Caption(), root + ".ctl");
  EXPECT_EQ(frmInput->lblFile(0).Caption(), root + ".pin");
  EXPECT_EQ(frmInput->lblFile(1).Caption(), root + ".dat");
  EXPECT_EQ(frmInput->lblFile(1).ForeColor(), kBlue);
  EXPECT_EQ(DatFilePath, root + ".dat");
  EXPECT_EQ(DatFileOpen, 0);
  EXPECT_EQ(LoadingForm, 0);
  EXPECT_EQ(ExitPrompt, -1);
  EXPECT_EQ(FrontForm(), &frmInput);
  EXPECT_FALSE(frmMain->mnuEdit.Visible());
  EXPECT_FALSE(frmMain->mnuModelScan.Enabled());
  EXPECT_FALSE(frmMain->mnuViewLog.Enabled());
  EXPECT_TRUE(frmMain->mnuFileSaveAll.Enabled());
  EXPECT_TRUE(host.TakeTexts().empty());
}

TEST_F(Startup, settings_are_read_and_written_back) {
  const std::string viewer = InFolder("viewer.exe");
  WriteBytes(viewer, "");
  const std::string head = "[General Parameter Ranges]\r\nYears: ";
  const std::string rest = "[File Viewer]\r\n" + viewer + "\r\n[Save on Exit]\r\nF\r\n";
  WriteBytes("TARNVIK.CFG", head + "1950 2000\r\nAges: 20\r\nSurveys: 5\r\nnoise\r\n" + rest);
  Restart();
  EXPECT_EQ(GPYearMin, 1950);
  EXPECT_EQ(GPYearMax, 2000);
  EXPECT_EQ(GPAgeMax, 20);
  EXPECT_EQ(GPSurveyMax, 5);
  EXPECT_EQ(FileViewerPath, viewer);
  EXPECT_EQ(ExitPrompt, 0);
  EXPECT_TRUE(frmMain->mnuOptionsExitPromptDisable.Checked());
  EXPECT_EQ(frmInput->cmbNFYear.ListCount(), 51);
  // The maximum year is written as 0 while it follows the calendar, whatever was read.
  frmMain->mnuOptionsExitPromptEnable.UserClick();
  EXPECT_EQ(ReadBytes("TARNVIK.CFG"), head + "1950 0\r\nAges: 20\r\nSurveys: 5\r\n[File Viewer]\r\n" +
                                          viewer + "\r\n[Save on Exit]\r\nT\r\n");
  std::filesystem::remove(viewer);
  host.now.year = 2031;
  Restart();
  EXPECT_EQ(GPYearMax, 2031);
  EXPECT_EQ(FileViewerPath, "");
  WriteSettingsFile();
  EXPECT_NE(ReadBytes("TARNVIK.CFG").find("None Selected"), std::string::npos);
}

TEST_F(Startup, a_damaged_settings_file_does_not_stop_the_program) {
  for (const char* bytes :
       {"", "[General Parameter Ranges]", "[General Parameter Ranges]\nYears: 99999 5\n",
        "[General Parameter Ranges]\nYears: -5 -9\nAges: 0\nSurveys: -1\n", "[File Viewer]",
        "\x01\x02\xff\xfe[", "[General Parameter Ranges]\nYears: 3000 0\nAges: 5\nSurveys: 2"}) {
    WriteBytes("TARNVIK.CFG", bytes);
    Restart();
    EXPECT_TRUE(ProgramRunning());
    EXPECT_GE(frmInput->cmbNFYear.ListCount(), 1) << bytes;
    EXPECT_GE(frmInput->cmbNAges.ListCount(), 1) << bytes;
    EXPECT_TRUE(host.TakeTexts().empty()) << bytes;
  }
}

struct Closing : Startup {
  void SetUp() override {
    Startup::SetUp();
    DatFileOpen = PinFileOpen = kTrue;
    frmPin->SSTab1.SetTab(1);
  }
};

TEST_F(Closing, code_never_asks_and_resets_the_case) {
  UnloadForm(frmInput);
  EXPECT_TRUE(host.TakeTexts().empty());
  EXPECT_FALSE(frmInput.Loaded());
  EXPECT_EQ(DatFileOpen, 0);
  EXPECT_EQ(DatFilePath, "");
  EXPECT_FALSE(frmMain->mnuFileSaveAll.Enabled());
  EXPECT_FALSE(frmMain->mnuModelRun.Enabled());
}

TEST_F(Closing, cancel_keeps_the_form_and_no_lets_it_go) {
  host.answers = {Answer::Cancel};
  EXPECT_FALSE(UnloadForm(frmInput, UnloadMode::ByUser));
  EXPECT_TRUE(frmInput.Loaded());
  EXPECT_EQ(DatFileOpen, -1);
  host.answers = {Answer::No};
  EXPECT_TRUE(UnloadForm(frmPin, UnloadMode::ByUser));
  EXPECT_FALSE(frmPin.Loaded());
  EXPECT_EQ(PinFileOpen, 0);
  EXPECT_EQ(frmInput->lblFile(0).Caption(), "None Selected");
  EXPECT_EQ(frmInput->lblFile(0).ForeColor(), kRed);
  EXPECT_EQ(
      host.TakeTexts(),
      (std::vector<std::string>{
          "Save Input Files Now?||Any Windows With Plots Will Be Closed.|To Cancel Action, Click Cancel.",
          "Save Parameter Input File Now?||Any Windows With Plots Will Be Closed.|To Cancel Action, Click "
          "Cancel."}));
}

TEST_F(Closing, yes_with_invalid_data_keeps_the_form_and_writes_nothing) {
  host.answers = {Answer::Yes};
  EXPECT_FALSE(UnloadForm(frmInput, UnloadMode::ByUser));
  EXPECT_TRUE(frmInput.Loaded());
  EXPECT_TRUE(host.dialogs.empty());
  EXPECT_EQ(host.TakeTexts().size(), 2u);  // the question and the first fault
}

TEST_F(Closing, exit_asks_each_form_once_and_a_cancel_loses_nothing) {
  host.answers = {Answer::No, Answer::Cancel};
  frmMain->mnuFileExit.UserClick();
  EXPECT_TRUE(ProgramRunning());
  EXPECT_TRUE(frmInput.Loaded());
  EXPECT_TRUE(frmPin.Loaded());
  EXPECT_EQ(DatFileOpen, -1);
  host.TakeTexts();
  host.answers = {Answer::No, Answer::No};
  frmMain->mnuFileExit.UserClick();
  EXPECT_EQ(host.TakeTexts().size(), 2u);
  EXPECT_FALSE(ProgramRunning());
  EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(Closing, without_the_prompt_exit_asks_nothing) {
  frmMain->mnuOptionsExitPromptDisable.UserClick();
  frmMain->mnuFileExit.UserClick();
  EXPECT_TRUE(host.TakeTexts().empty());
  EXPECT_FALSE(ProgramRunning());
}

TEST_F(Startup, create_entirely_new_case_asks_only_when_a_file_is_open) {
  frmMain->mnuFileCreateAll.UserClick();
  EXPECT_TRUE(host.TakeTexts().empty());
  DatFileOpen = kTrue;
  host.answers = {Answer::Cancel};
  frmMain->mnuFileCreateAll.UserClick();
  EXPECT_EQ(DatFileOpen, -1);
  OutputFormsOpen = kTrue;
  host.answers = {Answer::Cancel};
  frmMain->mnuFileCreateAll.UserClick();
  EXPECT_EQ(host.TakeTexts(),
            (std::vector<std::string>{
                "Save All Input Files Now?",
                "Save All Input Files Now?||Any Windows With Plots Will Be Closed.|To Cancel Action, "
                "Click Cancel."}));
  OutputFormsOpen = kFalse;
}

TEST_F(Startup, settings_go_to_the_user_where_the_programs_folder_cannot_be_written) {
  std::filesystem::create_directory("TARNVIK.CFG");  // stands in the way of the file
  frmMain->mnuOptionsExitPromptDisable.UserClick();
  EXPECT_TRUE(host.TakeTexts().empty());
  EXPECT_TRUE(FileExists("config/tarnvik/TARNVIK.CFG"));
  Restart();
  EXPECT_EQ(ExitPrompt, 0);
}

TEST_F(Startup, plots_want_scanned_results_and_the_manual_wants_its_file) {
  frmMain->mnuViewPlotCollect.SetEnabled(true);
  OutputFormsOpen = kTrue;
  frmMain->mnuViewPlotCollect.UserClick();
  OutputFormsOpen = kFalse;
  frmMain->mnuHelpRefMan.UserClick();
  EXPECT_EQ(host.TakeTexts(),
            (std::vector<std::string>{"Please Scan In Model Results Before Proceding with Plot Collection",
                                      "Tarnvik Reference Manual tarnvik.pdf is Not Available"}));
  WriteBytes("tarnvik.pdf", "%PDF");
  frmMain->mnuHelpRefMan.UserClick();
  EXPECT_EQ(host.opened, (std::vector<std::string>{InFolder("tarnvik.pdf")}));
}

}  // namespace
}  // namespace tarnvik
