#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

int ErrorOfErrno(int code, int otherwise) {
  switch (code) {
    case ENOENT:
      return kErrPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return kErrPathAccess;
    case ENOSPC:
      return kErrDiskFull;
    default:
      return otherwise;
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
  next_cr_ = std::min(text_.find('\r'), text_.size());
  next_lf_ = std::min(text_.find('\n'), text_.size());
  open_ = true;
}

void InputFile::Close() {
  open_ = false;
  at_ = 0;
  next_cr_ = next_lf_ = 0;
  std::string().swap(text_);  // an assignment would keep the room that the file took
}

std::string_view InputFile::ReadLine() {
  if (!open_) throw RunTimeError(kErrBadFileName);
  if (AtEnd()) throw RunTimeError(kErrPastEnd);
  const auto next = [this](char end, std::size_t& known) {
    if (known < at_) known = std::min(text_.find(end, at_), text_.size());
  };
  next('\r', next_cr_);
  next('\n', next_lf_);
  const std::string_view text = text_;
  const std::size_t end = std::min(next_cr_, next_lf_);
  const std::string_view line = text.substr(at_, end - at_);
  const bool pair = end == next_cr_ && next_lf_ == end + 1;
  // Beyond the text where the last line has no end of its own.
  at_ = end + (pair ? 2 : 1);
  return line;
}

OutputFile::~OutputFile() {
  if (!file_) return;
  std::fwrite(buffer_, 1, used_, file_);
  std::fclose(file_);
}

void OutputFile::Open(const std::string& path) {
  if (FolderExists(path)) throw RunTimeError(kErrPathAccess);
  errno = 0;
  file_ = path.empty() ? nullptr : std::fopen(path.c_str(), "wb");
  if (!file_) throw RunTimeError(ErrorOfErrno(errno, kErrPathAccess));
  std::setvbuf(file_, nullptr, _IONBF, 0);  // the buffer is here
  used_ = 0;
}

void OutputFile::PrintLong(std::string_view text) {
  Flush();
  if (text.size() > kBufferBytes) return WriteOut(text);
  Print(text);
}

void OutputFile::WriteOut(std::string_view text) {
  if (!file_) throw RunTimeError(kErrBadFileName);
  errno = 0;
  if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) {
    throw RunTimeError(ErrorOfErrno(errno, kErrDeviceIo));
  }
}

void OutputFile::Flush() {
  const std::string_view text(buffer_, used_);
  used_ = 0;
  WriteOut(text);
}

void OutputFile::Close() {
  Flush();
  std::FILE* file = file_;
  file_ = nullptr;
  errno = 0;
  if (std::fclose(file) != 0) throw RunTimeError(ErrorOfErrno(errno, kErrDeviceIo));
}

}  // namespace tarnvik
