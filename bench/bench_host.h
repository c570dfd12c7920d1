// A host without a user: answers Yes or OK to everything and takes file names from a queue.
#pragma once

#include <deque>
#include <string>

#include "platform/host.h"

namespace tarnvik {

class BenchHost : public Host {
 public:
  Answer ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer default_answer) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  void BringToFront(Form&) override {}
  void ShowModal(FormSlot&) override {}
  void FormUnloaded(Form&) override {}
  void PopUpMenu(Control&) override {}
  void ProcessEvents() override {}
  void SetPointer(Pointer) override {}
  void SetClipboard(std::string) override {}
  void ExportChart(const Chart&, const std::string&) override {}
  std::int32_t CreateConsoleProcess(const std::string&) override { return 0; }
  void StartProgram(const std::string&) override {}
  int OpenDocument(const std::string&) override { return 33; }
  DateTime Now() override { return {2026, 11, 16, 1, 5}; }
  std::string ProgramFolder() override { return folder; }

  std::string folder;
  std::deque<std::string> files;
  std::string last_message;
};

}  // namespace tarnvik
