#include "console/arguments.h"

#include <filesystem>
#include <string_view>

#include "console/words.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

int DaysOfMonth(int year, int month) {
  if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// "2026-11-16T01:05"
std::optional<DateTime> ReadMoment(const std::string& word) {
  const std::string_view form = "dddd-dd-ddTdd:dd";
  if (word.size() != form.size()) return std::nullopt;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool digit = word[i] >= '0' && word[i] <= '9';
    if (form[i] == 'd' ? !digit : word[i] != form[i]) return std::nullopt;
  }
  const auto number = [&](std::size_t at, std::size_t count) { return *ReadNumber(word.substr(at, count)); };
  const DateTime moment{number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2)};
  const bool exists = moment.month >= 1 && moment.month <= 12 && moment.day >= 1 &&
                      moment.day <= DaysOfMonth(moment.year, moment.month) && moment.hour < 24 &&
                      moment.minute < 60;
  return exists ? std::optional(moment) : std::nullopt;
}

// A full path without a final separator. The current folder moves with the file dialogs.
std::string FullFolder(const std::string& path) {
  std::string full = IsAbsolutePath(path) ? path : std::filesystem::canonical(path).string();
  while (full.size() > 1 && LastSeparator(full) == full.size() - 1) full.pop_back();
  return full;
}

}  // namespace

Arguments ReadArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  const auto fail = [&](const std::string& fault) {
    arguments.fault = fault;
    return arguments;
  };
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "--help") {
      arguments.help = true;
    } else if (word == "--app-dir" || word == "--now") {
      if (++i == words.size()) return fail(word + " needs a value");
      if (word == "--now") {
        arguments.now = ReadMoment(words[i]);
        if (!arguments.now) return fail(words[i] + " is not a moment like 2026-11-16T01:05");
      } else {
        if (!FolderExists(words[i])) return fail("no folder " + words[i]);
        arguments.program_folder = FullFolder(words[i]);
      }
    } else if (word.empty() || word[0] == '-') {
      return fail("unknown argument " + word);
    } else if (!arguments.script.empty()) {
      return fail("more than one script");
    } else {
      arguments.script = word;
    }
  }
  return arguments;
}

}  // namespace tarnvik
