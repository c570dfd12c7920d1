// A text file, line by line and word by word, and the one way in which a fault in it is told.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vpa {

// Ends the program. The text is the one line that the user gets: file, line (where there is one), reason.
struct Fault : std::runtime_error {
  Fault(const std::string& file, const std::string& reason) : std::runtime_error(file + ": " + reason) {}
  Fault(const std::string& file, std::size_t line, const std::string& reason)
      : Fault(file, "line " + std::to_string(line) + ": " + reason) {}
};

struct Line {
  std::string_view text;   // points into the file
  std::size_t number = 0;  // counted from 1, blank and comment lines too
};

struct TextFile {
  std::string name;      // as it appears in messages
  std::string bytes;     // the whole file
  std::size_t at = 0;    // where the next line begins
  std::size_t line = 0;  // number of the line read last
};

// Reads `file` whole. A Fault when it is missing, a folder, unreadable, larger than 16 MB, or no text.
TextFile OpenTextFile(const std::string& file);

// The next line as it stands, without its end (LF, CR LF or CR); nothing at the end of the file.
std::optional<Line> NextRawLine(TextFile& file);

// The next line that has something to say: what follows a "#" is cut, blanks and tabs at both ends too, and
// lines of which nothing remains do not count.
std::optional<Line> NextLine(TextFile& file);

// As NextLine; a Fault at the end of the file, where `wanted` was still to come.
Line WantLine(TextFile& file, const std::string& wanted);

std::string_view Trimmed(std::string_view text);
std::vector<std::string_view> Words(std::string_view text);

// `text` for a message: without control characters, and cut when it is long.
std::string Quotable(std::string_view text);

// Why `word` is no number, with the likely cause.
std::string NotANumber(std::string_view word);

}  // namespace vpa
