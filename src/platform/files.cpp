#include "platform/files.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

constexpr std::size_t kFlushBytes = std::size_t{1} << 20;

int ErrorOfErrno(int code, int otherwise) {
  switch (code) {
    case ENOENT: return kErrPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS: return kErrPathAccess;
    case ENOSPC: return kErrDiskFull;
    default: return otherwise;
  }
}

}  // namespace

void InputFile::Open(const std::string& path) {
  Close();
  const std::string existing = ExistingPath(path);
  if (existing.empty()) throw RunTimeError(kErrFileNotFound);
  // Pipes and devices have no end to wait for.
  std::error_code error;
  if (!std::filesystem::is_regular_file(existing, error)) throw RunTimeError(kErrPathAccess);
  std::FILE* file = std::fopen(existing.c_str(), "rb");
  if (!file) throw RunTimeError(kErrPathAccess);
  const auto size = std::filesystem::file_size(existing, error);
  if (error || size > kMaxInputBytes) {
    std::fclose(file);
    throw RunTimeError(error ? kErrPathAccess : kErrOutOfMemory);
  }
  text_.resize(static_cast<std::size_t>(size));
  const std::size_t read = std::fread(text_.data(), 1, text_.size(), file);
  const bool failed = std::ferror(file) != 0;
  std::fclose(file);
  text_.resize(read);
  if (failed) {
    Close();
    throw RunTimeError(kErrPathAccess);
  }
  open_ = true;
}

void InputFile::Close() {
  open_ = false;
  at_ = 0;
  text_ = std::string();
}

std::string_view InputFile::ReadLine() {
  if (!open_) throw RunTimeError(kErrBadFileName);
  if (AtEnd()) throw RunTimeError(kErrPastEnd);
  const std::string_view rest = std::string_view(text_).substr(at_);
  const std::size_t end = rest.find_first_of("\r\n");
  if (end == std::string_view::npos) {
    at_ = text_.size();
    return rest;
  }
  const bool pair = rest[end] == '\r' && end + 1 < rest.size() && rest[end + 1] == '\n';
  at_ += end + (pair ? 2 : 1);
  return rest.substr(0, end);
}

OutputFile::~OutputFile() {
  if (!file_) return;
  std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
  std::fclose(file_);
}

void OutputFile::Open(const std::string& path) {
  if (FolderExists(path)) throw RunTimeError(kErrPathAccess);
  errno = 0;
  file_ = path.empty() ? nullptr : std::fopen(path.c_str(), "wb");
  if (!file_) throw RunTimeError(ErrorOfErrno(errno, kErrPathAccess));
  buffer_.clear();
}

void OutputFile::EndLine() {
  buffer_ += "\r\n";
  if (buffer_.size() >= kFlushBytes) Flush();
}

void OutputFile::Flush() {
  if (!file_) throw RunTimeError(kErrBadFileName);
  errno = 0;
  const std::size_t written = std::fwrite(buffer_.data(), 1, buffer_.size(), file_);
  const bool whole = written == buffer_.size() && std::fflush(file_) == 0;
  const int code = errno;
  buffer_.clear();
  if (!whole) throw RunTimeError(ErrorOfErrno(code, kErrDeviceIo));
}

void OutputFile::Close() {
  Flush();
  std::FILE* file = file_;
  file_ = nullptr;
  errno = 0;
  if (std::fclose(file) != 0) throw RunTimeError(ErrorOfErrno(errno, kErrDeviceIo));
}

}  // namespace tarnvik
