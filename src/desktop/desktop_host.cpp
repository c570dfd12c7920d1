#include "desktop/desktop_host.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDateTime>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

#include "charts/chart_picture.h"
#include "charts/text.h"
#include "desktop/forms/events.h"
#include "desktop/grids/edit_history.h"
#include "desktop/main_window.h"
#include "desktop/menu_view.h"
#include "desktop/run_window.h"
#include "platform/form.h"
#include "platform/paths.h"
#include "platform/process.h"

namespace tarnvik {

// --- Boxes and dialogs

namespace {

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

constexpr struct {
  Answer answer;
  QMessageBox::StandardButton button;
} kAnswers[] = {{Answer::Ok, QMessageBox::Ok},
                {Answer::Cancel, QMessageBox::Cancel},
                {Answer::Yes, QMessageBox::Yes},
                {Answer::No, QMessageBox::No}};

QMessageBox::StandardButton ButtonOf(Answer answer) {
  for (const auto& row : kAnswers) {
    if (row.answer == answer) return row.button;
  }
  return QMessageBox::NoButton;
}

// "Control Files (*.ctl)|*.ctl": of each pair the first half is what a dialog shows, pattern included.
QString FilterOf(const std::string& filter) {
  const QStringList halves = ShownText(filter).split('|');
  QStringList shown;
  for (qsizetype i = 0; i < halves.size(); i += 2) shown += halves[i];
  return shown.join(";;");
}

void MoveToFolderOf(const std::string& path) {
  const std::string folder = path.substr(0, LastSeparator(path) + 1);
  if (FolderExists(folder)) ChangeFolder(folder);
}

QString AskForFile(QWidget* parent, const FileDialog& dialog) {
  QFileDialog asked(parent, ShownText(dialog.title), QString(), FilterOf(dialog.filter));
  asked.setAcceptMode(dialog.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  asked.setFileMode(dialog.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  asked.setDefaultSuffix(ShownText(dialog.default_extension));
  asked.setOption(QFileDialog::DontConfirmOverwrite, dialog.logic_asks_to_overwrite);
  if (asked.exec() != QDialog::Accepted || asked.selectedFiles().isEmpty()) return QString();
  return QDir::toNativeSeparators(asked.selectedFiles().front());
}

}  // namespace

Answer DesktopHost::ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) {
  RefreshViews();
  QMessageBox box(IconOf(icon), "Tarnvik", ShownText(text), ButtonsOf(buttons), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(ButtonOf(default_answer));
  const int pressed = box.exec();
  for (const auto& row : kAnswers) {
    if (row.button == pressed) return row.answer;
  }
  return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

std::optional<std::string> DesktopHost::ShowFileDialog(const FileDialog& dialog) {
  RefreshViews();
  std::string path;
  if (!files.empty()) {
    path = files.front();
    files.pop_front();
  } else {
    path = TypedText(AskForFile(QApplication::activeWindow(), dialog));
  }
  if (path.empty()) return std::nullopt;
  EndEditHistory();  // there is no undoing what a file brings
  if (dialog.moves_current_folder) MoveToFolderOf(path);
  return path;
}

void DesktopHost::PopUpMenu(Control& menu) {
  RefreshViews();
  QMenu popup;
  for (Control* control : menu.Owner().Controls()) {
    if (control->Kind() != ControlKind::MenuItem) continue;
    MenuItem& entry = static_cast<MenuItem&>(*control);
    if (entry.Parent == &menu) AddEntry(popup, entry);
  }
  popup.exec(QCursor::pos());
}

// --- Windows

void DesktopHost::BringToFront(Form& form) {
  if (window) window->BringToFront(form);
}

void DesktopHost::ShowModal(FormSlot& slot) {
  RefreshViews();
  if (window) window->ShowModal(slot);
}

void DesktopHost::FormUnloaded(Form& form) {
  if (window) window->FormUnloaded(form);
}

void DesktopHost::ProcessEvents() {
  RefreshViews();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopHost::SetPointer(Pointer pointer) {
  while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  if (pointer == Pointer::Hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == Pointer::IndexInHand) QApplication::setOverrideCursor(Qt::DragMoveCursor);
}

void DesktopHost::SetClipboard(std::string text) { QApplication::clipboard()->setText(ShownText(text)); }

void DesktopHost::ExportChart(const Chart& chart, const std::string& path) { WriteChartPicture(chart, path); }

// --- Processes

std::int32_t DesktopHost::CreateConsoleProcess(const std::string& command) {
  RefreshViews();
  return RunInWindow(command, QApplication::activeWindow());
}

void DesktopHost::StartProgram(const std::string& command) {
  if (window && command.rfind("HH.EXE ", 0) == 0) {
    window->ShowGuide();
  } else {
    StartProcess(command);
  }
}

int DesktopHost::OpenDocument(const std::string& path) {
  constexpr int kOpened = 33;
  constexpr int kNoProgram = 31;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(ShownText(path))) ? kOpened : kNoProgram;
}

DateTime DesktopHost::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(), now.date().day(), now.time().hour(), now.time().minute()};
}

}  // namespace tarnvik
