// Lines of numbers as the output files hold them.
#pragma once

#include "grid.h"
#include "numbers.h"

#include <optional>
#include <string>
#include <vector>

namespace model {

inline std::string NumberText(int value) { return std::to_string(value); }
inline std::string NumberText(double value) { return General(value); }
inline std::string NumberText(const std::optional<double>& value) { return value ? General(*value) : "N/A"; }

// " 2001 2002 2003": each value with a blank in front.
template <class Values>
std::string Joined(const Values& values) {
  std::string text;
  for (const auto& value : values) text += ' ' + NumberText(value);
  return text;
}

template <class T>
std::vector<T> RowOf(const Grid<T>& table, int row) {
  const auto begin = table.cells.begin() + static_cast<std::ptrdiff_t>(row) * table.columns;
  return {begin, begin + table.columns};
}

}  // namespace model
