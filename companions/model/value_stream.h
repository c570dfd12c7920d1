// An input file as one stream of values. Comments run from "#" to the end of the line; the lines themselves
// mean nothing but are counted, so that every fault can name the line in which it stands.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace model {

struct Token {
  std::string_view text;  // points into the stream's content
  int line = 0;           // physical line, from 1
};

struct ValueStream {
  std::string file;                            // name as the user gave it
  std::shared_ptr<const std::string> content;  // all bytes of the file; copies of the stream share them
  std::size_t at = 0;                          // next byte
  int line = 1;                                // line of that byte
};

// Reads the whole file. Raises Failure(kInputFault) for a file that cannot be read, that is no file, that is
// larger than 256 MB, or whose first line says that it was written for an older version of the formats.
ValueStream OpenValueStream(const std::string& file);

// The next value, or nothing at the end. A copy of the stream reads on from where it was copied.
std::optional<Token> NextToken(ValueStream& stream);

// The number of values not yet read; the stream stays where it is.
std::size_t CountValuesLeft(const ValueStream& stream);

// A token as it may stand in a message of one line: control characters replaced, shortened when it is long.
std::string Quotable(std::string_view text);

}  // namespace model
