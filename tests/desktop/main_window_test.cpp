// Whole flows with real events: what a user does with the windows of the program.
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "charts/text.h"
#include "core/frmmain.h"
#include "core/globals.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_view.h"
#include "desktop/forms/form_window.h"
#include "desktop/recent_cases.h"
#include "desktop_program.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/paths.h"
#include "plots/frmplotcollect.h"
#include "plots/frmplotinput.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/frmview.h"
#include "vpaimport/frmvpaindices.h"

namespace fs = std::filesystem;

namespace tarnvik {
namespace {

class Window : public DesktopTest {
 protected:
  void OpenExample() {
    files.push_back(ShownText(CopyExample(folder)));
    Choose("mnuFileOpen");
    ASSERT_EQ(DatFileOpen, kTrue);
    ASSERT_EQ(PinFileOpen, kTrue);
  }
  void RunExample() {
    OpenExample();
    answers = {Answer::Ok};
    Choose("mnuModelRun");
    ASSERT_EQ(StdFileRead, kTrue) << boxes.back();
  }

  // The table of a grid on a page that is brought to the front.
  QAbstractItemView& Table(FormSlot& slot, TabStrip& tabs, int page, Grid& grid) {
    UserTurns(tabs, page);
    auto* table = WidgetOf(slot, grid)->findChild<QAbstractItemView*>();
    if (!table) table = qobject_cast<QAbstractItemView*>(WidgetOf(slot, grid));
    if (!table) throw std::runtime_error("no table for " + grid.FullName());
    table->setFocus();
    return *table;
  }

  void UserTurns(TabStrip& tabs, int page) {
    UserEvent([&] {
      tabs.SetTab(page);
      tabs.UserClick();
    });
    Settle();
  }

