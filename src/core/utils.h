// Small helpers on files, paths and dates on which the file formats rest.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tarnvik {

// The text file that a routine has open for input, one at a time; closed at the routine's end or in its trap.
extern InputFile File1;

// What ReadDataLine keeps between calls.
struct LineBuffer {
  std::int16_t pending = 0;  // whether rest holds a part of the last physical line
  std::string rest;
};
extern LineBuffer LineBuf;

// The next logical line of File1 with its comment removed: lines that begin with "#" are skipped, tabs and
// double quotes become blanks. A blank line gives "", and so does every line behind the end of the file: a
// reader sees a cut file as one of zeros. Never raises. The position of a comment behind values is counted on
// the trimmed text and applied to the untrimmed one: leading blanks cost as many characters at the end, and
// the formats rely on it. The view holds until the next call.
std::string_view ReadDataLine();

// The path up to and with its last separator, "" when it has none.
std::string DirOfPath(std::string_view path);
// A path cut behind its last dot, followed by the ending ("rep"); a path without a dot gives the ending
// alone.
std::string WithEnding(std::string_view path, std::string_view ending);
// A path without its last three characters, followed by "log".
std::string LogPathOf(std::string_view control_path);
// "TARNVIK" and month, day, year, hour and minute of now, two digits each: the root of default file names.
std::string DefaultRootName();
std::int16_t CurrentYear();
std::string PresentDate();  // "11/16/2026": month, day, year
// A name in the program's own folder.
std::string InProgramFolder(std::string_view name);
// -1 when A was last written at the same time as B or later, else 0. Both must exist.
std::int16_t FileIsNotOlder(const std::string& path_a, const std::string& path_b);

}  // namespace tarnvik
