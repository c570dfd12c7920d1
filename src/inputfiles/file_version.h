// The version of a data or parameter file, as its first line names it.
#pragma once

#include <optional>
#include <string_view>

namespace tarnvik {

// The version that is written. Files of earlier ones are read as well.
inline constexpr double kVersionCurrent = 1.4;

// The number behind "Tarnvik Version"; nothing for a line without these words, which counts as the oldest.
std::optional<double> FileVersion(std::string_view first_line);

}  // namespace tarnvik
