#include "platform/paths.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "platform/runtime_error.h"

namespace fs = std::filesystem;

namespace tarnvik {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == kPathSeparator; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (Lower(a[i]) != Lower(b[i])) return false;
  }
  return true;
}

bool IsFile(const fs::path& path) {
  std::error_code error;
  const auto status = fs::status(path, error);
  return !error && fs::exists(status) && !fs::is_directory(status);
}

// A name with a zero byte or of absurd length names nothing; the system would cut or refuse it.
bool CanNameAFile(const std::string& path) {
  return !path.empty() && path.size() < 32000 && path.find('\0') == std::string::npos;
}

[[noreturn]] void RaiseFor(const std::error_code& error) {
  if (error == std::errc::no_such_file_or_directory) throw RunTimeError(kErrFileNotFound);
  if (error == std::errc::no_space_on_device) throw RunTimeError(kErrDiskFull);
  if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
      error == std::errc::read_only_file_system) {
    throw RunTimeError(kErrPermission);
  }
  throw RunTimeError(kErrPathAccess);
}

}  // namespace

std::size_t LastSeparator(std::string_view path) {
  for (std::size_t i = path.size(); i > 0; --i) {
    if (IsSeparator(path[i - 1])) return i - 1;
  }
  return std::string_view::npos;
}

bool IsAbsolutePath(std::string_view path) {
  if (!path.empty() && IsSeparator(path[0])) return true;
  return path.size() > 2 && path[1] == ':' && IsSeparator(path[2]);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && !IsSeparator(path.back())) path += kPathSeparator;
  path += name;
  return path;
}

std::string ExistingPath(const std::string& path) {
  if (!CanNameAFile(path)) return "";
  std::error_code error;
  if (fs::exists(path, error)) return path;
  const fs::path wanted(path);
  const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
  const std::string name = wanted.filename().string();
  fs::path match;
  int matches = 0;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (SameIgnoringCase(entry->path().filename().string(), name)) {
      match = entry->path();
      ++matches;
    }
  }
  if (matches != 1) return "";
  return wanted.has_parent_path() ? match.string() : match.filename().string();
}

bool FileExists(const std::string& path) {
  const std::string existing = ExistingPath(path);
  return !existing.empty() && IsFile(existing);
}

bool FileExistsAsWritten(const std::string& path) { return CanNameAFile(path) && IsFile(path); }

bool FolderExists(const std::string& path) {
  std::error_code error;
  return CanNameAFile(path) && fs::is_directory(path, error);
}

std::string CurrentFolder() {
  std::error_code error;
  const fs::path folder = fs::current_path(error);
  return error ? std::string() : folder.string();
}

void ChangeFolder(const std::string& folder) {
  std::error_code error;
  if (CanNameAFile(folder)) fs::current_path(folder, error);
  if (error || !CanNameAFile(folder)) throw RunTimeError(kErrPathNotFound);
}

bool WrittenNotBefore(const std::string& a, const std::string& b) {
  std::error_code error;
  const auto time_a = fs::last_write_time(ExistingPath(a), error);
  if (error) return false;
  const auto time_b = fs::last_write_time(ExistingPath(b), error);
  return !error && time_a >= time_b;
}

void CopyFileKeepingTime(const std::string& from, const std::string& to) {
  const std::string source = ExistingPath(from);
  if (source.empty() || !IsFile(source)) throw RunTimeError(kErrFileNotFound);
  const std::size_t separator = LastSeparator(to);
  if (separator != std::string::npos && separator > 0 && !FolderExists(to.substr(0, separator))) {
    throw RunTimeError(kErrPathNotFound);
  }
  std::error_code error;
  fs::copy_file(source, to, fs::copy_options::overwrite_existing, error);
  if (error) RaiseFor(error);
  const auto written = fs::last_write_time(source, error);
  if (!error) fs::last_write_time(to, written, error);
  if (error) RaiseFor(error);
}

void DeleteExistingFile(const std::string& path) {
  const std::string existing = ExistingPath(path);
  if (existing.empty()) throw RunTimeError(kErrFileNotFound);
  std::error_code error;
  fs::remove(existing, error);
  if (error) RaiseFor(error);
}

void DeleteFilesEndingIn(const std::string& folder, std::string_view ending) {
  // Listed first: what deleting does to a listing under way differs between systems.
  std::vector<fs::path> files;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    const bool matches = name.size() >= ending.size() &&
                         SameIgnoringCase(std::string_view(name).substr(name.size() - ending.size()), ending);
    if (matches && !fs::is_directory(entry->symlink_status())) files.push_back(entry->path());
  }
  for (std::size_t i = 0; !error && i < files.size(); ++i) fs::remove(files[i], error);
  if (error) RaiseFor(error);
}

void CreateFolder(const std::string& folder) {
  std::error_code error;
  fs::create_directory(folder, error);
  if (error == std::errc::no_such_file_or_directory) throw RunTimeError(kErrPathNotFound);
  if (error) RaiseFor(error);
  if (!FolderExists(folder)) throw RunTimeError(kErrPathAccess);
}

}  // namespace tarnvik
