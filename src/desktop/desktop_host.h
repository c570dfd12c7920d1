// The host of the window program: boxes, dialogs, windows and processes as the desktop has them.
#pragma once

#include <deque>
#include <string>

#include "platform/host.h"

namespace tarnvik {

class MainWindow;

class DesktopHost : public Host {
 public:
  explicit DesktopHost(std::string program_folder) : program_folder_(std::move(program_folder)) {}

  Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  void BringToFront(Form& form) override;
  void ShowModal(FormSlot& slot) override;
  void FormUnloaded(Form& form) override;
  void PopUpMenu(Control& menu) override;
  void ProcessEvents() override;  // paints; what the user does waits
  void SetPointer(Pointer pointer) override;
  void SetClipboard(std::string text) override;
  void ExportChart(const Chart& chart, const std::string& path) override;
  // Shows what the program writes and the time passed, with a button that ends it; nothing else is served.
  std::int32_t CreateConsoleProcess(const std::string& command) override;
  // The help viewer is this program's own window; other programs are started.
  void StartProgram(const std::string& command) override;
  int OpenDocument(const std::string& path) override;
  DateTime Now() override;
  std::string ProgramFolder() override { return program_folder_; }

  // Where windows appear; null until the main window stands.
  MainWindow* window = nullptr;
  // Answers of the coming file dialogs, which then do not appear: a recent case, a dropped file.
  std::deque<std::string> files;

 private:
  std::string program_folder_;
};

}  // namespace tarnvik
