#include "desktop_program.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "charts/text.h"
#include "core/frmmain.h"
#include "desktop/forms/form_view.h"
#include "desktop/forms/form_window.h"

namespace fs = std::filesystem;

namespace tarnvik {

namespace {

// The programs that the window starts lie in its folder.
void LinkPrograms(const std::string& folder) {
  for (const char* name : {"tarnvik.exe", "scanvpasurvey.exe", "vpa2tarnvik.exe"}) {
    fs::create_symlink(fs::path(TARNVIK_BIN) / name, fs::path(folder) / name);
  }
}

QMessageBox::StandardButton Pressed(const QMessageBox& box, std::deque<Answer>& answers) {
  const std::pair<Answer, QMessageBox::StandardButton> buttons[] = {{Answer::Ok, QMessageBox::Ok},
                                                                    {Answer::Cancel, QMessageBox::Cancel},
                                                                    {Answer::No, QMessageBox::No},
                                                                    {Answer::Yes, QMessageBox::Yes}};
  for (const auto& [answer, button] : buttons) {
    if (answers.empty() || answers.front() != answer || !(box.standardButtons() & button)) continue;
    answers.pop_front();
    return button;
  }
  for (const auto button : {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Ok}) {
    if (box.standardButtons() & button) return button;
  }
  return QMessageBox::NoButton;
}

}  // namespace

void DesktopTest::SetUp() {
  ProgramTest::SetUp();
  EndProgram();
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ShownText(folder));
  QCoreApplication::setOrganizationName("Tarnvik");
  QCoreApplication::setApplicationName("Tarnvik");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  LinkPrograms(folder);
  desktop = std::make_unique<DesktopHost>(folder);
  StartProgram(*desktop);
  window = std::make_unique<MainWindow>(*desktop);
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  watching_ = true;
  Watch();
}

void DesktopTest::TearDown() {
  watching_ = false;
  window.reset();
  EndProgram();
  SetHost(&host);
  desktop.reset();
  Settle();
  ProgramTest::TearDown();
}

void DesktopTest::Settle() {
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// A new timer for each look: one whose act has opened a further dialog would not fire in it again.
void DesktopTest::Watch() {
  if (!watching_) return;
  QTimer::singleShot(5, &watcher_, [this] {
    if (!watching_) return;
    Watch();
    if (QWidget* modal = QApplication::activeModalWidget()) Answer1(*modal);
  });
}

void DesktopTest::Answer1(QWidget& modal) {
  if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
    boxes.push_back(TypedText(box->text()));
    box->button(Pressed(*box, answers))->click();
  } else if (auto* dialog = qobject_cast<QFileDialog*>(&modal)) {
    if (files.empty()) return dialog->reject();
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    name->setText(files.front());
    files.pop_front();
    QTest::keyClick(name, Qt::Key_Return);
  } else if (modal.objectName().startsWith("frm") && answered_ != &modal) {
    answered_ = &modal;
    if (acts.empty()) {
      modal.close();
    } else {
      const auto act = acts.front();
      acts.pop_front();
      act(modal);
    }
    answered_ = nullptr;
  }
}

void DesktopTest::Choose(const char* menu_entry) {
  auto* action = window->menuBar()->findChild<QAction*>(menu_entry);
  ASSERT_NE(action, nullptr) << menu_entry;
  ASSERT_TRUE(action->isEnabled()) << menu_entry;
  action->trigger();
  Settle();
}

FormView& DesktopTest::Contents(FormSlot& slot) {
  FormWindow* shown = window->WindowOf(slot);
  if (!shown) throw std::runtime_error(slot.Name() + " has no window");
  return shown->Contents();
}

QWidget* DesktopTest::WidgetOf(FormSlot& slot, const Control& control) {
  return Contents(slot).WidgetOf(control);
}

}  // namespace tarnvik
