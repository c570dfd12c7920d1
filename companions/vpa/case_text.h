// Lines of a case file: comments, values, and lists of values as the program writes them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vpa {

class CaseText {
 public:
  void Line(std::string_view line) { text_.append(line).append("\r\n"); }
  void Comment(std::string_view comment) { Line("# " + std::string(comment)); }
  // A comment and its one value.
  void Item(std::string_view comment, std::string_view value) {
    Comment(comment);
    Line(value);
  }
  // One line with each value followed by `gap`.
  void Values(const std::vector<std::string>& values, std::string_view gap) {
    std::string line;
    for (const std::string& value : values) line.append(value).append(gap);
    Line(line);
  }
  void Repeat(std::string_view value, std::size_t count, std::string_view gap) {
    Values(std::vector<std::string>(count, std::string(value)), gap);
  }
  void Flags(const std::vector<bool>& flags) {
    std::string line;
    for (const bool flag : flags) line += flag ? "1 " : "0 ";
    Line(line);
  }

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace vpa
