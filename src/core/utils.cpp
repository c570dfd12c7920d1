#include "core/utils.h"

#include <algorithm>

#include "core/globals.h"
#include "core/text.h"
#include "platform/host.h"
#include "platform/paths.h"

namespace tarnvik {

InputFile File1;
LineBuffer LineBuf;

std::string_view ReadDataLine() {
  static std::string head;
  try {
    do {
      if (LineBuf.rest.empty() || LineBuf.pending == 0) LineBuf.rest.assign(File1.ReadLine());
      if (LineBuf.rest.empty()) return {};
    } while (LineBuf.rest[0] == '#');
  } catch (const RunTimeError&) {
    return {};
  }
  std::string& rest = LineBuf.rest;
  const std::size_t line_feed = rest.find('\n');
  if (line_feed == std::string::npos) {
    head.swap(rest);
    rest.clear();
    LineBuf.pending = kFalse;
  } else {
    head.assign(rest, 0, line_feed);
    rest.erase(0, line_feed + 1);
    LineBuf.pending = kTrue;
  }
  for (const char separator : {'\t', '"'}) {
    for (std::size_t at = head.find(separator); at != std::string::npos; at = head.find(separator, at))
      head[at] = ' ';
  }
  const std::size_t comment = Trim(head).find('#');
  return comment == std::string_view::npos ? std::string_view(head)
                                           : std::string_view(head).substr(0, comment);
}

std::string DirOfPath(std::string_view path) {
  const std::size_t separator = LastSeparator(path);
  return separator == std::string_view::npos ? std::string() : std::string(path.substr(0, separator + 1));
}

std::string WithEnding(std::string_view path, std::string_view ending) {
  const std::size_t dot = path.rfind('.');
  std::string text(dot == std::string_view::npos ? std::string_view() : path.substr(0, dot + 1));
  text += ending;
  return text;
}

std::string LogPathOf(std::string_view control_path) {
  return std::string(
             control_path.substr(0, control_path.size() - std::min<std::size_t>(3, control_path.size()))) +
         "log";
}

std::string DefaultRootName() {
  const DateTime now = TheHost().Now();
  std::string name = "TARNVIK";
  for (const int part : {now.month, now.day, now.year % 100, now.hour, now.minute}) {
    name += static_cast<char>('0' + part / 10 % 10);
    name += static_cast<char>('0' + part % 10);
  }
  return name;
}

std::string PresentDate() {
  const DateTime now = TheHost().Now();
  return std::to_string(now.month) + '/' + std::to_string(now.day) + '/' + std::to_string(now.year);
}

std::int16_t CurrentYear() { return Int16(TheHost().Now().year); }

std::string InProgramFolder(std::string_view name) { return JoinPath(TheHost().ProgramFolder(), name); }

std::int16_t FileIsNotOlder(const std::string& path_a, const std::string& path_b) {
  return Flag(WrittenNotBefore(path_a, path_b));
}

}  // namespace tarnvik
