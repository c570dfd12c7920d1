// The rows of an arrangement (layouts.h), taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnvik {

struct Cell {
  enum class Kind { Controls, Text, Rows, Empty, Gap };
  Kind kind = Kind::Empty;
  std::vector<std::string> names;       // of controls that share the place; one as a rule
  std::string text;                     // of a text
  std::vector<std::vector<Cell>> rows;  // of rows within the row
  int share = 1;
};

using Rows = std::vector<std::vector<Cell>>;

// Raises std::invalid_argument for what is no arrangement.
Rows ReadArrangement(std::string_view text);

}  // namespace tarnvik
