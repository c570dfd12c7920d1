#include "inputfiles/file_version.h"

#include "core/text.h"

namespace tarnvik {

std::optional<double> FileVersion(std::string_view first_line) {
  constexpr std::string_view kMarker = "TARNVIK VERSION";
  const std::size_t marker = FindUpper(first_line, kMarker);
  if (marker == std::string_view::npos) return std::nullopt;
  // One character, the blank, stands between the marker and the number.
  const std::size_t number = marker + kMarker.size() + 1;
  return number < first_line.size() ? Val(first_line.substr(number)) : 0.0;
}

}  // namespace tarnvik
