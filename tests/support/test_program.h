// The program under test: a host that answers boxes and dialogs from queues and keeps what was shown, and a
// fixture that starts the program in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/host.h"
#include "program/program.h"

namespace tarnvik {

struct ShownMessage {
  std::string text;
  Icon icon;
  Buttons buttons;
  Answer answer;
};

class TestHost : public Host {
 public:
  Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  void BringToFront(Form&) override {}
  void ShowModal(FormSlot& slot) override;
  void FormUnloaded(Form&) override {}
  void PopUpMenu(Control& menu) override { popped_up.push_back(menu.Name()); }
  void ProcessEvents() override {}
  void SetPointer(Pointer) override {}
  void SetClipboard(std::string text) override { clipboard = std::move(text); }
  void ExportChart(const Chart& chart, const std::string& path) override;
  std::int32_t CreateConsoleProcess(const std::string& command) override;
  void StartProgram(const std::string& command) override { started.push_back(command); }
  int OpenDocument(const std::string& path) override;
  DateTime Now() override { return now; }
  std::string ProgramFolder() override { return program_folder; }

  // To be set by a test. A box without a queued answer takes its only button, else Cancel, else No.
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> files;  // answers of file dialogs; nothing cancels
  std::deque<std::function<void()>> modal_acts;  // what the user does in the next modal form
  std::function<std::int32_t(const std::string&)>
      process;  // the next processes; without it they run for real
  DateTime now{2026, 11, 16, 1, 5};
  std::string program_folder;
  // Kept for a test to look at.
  std::vector<ShownMessage> messages;
  std::vector<FileDialog> dialogs;
  std::vector<std::string> commands, started, opened, popped_up;
  std::vector<std::string> pictures;  // "Chart4 Title" of each exported chart; the file holds the same text
  std::string clipboard;

  // The texts of the boxes shown since the last call, line breaks as "|".
  std::vector<std::string> TakeTexts();
};

// Each test runs in a new folder, which is the current folder and the program's own, and starts the program
// there.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  // A path in the test's folder.
  std::string InFolder(const std::string& name) const;
  TestHost host;
  std::string folder;

 private:
  std::string previous_folder_;
};

void WriteBytes(const std::string& path, const std::string& bytes);
std::string ReadBytes(const std::string& path);
// Copies the example case into a folder and returns the path of its control file there.
std::string CopyExample(const std::string& folder);

}  // namespace tarnvik
