#include "output_files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "text_file.h"

namespace vpa {

namespace {

namespace fs = std::filesystem;

std::string Unfinished(const OutputFile& file) { return file.path + "~"; }
std::string Former(const OutputFile& file) { return file.path + "~former"; }

Fault CannotWrite(const std::string& path, const std::error_code& reason) {
  return {path, "cannot be written: " + reason.message()};
}

void WriteUnfinished(const OutputFile& file) {
  errno = 0;
  std::ofstream out(Unfinished(file), std::ios::binary);
  out << file.text << std::flush;
  const std::error_code reason(errno != 0 ? errno : EIO, std::generic_category());
  out.close();
  if (!out) throw CannotWrite(file.path, reason);
}

// Moves what lies in the file's place aside, and the new file there.
void TakePlace(const OutputFile& file) {
  std::error_code fault;
  if (fs::is_directory(file.path, fault))
    throw CannotWrite(file.path, std::make_error_code(std::errc::is_a_directory));
  const bool has_former = fs::exists(file.path, fault);
  fault.clear();
  if (has_former) fs::rename(file.path, Former(file), fault);
  if (!fault) fs::rename(Unfinished(file), file.path, fault);
  if (fault) throw CannotWrite(file.path, fault);
}

void PutBack(const std::vector<OutputFile>& files, std::size_t placed) {
  std::error_code ignored;
  for (std::size_t i = 0; i < files.size(); ++i) {
    fs::remove(Unfinished(files[i]), ignored);
    if (i < placed) fs::remove(files[i].path, ignored);
    if (fs::exists(Former(files[i]), ignored)) fs::rename(Former(files[i]), files[i].path, ignored);
  }
}

}  // namespace

void WriteAllOrNone(const std::vector<OutputFile>& files) {
  std::size_t placed = 0;
  std::error_code ignored;
  for (const OutputFile& file : files) fs::remove(Former(file), ignored);  // of a run that was cut short
  try {
    for (const OutputFile& file : files) WriteUnfinished(file);
    for (; placed < files.size(); ++placed) TakePlace(files[placed]);
  } catch (...) {
    PutBack(files, placed);
    throw;
  }
  for (const OutputFile& file : files) fs::remove(Former(file), ignored);
}

}  // namespace vpa
