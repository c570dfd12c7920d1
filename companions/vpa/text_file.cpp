#include "text_file.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

namespace vpa {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = std::size_t{16} << 20;

// 0x1A ends the text files of some old editors.
constexpr std::string_view kBlanks = " \t\x1A";

}  // namespace

TextFile OpenTextFile(const std::string& file) {
  std::error_code ignored;
  const fs::file_status status = fs::status(file, ignored);
  if (status.type() == fs::file_type::not_found) throw Fault(file, "file not found");
  if (fs::is_directory(status)) throw Fault(file, "is a folder, not a file");
  if (fs::exists(status) && !fs::is_regular_file(status)) throw Fault(file, "is not a plain file");
  std::ifstream in(file, std::ios::binary);
  if (!in) throw Fault(file, "cannot be opened; is it readable?");

  TextFile text;
  text.name = file;
  std::array<char, 65536> block{};
  do {
    in.read(block.data(), block.size());
    text.bytes.append(block.data(), static_cast<std::size_t>(in.gcount()));
    if (text.bytes.size() > kLargestFile) throw Fault(file, "is larger than 16 MB");
  } while (in);
  if (text.bytes.find('\0') != std::string::npos)
    throw Fault(file, "is not a text file; saved by a spreadsheet or as UTF-16?");
  if (text.bytes.compare(0, 3, "\xEF\xBB\xBF") == 0)
    text.at = 3;  // the mark that some editors put before UTF-8
  return text;
}

std::optional<Line> NextRawLine(TextFile& file) {
  if (file.at >= file.bytes.size()) return std::nullopt;
  const std::string_view rest = std::string_view(file.bytes).substr(file.at);
  const std::size_t length = std::min(rest.find_first_of("\r\n"), rest.size());
  const bool both = rest.substr(length, 2) == "\r\n";
  file.at += std::min(length + (both ? 2 : 1), rest.size());
  return Line{rest.substr(0, length), ++file.line};
}

std::optional<Line> NextLine(TextFile& file) {
  while (std::optional<Line> line = NextRawLine(file)) {
    line->text = Trimmed(line->text.substr(0, line->text.find('#')));
    if (!line->text.empty()) return line;
  }
  return std::nullopt;
}

Line WantLine(TextFile& file, const std::string& wanted) {
  const std::optional<Line> line = NextLine(file);
  if (!line)
    throw Fault(file.name, std::max<std::size_t>(file.line, 1),
                "the file ends where " + wanted + " should follow");
  return *line;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  for (text = Trimmed(text); !text.empty(); text = Trimmed(text)) {
    words.push_back(text.substr(0, text.find_first_of(kBlanks)));
    text.remove_prefix(words.back().size());
  }
  return words;
}

std::string Quotable(std::string_view text) {
  constexpr std::size_t longest = 40;
  std::string quoted(text.substr(0, longest));
  for (char& c : quoted)
    if (static_cast<unsigned char>(c) < 0x20 || c == '\x7F') c = '?';
  return text.size() > longest ? quoted + "..." : quoted;
}

std::string NotANumber(std::string_view word) {
  const bool comma =
      word.find(',') != std::string_view::npos && word.find_first_of("0123456789") != word.npos;
  return "'" + Quotable(word) + "' is not a number" + (comma ? "; a comma as decimal separator?" : "");
}

}  // namespace vpa
