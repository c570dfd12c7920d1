#include "value_stream.h"

#include "messages.h"
#include "numbers.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>

namespace model {

namespace {

constexpr std::size_t kLargestFile = std::size_t{256} << 20;
constexpr double kVersion = 1.4;

// 0x1A ends the text files of some old editors.
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\x1A'; }

std::string ReadBytes(const std::string& file) {
  std::error_code ignored;
  std::ifstream in;
  if (!std::filesystem::is_directory(file, ignored)) in.open(file, std::ios::binary);
  if (!in.is_open()) throw Failure(kInputFault, file + ": cannot open file");
  std::string bytes;
  std::array<char, 65536> block{};
  do {
    in.read(block.data(), block.size());
    bytes.append(block.data(), static_cast<std::size_t>(in.gcount()));
    if (bytes.size() > kLargestFile) throw Failure(kInputFault, file + ": file is larger than 256 MB");
  } while (in);
  return bytes;
}

// Files of other versions hold other items; reading on would only give a misleading fault further down.
void CheckVersion(const ValueStream& stream) {
  constexpr std::string_view marker = "TARNVIK VERSION";
  std::string first = stream.content->substr(0, std::min<std::size_t>(stream.content->find('\n'), 1000));
  std::transform(first.begin(), first.end(), first.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  const std::size_t found = first.find(marker);
  if (found == std::string::npos) return;
  const std::size_t begin = first.find_first_not_of(" \t", found + marker.size());
  if (begin == std::string::npos) return;
  std::size_t end = first.find_first_not_of("0123456789.", begin);
  if (end == std::string::npos) end = first.size();
  const std::string number = first.substr(begin, end - begin);
  const std::optional<double> version = ReadNumber(number);
  if (version && *version < kVersion)
    throw Failure(kInputFault,
                  stream.file + ": line 1: file version " + number + ", this program reads version 1.4");
}

}  // namespace

ValueStream OpenValueStream(const std::string& file) {
  ValueStream stream;
  stream.file = file;
  stream.content = std::make_shared<const std::string>(ReadBytes(file));
  if (stream.content->compare(0, 3, "\xEF\xBB\xBF") == 0)
    stream.at = 3;  // the mark that some editors put before UTF-8
  CheckVersion(stream);
  return stream;
}

std::optional<Token> NextToken(ValueStream& stream) {
  const std::string_view all = *stream.content;
  while (stream.at < all.size()) {
    const char c = all[stream.at];
    if (c == '\n') {
      ++stream.line;
      ++stream.at;
    } else if (IsBlank(c)) {
      ++stream.at;
    } else if (c == '#') {
      stream.at = std::min(all.find('\n', stream.at), all.size());
    } else {
      const std::size_t begin = stream.at;
      while (stream.at < all.size() && !IsBlank(all[stream.at]) && all[stream.at] != '\n' &&
             all[stream.at] != '#')
        ++stream.at;
      return Token{all.substr(begin, stream.at - begin), stream.line};
    }
  }
  return std::nullopt;
}

std::size_t CountValuesLeft(const ValueStream& stream) {
  ValueStream rest{stream};
  std::size_t count = 0;
  while (NextToken(rest)) ++count;
  return count;
}

std::string Quotable(std::string_view text) {
  constexpr std::size_t longest = 40;
  std::string quoted(text.substr(0, longest));
  for (char& c : quoted)
    if (static_cast<unsigned char>(c) < 0x20 || c == '\x7F') c = '?';
  return text.size() > longest ? quoted + "..." : quoted;
}

}  // namespace model
