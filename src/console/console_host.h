// The host of the console: shows as JSON lines, answers from queues.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/host.h"

namespace tarnvik {

class ConsoleHost : public Host {
 public:
  // Each line goes to `show` as soon as the program shows something. Without `now` the clock is the system's.
  ConsoleHost(std::function<void(const std::string& line)> show, std::string program_folder,
              std::optional<DateTime> now);

  Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  void BringToFront(Form& form) override;
  void ShowModal(FormSlot& slot) override;
  void FormUnloaded(Form& form) override;
  void PopUpMenu(Control&) override {}  // no command presses the right mouse button
  void ProcessEvents() override {}      // commands come one by one
  void SetPointer(Pointer) override {}  // asked for, not shown
  void SetClipboard(std::string text) override { clipboard = std::move(text); }
  void ExportChart(const Chart& chart, const std::string& path) override;
  std::int32_t CreateConsoleProcess(const std::string& command) override;
  void StartProgram(const std::string& command) override;
  int OpenDocument(const std::string& path) override;
  DateTime Now() override;
  std::string ProgramFolder() override { return program_folder_; }

  // The modal form that is open over everything else, null when there is none.
  FormSlot* ModalForm() const { return modal_forms_.empty() ? nullptr : modal_forms_.back(); }

  // What the commands queue and ask.
  std::deque<Answer> answers;                    // one that a box does not offer waits for the next box
  std::deque<std::optional<std::string>> files;  // nothing: cancelled
  std::string clipboard;
  // Lets the user act until the record is unloaded or nobody acts any more.
  std::function<void(const FormSlot& slot)> run_modal;
  // Whether windows that appear are told. Those of the start are not: they are always there.
  bool tells_windows = false;

 private:
  Answer TakeAnswer(Buttons buttons);
  void TellProcess(const std::string& command, int result);
  void TellWindow(const std::string& form, bool modal);
  std::function<void(const std::string&)> show_;
  std::string program_folder_;
  std::optional<DateTime> now_;
  std::vector<FormSlot*> modal_forms_;
  std::unordered_set<const Form*> windows_;
};

}  // namespace tarnvik
