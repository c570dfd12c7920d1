// The words of a command line, and the names and numbers among them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

// A line split at blanks. A word may stand in double quotes: it may hold blanks then, and \" \\ \n \r \t are
// understood. A quote inside a bare word is a character like any other, and so is a tab.
struct SplitLine {
  std::vector<std::string> words;
  std::string fault;  // what is wrong with the line, "" when nothing is
};
SplitLine SplitWords(std::string_view line);

// A whole number; nothing when the word is anything else or too large.
std::optional<int> ReadNumber(std::string_view word);

// A name, perhaps with indices behind it: "SurvTitle(2)", "SurvAgeFit(1,3,14)".
struct IndexedName {
  std::string_view name;
  std::vector<int> at;
};
// Nothing when the brackets or the numbers between them are not well formed.
std::optional<IndexedName> ReadIndexedName(std::string_view word);

}  // namespace tarnvik
