// The characters of the program's texts, which are bytes of whatever encoding a file was written in.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

// The text as valid UTF-8: sequences of valid UTF-8 stay, each other byte stands for its character of
// Windows-1252.
std::string ToUtf8(std::string_view bytes);

}  // namespace tarnvik
