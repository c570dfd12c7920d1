// Output files, which other programs find by name: there when whole, else not there.
#pragma once

#include <filesystem>
#include <string>

namespace model {

// Removes `name` from `folder` if it is there. Raises Failure(kCannotWrite) when it cannot be removed.
void RemoveOldFile(const std::filesystem::path& folder, const std::string& name);

// Writes `text` beside the final place, under the name with "~" behind it, and renames. Line ends are the
// platform's. Raises Failure(kCannotWrite); then neither file is left behind.
void WriteWholeFile(const std::filesystem::path& folder, const std::string& name, const std::string& text);

}  // namespace model
