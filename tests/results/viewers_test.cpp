#include "results/viewers.h"

#include "core/globals.h"
#include "platform/paths.h"
#include "results/frmview.h"
#include "results/frmviewopt.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

using Texts = std::vector<std::string>;

struct GridForm : Form {
  GridForm() : Form("frmGrid", "") {}
  Grid grid{this, "grid"};
};
FormOf<GridForm> frmGrid{"frmGrid"};

class Viewers : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ReportPath = InFolder("cod.rep");
    StdPath = InFolder("cod.std");
    ParPath = InFolder("cod.par");
    CtlFilePath = InFolder("cod.ctl");
    FileViewerPath = "";
  }
  void ShowGrid() {
    frmGrid->grid.Resize(4, 3);
    for (int r = 0; r < 4; ++r) {
      for (int c = 0; c < 3; ++c) frmGrid->grid.SetTextMatrix(r, c, std::to_string(10 * r + c));
    }
    ActiveGrid = &frmGrid->grid;
  }
};

TEST_F(Viewers, each_command_shows_its_own_file) {
  const struct {
    void (*view)();
    const char* name;
    const char* missing;
    Icon icon;
  } rows[] = {
      {ViewReportFile, "cod.rep", "Report File Missing", Icon::Exclamation},
      {ViewStdFile, "cod.std", "Standard Deviation File Missing", Icon::Exclamation},
      {ViewParFile, "cod.par", "Output Parameter File Missing", Icon::Exclamation},
      {ViewLogFile, "cod.log", "Log File Unavailable", Icon::Information},
  };
  for (const auto& row : rows) {
    FileViewerPath = InFolder("no-such-viewer");
    row.view();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].icon, row.icon);
    EXPECT_EQ(host.TakeTexts(), Texts{row.missing});

    WriteBytes(InFolder(row.name), std::string("text of ") + row.name + "\n\nend");
    row.view();
    EXPECT_EQ(host.TakeTexts(), Texts{"Unable to Find File Viewer Application: |" + FileViewerPath});

    WriteBytes(InFolder("viewer"), "");
    FileViewerPath = InFolder("viewer");
    row.view();
    EXPECT_EQ(host.started.back(), InFolder("viewer") + " " + InFolder(row.name));
    EXPECT_FALSE(frmView.Loaded());

    FileViewerPath = "";
    row.view();
    ASSERT_TRUE(frmView.Loaded());
    EXPECT_EQ(frmView->rtfView.Text(), std::string("text of ") + row.name + "\r\n\r\nend\r\n");
    EXPECT_EQ(frmView->Caption(), "View - " + InFolder(row.name));
    EXPECT_EQ(FrontForm(), &frmView);
    UnloadForm(frmView);
  }
  EXPECT_EQ(host.TakeTexts(), Texts{});
}

TEST_F(Viewers, unreadable_file_leaves_pointer_and_shows_the_error) {
  ShowFileInViewer(folder);
  EXPECT_EQ(host.TakeTexts(), Texts{"Path/File access error"});
  EXPECT_EQ(MousePointer(), Pointer::Default);
  EXPECT_FALSE(frmView.Loaded());
}

TEST_F(Viewers, marked_part_of_a_text_is_copied) {
  WriteBytes(InFolder("a"), "one two");
  ShowFileInViewer(InFolder("a"));
  EXPECT_GT(frmView->rtfView.RightMargin, 1.5);
  frmView->rtfView.Select(4, 3);
  frmView->cmdCopy.UserClick();
  EXPECT_EQ(host.clipboard, "two");
  frmView->cmdCancel.UserClick();
  EXPECT_FALSE(frmView.Loaded());
}

TEST_F(Viewers, chosen_program_is_kept_only_if_it_exists) {
  const std::string program = InFolder("viewer.exe");
  WriteBytes(program, "");
  EXPECT_EQ(frmViewOpt->lblFile.Caption(), kNoneSelected);
  EXPECT_FALSE(frmViewOpt->cmdBrowse.Enabled());
  frmViewOpt->optView(1).UserChoose();
  EXPECT_TRUE(frmViewOpt->cmdBrowse.Enabled());
  frmViewOpt->cmdBrowse.UserClick();  // cancelled
  EXPECT_EQ(frmViewOpt->lblFile.Caption(), kNoneSelected);
  host.files = {program};
  frmViewOpt->cmdBrowse.UserClick();
  ASSERT_EQ(host.dialogs.size(), 2u);
  EXPECT_EQ(host.dialogs[1].filter, "EXE Files (*.exe)|*.exe");
  EXPECT_FALSE(host.dialogs[1].moves_current_folder);
  frmViewOpt->cmdOK.UserClick();
  EXPECT_FALSE(frmViewOpt.Loaded());
  EXPECT_EQ(FileViewerPath, program);

  EXPECT_TRUE(frmViewOpt->optView(1).Value());
  EXPECT_EQ(frmViewOpt->lblFile.Caption(), program);
  frmViewOpt->optView(0).UserChoose();
  EXPECT_EQ(frmViewOpt->lblFile.Caption(), kNoneSelected);
  frmViewOpt->cmdCancel.UserClick();
  EXPECT_EQ(FileViewerPath, program);

  DeleteExistingFile(program);
  frmViewOpt->cmdOK.UserClick();
  EXPECT_EQ(FileViewerPath, "");
  EXPECT_EQ(host.TakeTexts(), Texts{});
}

TEST_F(Viewers, selection_is_copied_and_shrinks_to_its_start) {
  ShowGrid();
  GridKeyShortcut('A');
  GridKeyShortcut('X');
  GridKeyShortcut('C');
  EXPECT_EQ(host.clipboard, "11\t12\r\n21\t22\r\n31\t32\r\n");
  GridKeyShortcut('C');
  EXPECT_EQ(host.clipboard, "11\r\n");
  frmGrid->grid.SetSelection(3, 2, 2, 0);  // drawn from the lower right to the upper left
  GridCopy();
  EXPECT_EQ(host.clipboard, "20\t21\t22\r\n30\t31\t32\r\n");
  GridCopy();
  EXPECT_EQ(host.clipboard, "32\r\n");
  EXPECT_EQ(MousePointer(), Pointer::Default);
}

TEST_F(Viewers, grid_of_an_unloaded_form_or_without_cells_is_left_alone) {
  ShowGrid();
  frmGrid->grid.Resize(1, 3);
  GridSelectAll();
  GridCopy();
  EXPECT_EQ(host.clipboard, "1\r\n");
  UnloadForm(frmGrid);
  GridSelectAll();
  GridCopy();
  EXPECT_EQ(ActiveGrid, nullptr);
  EXPECT_EQ(host.clipboard, "1\r\n");
}

}  // namespace
}  // namespace tarnvik
