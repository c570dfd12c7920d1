#include "console/console_host.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <span>

#include "console/json_text.h"
#include "console/renderer.h"
#include "platform/form.h"
#include "platform/paths.h"
#include "platform/process.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

std::span<const Answer> AnswersOf(Buttons buttons) {
  static constexpr Answer kOk[] = {Answer::Ok};
  static constexpr Answer kOkCancel[] = {Answer::Ok, Answer::Cancel};
  static constexpr Answer kYesNo[] = {Answer::Yes, Answer::No};
  static constexpr Answer kYesNoCancel[] = {Answer::Yes, Answer::No, Answer::Cancel};
  switch (buttons) {
    case Buttons::Ok:
      return kOk;
    case Buttons::OkCancel:
      return kOkCancel;
    case Buttons::YesNo:
      return kYesNo;
    case Buttons::YesNoCancel:
      return kYesNoCancel;
  }
  return kOk;
}

const char* AnswerWord(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "ok";
    case Answer::Cancel:
      return "cancel";
    case Answer::Yes:
      return "yes";
    case Answer::No:
      return "no";
  }
  return "ok";
}

const char* IconWord(Icon icon) {
  switch (icon) {
    case Icon::None:
      return "none";
    case Icon::Information:
      return "information";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Question:
      return "question";
  }
  return "none";
}

// What a process prints is not part of the answers.
void PassToErrorStream(std::string_view piece) {
  std::fwrite(piece.data(), 1, piece.size(), stderr);
  std::fflush(stderr);
}

}  // namespace

ConsoleHost::ConsoleHost(std::function<void(const std::string&)> show, std::string program_folder,
                         std::optional<DateTime> now)
    : show_(std::move(show)), program_folder_(std::move(program_folder)), now_(now) {}

// --- Boxes and dialogs

Answer ConsoleHost::TakeAnswer(Buttons buttons) {
  const auto offered = AnswersOf(buttons);
  const auto offers = [&](Answer answer) {
    return std::find(offered.begin(), offered.end(), answer) != offered.end();
  };
  if (!answers.empty() && offers(answers.front())) {
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  if (offered.size() == 1) return offered[0];
  return offers(Answer::Cancel) ? Answer::Cancel : Answer::No;
}

Answer ConsoleHost::ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer) {
  const Answer answer = TakeAnswer(buttons);
  const auto offered = AnswersOf(buttons);
  const std::string words = JsonArray(0, static_cast<int>(offered.size()) - 1, [&](int i) {
    return JsonText(AnswerWord(offered[static_cast<std::size_t>(i)]));
  });
  show_(JsonObject({{"message", JsonObject({{"text", JsonText(text)},
                                            {"title", JsonText("Tarnvik")},
                                            {"icon", JsonText(IconWord(icon))},
                                            {"buttons", words},
                                            {"answer", JsonText(AnswerWord(answer))}})}}));
  return answer;
}

std::optional<std::string> ConsoleHost::ShowFileDialog(const FileDialog& dialog) {
  std::optional<std::string> path;
  if (!files.empty()) {
    path = std::move(files.front());
    files.pop_front();
  }
  show_(JsonObject({{"dialog", JsonObject({{"kind", JsonText(dialog.save ? "save" : "open")},
                                           {"title", JsonText(dialog.title)},
                                           {"filter", JsonText(dialog.filter)},
                                           {"default", JsonText(dialog.default_extension)},
                                           {"answer", path ? JsonText(*path) : "null"}})}}));
  if (path && dialog.moves_current_folder) {
    // A folder that is not there cannot be moved to; the flow finds out by itself.
    const std::string folder = path->substr(0, LastSeparator(*path) + 1);
    if (FolderExists(folder)) ChangeFolder(folder);
  }
  return path;
}

// --- Windows

void ConsoleHost::TellWindow(const std::string& form, bool modal) {
  if (!tells_windows) return;
  show_(JsonObject({{"form", JsonObject({{"show", JsonText(form)}, {"modal", JsonFlag(modal)}})}}));
}

void ConsoleHost::BringToFront(Form& form) {
  if (windows_.insert(&form).second) TellWindow(form.Name(), false);
}

void ConsoleHost::ShowModal(FormSlot& slot) {
  TellWindow(slot.Name(), true);
  modal_forms_.push_back(&slot);
  if (run_modal) run_modal(slot);
  modal_forms_.pop_back();
}

void ConsoleHost::FormUnloaded(Form& form) { windows_.erase(&form); }

// --- Processes

void ConsoleHost::TellProcess(const std::string& command, int result) {
  show_(JsonObject(
      {{"process", JsonObject({{"command", JsonText(command)}, {"result", JsonNumber(result)}})}}));
}

void ConsoleHost::ExportChart(const Chart& chart, const std::string& path) { DrawWithRenderer(chart, path); }

std::int32_t ConsoleHost::CreateConsoleProcess(const std::string& command) {
  const std::int32_t result = RunConsoleProcess(command, {PassToErrorStream, nullptr});
  TellProcess(command, result);
  return result;
}

void ConsoleHost::StartProgram(const std::string& command) {
  try {
    StartProcess(command);
  } catch (const RunTimeError&) {
    TellProcess(command, 0);
    throw;
  }
  TellProcess(command, 1);
}

int ConsoleHost::OpenDocument(const std::string& path) {
  const int result = OpenWithSystem(path);
  TellProcess(path, result);
  return result;
}

DateTime ConsoleHost::Now() {
  if (now_) return *now_;
  const std::time_t seconds = std::time(nullptr);
  const std::tm* now = std::localtime(&seconds);
  return {now->tm_year + 1900, now->tm_mon + 1, now->tm_mday, now->tm_hour, now->tm_min};
}

}  // namespace tarnvik
