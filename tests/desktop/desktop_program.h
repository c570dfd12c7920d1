// The window program under test: its main window in a folder of its own, and a user who answers boxes,
// dialogs and modal forms as they come.
#pragma once

#include <QMainWindow>
#include <deque>
#include <functional>
#include <memory>

#include "desktop/desktop_host.h"
#include "desktop/main_window.h"
#include "support/test_program.h"

class QAction;

namespace tarnvik {

class FormView;

class DesktopTest : public ProgramTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // What the user does. Acts wait until whatever they set off has ended.
  void Choose(const char* menu_entry);
  void Click(Form& form, Control& button);  // with the mouse, on the widget
  void Settle();                            // lets Qt deliver what is pending

  FormView& Contents(FormSlot& slot);  // of the child window of a loaded form
  QWidget* WidgetOf(FormSlot& slot, const Control& control);

  // Answers to what is coming; a box without one gets what a cautious user answers. Texts of the boxes seen.
  std::deque<Answer> answers;
  std::deque<QString> files;                              // for real file dialogs
  std::deque<std::function<void(QWidget& dialog)>> acts;  // for modal forms, in the order in which they come
  std::vector<std::string> boxes;

  std::unique_ptr<DesktopHost> desktop;
  std::unique_ptr<MainWindow> window;

 private:
  void Watch();
  void Answer1(QWidget& modal);
  bool watching_ = false;
  QObject watcher_;              // no look is taken when it has gone
  QWidget* answered_ = nullptr;  // a modal form that has had its acts
};

}  // namespace tarnvik
