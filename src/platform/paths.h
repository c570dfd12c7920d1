// Paths in the host's form, and the questions about files that need no content.
#pragma once

#include <string>
#include <string_view>

namespace tarnvik {

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

// Position of the last separator of a path, npos when there is none: `\` everywhere, `/` on hosts that use
// it.
std::size_t LastSeparator(std::string_view path);
// Whether a path begins at a root of the file system.
bool IsAbsolutePath(std::string_view path);
// folder and name with one separator between; the name alone when the folder is "".
std::string JoinPath(std::string_view folder, std::string_view name);

// The path of a file that exists: as written or, where the host tells upper and lower case apart and nothing
// exists as written, the one entry of its folder that matches ignoring case. "" when there is none.
std::string ExistingPath(const std::string& path);
// Whether a file (not a folder) exists under that name, ignoring case as above.
bool FileExists(const std::string& path);
// Whether a file exists exactly as written: what writing to that path would replace.
bool FileExistsAsWritten(const std::string& path);
bool FolderExists(const std::string& path);

std::string CurrentFolder();  // without a final separator, but for a root
// Raises 76 "Path not found".
void ChangeFolder(const std::string& folder);

// Whether a's last-write time is later than or equal to b's. False when a time cannot be read.
bool WrittenNotBefore(const std::string& a, const std::string& b);

// Copies a file onto another, keeping its last-write time. Raises 53, 61, 70, 75 or 76.
void CopyFileKeepingTime(const std::string& from, const std::string& to);
// Raises 53 or 70.
void DeleteExistingFile(const std::string& path);
// Deletes the files, not the folders, whose names end in a text such as ".mtf", ignoring case. Raises 70
// or 75.
void DeleteFilesEndingIn(const std::string& folder, std::string_view ending);
// Raises 61, 70, 75 or 76.
void CreateFolder(const std::string& folder);

}  // namespace tarnvik
