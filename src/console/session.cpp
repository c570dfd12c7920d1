#include "console/session.h"

#include <utility>

#include "console/commands.h"
#include "console/words.h"
#include "platform/form.h"
#include "program/program.h"

namespace tarnvik {

Session::Session(SessionStreams streams, std::string program_folder, std::optional<DateTime> now)
    : streams_(std::move(streams)),
      host_([this](const std::string& line) { WriteLine(line); }, std::move(program_folder), now) {
  host_.run_modal = [this](const FormSlot& slot) {
    ++modal_forms_shown_;
    ReadCommands(&slot);
  };
}

void Session::WriteLine(const std::string& line) {
  // Nobody listens any more: the same as nobody speaking.
  if (!streams_.write(line)) input_ended_ = true;
}

void Session::ReadCommands(const FormSlot* modal) {
  const Form* record = modal ? modal->Record() : nullptr;
  std::string line;
  while (!input_ended_ && ProgramRunning() && (!modal || modal->Record() == record)) {
    if (streams_.read(line)) {
      Perform(line);
    } else {
      input_ended_ = true;
    }
  }
}

// The line is kept, since commands of a modal form that this one opens are read before it ends.
void Session::Perform(std::string line) {
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string::npos || line[first] == '#') return;
  const int shown_before = modal_forms_shown_;
  const SplitLine split = SplitWords(line);
  const Outcome outcome =
      split.fault.empty() ? RunCommand(host_, split.words) : Outcome{"error", JsonText(split.fault)};
  // Other results have been written since a modal form was opened: this one says to which line it belongs.
  if (modal_forms_shown_ == shown_before) {
    WriteLine(JsonObject({{outcome.key, outcome.value}}));
  } else {
    WriteLine(JsonObject({{outcome.key, outcome.value}, {"for", JsonText(line)}}));
  }
}

void Session::Run() {
  StartProgram(host_);
  host_.tells_windows = true;
  ReadCommands(nullptr);
  host_.tells_windows = false;
  RunEvent(EndProgram);
}

}  // namespace tarnvik