  // Brings every page of every tab control of a form to the front; the number of pages.
  int TurnAllPages(FormSlot& slot) {
    UserEvent([&] { ActivateForm(slot); });
    int turned = 0;
    for (Control* control : Contents(slot).Shown()->Controls()) {
      if (control->Kind() != ControlKind::TabStrip) continue;
      auto& tabs = static_cast<TabStrip&>(*control);
      for (int page = 0; page < tabs.Tabs(); ++page, ++turned) {
        UserTurns(tabs, page);
        EXPECT_FALSE(window->grab().isNull());
      }
    }
    return turned;
  }
};

TEST_F(Window, opens_a_case_chosen_in_the_dialog_and_remembers_it) {
  EXPECT_EQ(window->windowTitle(), "Tarnvik");
  OpenExample();
  EXPECT_EQ(window->windowTitle(), "cod.ctl - Tarnvik");
  EXPECT_EQ(RecentCases(), QStringList(ShownText(InFolder("cod.ctl"))));
  EXPECT_NE(window->WindowOf(frmPin), nullptr);
  EXPECT_TRUE(boxes.empty()) << boxes[0];

  window->OpenCase(ShownText(InFolder("cod.ctl")));
  EXPECT_EQ(DatFileOpen, kTrue);
  window->OpenCase(ShownText(InFolder("gone.ctl")));
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_NE(boxes[0].find("gone.ctl"), std::string::npos);
  EXPECT_EQ(DatFileOpen, kTrue);
}

TEST_F(Window, edits_pastes_and_takes_back_cells) {
  OpenExample();
  Grid& grid = frmInput->ORVFlexGrid(0);
  QAbstractItemView& table = Table(frmInput, frmInput->SSTab1, kTabCatch, grid);
  const std::string before[] = {grid.TextMatrix(1, 1), grid.TextMatrix(2, 1), grid.TextMatrix(3, 1)};
  QTest::keyClick(&table, Qt::Key_Home, Qt::ControlModifier);
  QTest::keyClick(&table, Qt::Key_1);
  QTest::keyClicks(QApplication::focusWidget(), "234");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid.TextMatrix(1, 1) == "1234"; }, 2000))
      << grid.TextMatrix(1, 1);

  QApplication::clipboard()->setText("77\n88\n");  // the current cell is the one below
  QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(grid.TextMatrix(2, 1), "77");
  EXPECT_EQ(grid.TextMatrix(3, 1), "88");
  QTest::keyClick(&table, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(grid.TextMatrix(2, 1), before[1]);
  EXPECT_EQ(grid.TextMatrix(3, 1), before[2]);
  EXPECT_EQ(grid.TextMatrix(1, 1), "1234");
  QTest::keyClick(&table, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(grid.TextMatrix(1, 1), before[0]);
}

TEST_F(Window, a_change_of_ages_reshapes_what_is_shown) {
  OpenExample();
  UserTurns(frmInput->SSTab1, kTabGeneral);
  auto* ages = qobject_cast<QComboBox*>(WidgetOf(frmInput, frmInput->cmbNAges));
  ASSERT_NE(ages, nullptr);
  const int before = NAges;
  ages->setFocus();
  QTest::keyClick(ages, Qt::Key_Down);
  Settle();
  EXPECT_EQ(NAges, before + 1);
  QAbstractItemView& table = Table(frmInput, frmInput->SSTab1, kTabMaturity, frmInput->ORVFlexGrid(7));
  EXPECT_EQ(frmInput->ORVFlexGrid(7).Cols(), before + 2);
  EXPECT_GE(table.model()->columnCount(), before + 1);
}

TEST_F(Window, runs_the_model_and_shows_every_page_and_plot) {
  RunExample();
  Choose("mnuModelScan");  // the same results once more: the windows of the first ones go
  ASSERT_EQ(StdFileRead, kTrue);
  FormSlot* const forms[] = {&frmInput, &frmPin, &frmOutputData, &frmSTD, &frmOutput};
  for (FormSlot* slot : forms) ASSERT_NE(window->WindowOf(*slot), nullptr) << slot->Name();
  EXPECT_GE(TurnAllPages(frmInput), 13);
  EXPECT_EQ(TurnAllPages(frmPin), 3);
  EXPECT_GE(TurnAllPages(frmOutputData), 17);
  EXPECT_EQ(TurnAllPages(frmSTD), 5);
  EXPECT_EQ(TurnAllPages(frmOutput), 22);
  Choose("mnuDataPlotInput");
  EXPECT_EQ(TurnAllPages(frmPlotInput), 14);
  Choose("mnuViewReport");
  EXPECT_NE(window->WindowOf(frmView), nullptr);
  for (const char* how : {"&Cascade", "T&ile", "&Tabs"}) {
    QMenu* arranging = nullptr;
    for (QMenu* menu : window->menuBar()->findChildren<QMenu*>()) {
      if (menu->menuAction()->objectName() == "mnuWindow") arranging = menu;
    }
    ASSERT_NE(arranging, nullptr);
    emit arranging->aboutToShow();
    for (QAction* action : arranging->actions()) {
      if (action->text() == how) action->trigger();
    }
    Settle();
    EXPECT_FALSE(window->grab().isNull());
  }
}

TEST_F(Window, writes_a_plot_collection_from_its_dialog) {
  RunExample();
  acts.push_back([this](QWidget& dialog) {
    auto& view = *dialog.findChild<FormView*>();
    PlotCollectForm& form = *frmPlotCollect;
    for (CommandButton* button : {&form.cmdNone, &form.cmdDefault, &form.cmdNone}) {
      QTest::mouseClick(view.WidgetOf(*button), Qt::LeftButton);
    }
    UserEvent([&] { form.chkPlots(13).UserCheck(1); });
    QTest::mouseClick(view.WidgetOf(form.cmdGenerate), Qt::LeftButton);
  });
  Choose("mnuViewPlotCollect");
  EXPECT_FALSE(frmPlotCollect.Loaded());
  EXPECT_EQ(boxes.back().substr(0, 34), "Plot Collection Has Completed\r\nSee");
  EXPECT_TRUE(FileExistsAsWritten(InFolder("cod_plots.html")));
  for (const char* picture : {"plot1.mtf", "plot2.mtf", "plot3.mtf"}) {
    EXPECT_GT(fs::file_size(fs::path(folder) / "cod_plots" / picture), 10000U) << picture;
  }
  EXPECT_FALSE(FileExistsAsWritten(InFolder("cod_plots/plot4.mtf")));
}

TEST_F(Window, imports_vpa_data_by_clicks) {
  fs::copy(fs::path(TARNVIK_EXAMPLES) / "north-sea-cod-vpa", folder, fs::copy_options::recursive);
  files.push_back(ShownText(InFolder("cod-vpa.dat")));
  acts.push_back([this](QWidget& dialog) {
    auto& view = *dialog.findChild<FormView*>();
    IndicesForm& form = *frmVPAIndices;
    const auto click = [&](ListBox& list, int entry) {
      auto* widget = qobject_cast<QListWidget*>(view.WidgetOf(list));
      ASSERT_NE(widget, nullptr);
      const QRect place = widget->visualItemRect(widget->item(entry));
      QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, place.center());
      Settle();
    };
    for (int index = 0; index < 3; ++index) {
      click(form.lstVPA, 0);
      click(form.lstTARNVIK, index);
    }
    EXPECT_EQ(form.lstTARNVIK.ListCount(), 5);
    QTest::mouseClick(view.WidgetOf(form.cmdImport), Qt::LeftButton);
  });
  Choose("mnuFileImportVPA");
  EXPECT_TRUE(boxes.empty()) << boxes[0];
  EXPECT_EQ(window->windowTitle(), "cod-vpa_tarnvik.ctl - Tarnvik");
  answers = {Answer::Ok};
  Choose("mnuModelRun");
  EXPECT_EQ(StdFileRead, kTrue);
}

TEST_F(Window, closing_asks_and_a_cancel_loses_nothing) {
  OpenExample();
  answers = {Answer::Cancel};
  window->close();
  Settle();
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(frmInput.Loaded());
  EXPECT_EQ(boxes.size(), 1U);
  answers = {Answer::No, Answer::No};
  window->close();
  Settle();
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(ProgramRunning());
}

TEST_F(Window, a_failing_model_leaves_the_program_usable) {
  OpenExample();
  fs::remove(InFolder("tarnvik.exe"));
  answers = {Answer::Ok};
  Choose("mnuModelRun");
  EXPECT_EQ(ModelRunOK, kFalse);
  EXPECT_FALSE(boxes.empty());
  EXPECT_EQ(TurnAllPages(frmPin), 3);
}

}  // namespace
}  // namespace tarnvik
