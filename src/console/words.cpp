#include "console/words.h"

#include <charconv>

namespace tarnvik {

namespace {

// Reads the word in quotes that begins at `at`, which is left behind the closing quote. Returns the fault.
std::string ReadQuoted(std::string_view line, std::size_t& at, std::string& word) {
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      return at < line.size() && line[at] != ' ' ? "no blank behind a closing quote" : "";
    }
    if (line[at] != '\\') {
      word += line[at];
      continue;
    }
    if (++at == line.size()) break;
    switch (line[at]) {
      case '"':
      case '\\':
        word += line[at];
        break;
      case 'n':
        word += '\n';
        break;
      case 'r':
        word += '\r';
        break;
      case 't':
        word += '\t';
        break;
      default:
        return std::string("\\") + line[at] + " is not understood inside quotes; a backslash is \\\\";
    }
  }
  return "a quote is not closed";
}

}  // namespace

SplitLine SplitWords(std::string_view line) {
  SplitLine split;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(' ', at)) != std::string_view::npos) {
    std::string word;
    if (line[at] == '"') {
      split.fault = ReadQuoted(line, at, word);
      if (!split.fault.empty()) return split;
    } else {
      const std::size_t end = std::min(line.find(' ', at), line.size());
      word = line.substr(at, end - at);
      at = end;
    }
    split.words.push_back(std::move(word));
  }
  return split;
}

std::optional<int> ReadNumber(std::string_view word) {
  int number = 0;
  const char* end = word.data() + word.size();
  const auto read = std::from_chars(word.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

std::optional<IndexedName> ReadIndexedName(std::string_view word) {
  const std::size_t bracket = word.find('(');
  if (bracket == std::string_view::npos) return IndexedName{word, {}};
  if (word.back() != ')') return std::nullopt;
  IndexedName name{word.substr(0, bracket), {}};
  std::string_view rest = word.substr(bracket + 1, word.size() - bracket - 2);
  while (true) {
    const std::size_t comma = rest.find(',');
    const auto number = ReadNumber(rest.substr(0, comma));
    if (!number) return std::nullopt;
    name.at.push_back(*number);
    if (comma == std::string_view::npos) return name;
    rest.remove_prefix(comma + 1);
  }
}

}  // namespace tarnvik
