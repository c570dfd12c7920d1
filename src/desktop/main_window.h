// The main window: menu bar, child windows, status bar.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <memory>
#include <vector>

#include "desktop/forms/control_view.h"
#include "platform/form.h"

class QLabel;
class QMdiArea;
class QMenu;

namespace tarnvik {

class DesktopHost;
class FormWindow;

class MainWindow : public QMainWindow {
 public:
  // The program has been started (StartProgram); the window shows its menu and its forms.
  explicit MainWindow(DesktopHost& host);
  ~MainWindow() override;

  // --- For the host.
  void BringToFront(Form& form);
  void ShowModal(FormSlot& slot);  // returns when the form has been unloaded
  void FormUnloaded(Form& form);
  void ShowGuide();

  // Opens a control file as if it had been chosen in the dialog.
  void OpenCase(const QString& path);
  // A window for each loaded form, titles, the case's name; after every event.
  void Settle();
  // The child window of a form, null when it has none.
  FormWindow* WindowOf(const FormSlot& slot) const;

  void setVisible(bool visible) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;  // notes where the mouse is pressed

 private:
  FormWindow& WindowFor(FormSlot& slot);
  void FillWindowMenu();
  void FillRecentMenu();
  void ShowClock();
  void Activated(FormWindow* window);
  void TurnTo(FormWindow& window);  // by the user's will
  void TurnToNext(bool forward);
  void PutFrontFormInFront();
  void RestorePlaces();
  void StorePlaces() const;

  DesktopHost& host_;
  QMdiArea* area_;
  std::vector<std::unique_ptr<ControlView>> views_;  // of the menu entries and the status bar
  QMenu* window_menu_ = nullptr;
  QMenu* recent_menu_ = nullptr;
  QLabel* date_;
  QLabel* time_;
  std::vector<std::pair<Form*, class FormDialog*>> dialogs_;  // the modal forms, the innermost last
  QElapsedTimer press_;     // since the mouse was pressed in a child window or on its tab
  QString noted_case_;      // what the list of recent cases was last told
  bool arranging_ = false;  // windows move by the logic's will: no act of the user
};

}  // namespace tarnvik
