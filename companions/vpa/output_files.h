// Files that are written whole or not at all.
#pragma once

#include <string>
#include <vector>

namespace vpa {

struct OutputFile {
  std::string path;
  std::string text;
};

// Writes all of them, or none: each first beside its place under its name with "~" behind it; only when all
// are whole do they take their places. Raises a Fault, with whatever lay there before back in its place.
void WriteAllOrNone(const std::vector<OutputFile>& files);

}  // namespace vpa
