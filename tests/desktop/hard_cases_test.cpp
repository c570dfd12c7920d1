// What goes wrong, or crosswise, while the windows stand.
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <filesystem>
#include <set>

#include "charts/text.h"
#include "core/frmmain.h"
#include "core/globals.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_view.h"
#include "desktop/forms/form_window.h"
#include "desktop_program.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "plots/frmplotcollect.h"
#include "plots/frmplotinput.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/frmview.h"
#include "results/frmviewopt.h"

namespace fs = std::filesystem;

namespace tarnvik {
namespace {

class HardCase : public DesktopTest {
 protected:
  void Open(const std::string& path) {
    files.push_back(ShownText(path));
    Choose("mnuFileOpen");
  }
  void OpenExample() {
    Open(CopyExample(folder));
    ASSERT_EQ(DatFileOpen, kTrue);
  }
  void Run() {
    answers = {Answer::Ok};
    Choose("mnuModelRun");
  }
  // A program in the place of the estimation program.
  void PutModel(const std::string& script) {
    const fs::path model = InFolder("tarnvik.exe");
    fs::remove(model);
    WriteBytes(model, "#!/bin/sh\n" + script);
    fs::permissions(model, fs::perms::owner_all);
  }
  // The window of the running program once what it writes ends with a text.
  void WhenWritten(const QString& end, const std::function<void(QDialog&, QPlainTextEdit&)>& act) {
    QTimer::singleShot(10, window.get(), [this, end, act] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      auto* output = dialog ? dialog->findChild<QPlainTextEdit*>() : nullptr;
      if (!output || !output->toPlainText().endsWith(end)) return WhenWritten(end, act);
      act(*dialog, *output);
    });
  }
  // Types into the first cell of a grid, and does not end the edit.
  void BeginToType(const QString& text) {
    UserEvent([] { frmInput->SSTab1.SetTab(kTabCatch); });
    window->activateWindow();
    Settle();
    auto* table = WidgetOf(frmInput, frmInput->ORVFlexGrid(0))->findChild<QAbstractItemView*>();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(table, text[0].toLatin1());
    ASSERT_NE(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr) << text.toStdString();
    QTest::keyClicks(QApplication::focusWidget(), text.mid(1));
  }
  // Each child window shows a form that is loaded, under its caption, and only one is there for each form.
  void ExpectWindowsInOrder() {
    std::set<FormSlot*> shown;
    for (QMdiSubWindow* child : window->findChild<QMdiArea*>()->subWindowList()) {
      auto& form = *static_cast<FormWindow*>(child);
      ASSERT_TRUE(form.Slot().Loaded()) << form.Slot().Name();
      EXPECT_TRUE(shown.insert(&form.Slot()).second) << form.Slot().Name();
      EXPECT_EQ(form.windowTitle(), ShownText(form.Slot().Record()->Caption()));
    }
    EXPECT_TRUE(shown.contains(&frmInput));
    EXPECT_FALSE(window->grab().isNull());
  }
};

TEST_F(HardCase, a_handler_that_fails_says_so_and_the_program_goes_on) {
  OpenExample();
  UserEvent([] { frmInput->SSTab1.SetTab(kTabGeneral); });
  for (const Handler fails : {Handler([](int) { throw RunTimeError(kErrOverflow); }),
                              Handler([](int) { throw std::bad_alloc(); })}) {
    frmInput->cmdBrowseCTL.OnClick = fails;
    QTest::mouseClick(WidgetOf(frmInput, frmInput->cmdBrowseCTL), Qt::LeftButton);
  }
  EXPECT_EQ(boxes, (std::vector<std::string>{"Overflow", "Out of memory"}));
  Open(CopyExample(folder));
  EXPECT_EQ(DatFileOpen, kTrue);
  ExpectWindowsInOrder();
}

TEST_F(HardCase, what_is_half_typed_survives_a_cancelled_close) {
  OpenExample();
  const std::function<void()> closes[] = {[this] { window->WindowOf(frmInput)->close(); },
                                          [this] { window->close(); }, [this] { Choose("mnuFileExit"); }};
  int typed = 1111;
  for (const auto& close : closes) {
    BeginToType(QString::number(++typed));
    answers = {Answer::Cancel};
    close();
    Settle();
    EXPECT_TRUE(frmInput.Loaded());
    EXPECT_EQ(frmInput->ORVFlexGrid(0).TextMatrix(1, 1), std::to_string(typed));
  }
  EXPECT_EQ(boxes.size(), 3U);
}

TEST_F(HardCase, forms_go_by_their_own_buttons) {
  OpenExample();
  Run();
  ASSERT_EQ(StdFileRead, kTrue);
  Choose("mnuViewReport");
  ASSERT_NE(window->WindowOf(frmView), nullptr);
  QTest::mouseClick(WidgetOf(frmView, frmView->cmdCancel), Qt::LeftButton);
  Settle();
  EXPECT_FALSE(frmView.Loaded());
  EXPECT_EQ(window->WindowOf(frmView), nullptr);
  for (const auto& [menu, slot] : {std::pair<const char*, FormSlot*>{"mnuOptionsFileView", &frmViewOpt},
                                   {"mnuViewPlotCollect", &frmPlotCollect}}) {
    bool came = false;
    acts.push_back([&came, form = slot](QWidget& dialog) {
      came = true;
      auto& view = *dialog.findChild<FormView*>();
      QTest::mouseClick(view.WidgetOf(*form->Record()->Find("cmdCancel", -1)), Qt::LeftButton);
    });
    Choose(menu);
    EXPECT_TRUE(came) << menu;
    EXPECT_FALSE(slot->Loaded()) << menu;
  }
  ExpectWindowsInOrder();
}

TEST_F(HardCase, a_model_that_does_not_end_or_writes_much_is_survived) {
  OpenExample();
  PutModel("echo working\nexec sleep 100\n");
  WhenWritten("working\n", [](QDialog& dialog, QPlainTextEdit&) {
    dialog.close();  // has no effect while the program runs
    EXPECT_TRUE(dialog.isVisible());
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
  });
  Run();
  EXPECT_EQ(ModelRunOK, kFalse);
  const char* const told = "Error Running Basic Estimation Model\r\nReport File is Unavailable";
  EXPECT_EQ(boxes.back(), told);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  PutModel("seq 100000\necho the end\nexec sleep 1\n");
  int lines = 0;
  WhenWritten("the end\n", [&](QDialog&, QPlainTextEdit& output) { lines = output.blockCount(); });
  boxes.clear();
  Run();
  EXPECT_EQ(lines, 10000);
  EXPECT_EQ(boxes.back(), told);
  ExpectWindowsInOrder();
}

TEST_F(HardCase, another_case_or_a_broken_one_takes_the_windows_of_the_first_away) {
  WriteBytes(InFolder("broken.ctl"), "no\ncontrol\x01 file");
  for (const bool broken : {false, true}) {
    OpenExample();
    Run();
    Choose("mnuDataPlotInput");
    for (FormSlot* slot : {static_cast<FormSlot*>(&frmOutput), static_cast<FormSlot*>(&frmPlotInput)}) {
      ASSERT_NE(window->WindowOf(*slot), nullptr) << slot->Name();
    }
    const std::size_t told = boxes.size();
    fs::create_directory(InFolder("other"));
    Open(broken ? InFolder("broken.ctl") : CopyExample(InFolder("other")));
    for (FormSlot* slot :
         std::initializer_list<FormSlot*>{&frmOutput, &frmSTD, &frmOutputData, &frmPlotInput}) {
      EXPECT_EQ(window->WindowOf(*slot), nullptr) << slot->Name();
    }
    EXPECT_FALSE(frmOutput.Loaded() || frmSTD.Loaded() || frmOutputData.Loaded());
    EXPECT_EQ(boxes.size() > told, broken);
    EXPECT_EQ(window->windowTitle(), broken ? "Tarnvik" : "cod.ctl - Tarnvik");
    EXPECT_EQ(frmPin.Loaded(), !broken);
    ExpectWindowsInOrder();
  }
}

TEST_F(HardCase, a_case_that_is_dropped_on_the_window_opens) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(ShownText(InFolder("notes.txt"))),
                QUrl::fromLocalFile(ShownText(CopyExample(folder)))});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &drop);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->windowTitle() == "cod.ctl - Tarnvik"; }, 5000));
  EXPECT_TRUE(boxes.empty());
}

// As the end of a session closes windows, whatever box stands before them.
TEST_F(HardCase, a_second_close_while_the_first_asks_ends_the_program_once) {
  OpenExample();
  answers = {Answer::No, Answer::No, Answer::No, Answer::No};
  for (int i = 0; i < 2; ++i) QTimer::singleShot(0, window.get(), [this] { window->close(); });
  EXPECT_TRUE(QTest::qWaitFor([] { return !ProgramRunning(); }, 5000));
  Settle();
  EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace tarnvik
