#include "platform/process.h"

namespace tarnvik {

CommandLine TakeApart(std::string_view command) {
  CommandLine line;
  std::vector<std::string> words;
  std::size_t at = 0;
  while (true) {
    at = command.find_first_not_of(' ', at);
    if (at == std::string_view::npos) break;
    std::size_t end = command.find(' ', at);
    if (end == std::string_view::npos) end = command.size();
    words.emplace_back(command.substr(at, end - at));
    at = end;
  }
  std::size_t word = 0;
  if (words.size() >= 2 && words[0] == "CMD.EXE" && words[1] == "/C") {
    line.interpreted = true;
    word = 2;
  }
  for (; word < words.size(); ++word) {
    if (words[word] == "2>" && word + 1 < words.size()) {
      line.error_file = words[++word];
    } else {
      line.words.push_back(words[word]);
    }
  }
  return line;
}

}  // namespace tarnvik
