#include "bench_host.h"

namespace tarnvik {

Answer BenchHost::ShowMessage(const std::string& text, Icon, Buttons buttons, Answer) {
  last_message = text;
  return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
}

std::optional<std::string> BenchHost::ShowFileDialog(const FileDialog&) {
  if (files.empty()) return std::nullopt;
  const std::string path = files.front();
  files.pop_front();
  return path;
}

}  // namespace tarnvik
