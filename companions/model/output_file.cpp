#include "output_file.h"

#include "messages.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace model {

namespace {

Failure CannotWrite(const std::string& name, const std::error_code& reason) {
  return {kCannotWrite, "cannot write " + name + ": " + reason.message()};
}

std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

}  // namespace

void RemoveOldFile(const std::filesystem::path& folder, const std::string& name) {
  const std::filesystem::path path = folder / name;
  std::error_code fault;
  if (std::filesystem::is_directory(path, fault))
    throw CannotWrite(name, std::make_error_code(std::errc::is_a_directory));
  fault.clear();
  std::filesystem::remove(path, fault);
  if (fault) throw CannotWrite(name, fault);
}

void WriteWholeFile(const std::filesystem::path& folder, const std::string& name, const std::string& text) {
  const std::filesystem::path path = folder / name;
  const std::filesystem::path unfinished = folder / (name + "~");
  errno = 0;
  std::ofstream file(unfinished);
  if (!file) throw CannotWrite(name, LastError());
  file << text << std::flush;
  const bool written = file.good();
  const std::error_code reason = LastError();
  file.close();
  std::error_code fault;
  if (!written || !file) {
    std::filesystem::remove(unfinished, fault);
    throw CannotWrite(name, reason);
  }
  std::filesystem::rename(unfinished, path, fault);
  if (fault) {
    std::error_code ignored;
    std::filesystem::remove(unfinished, ignored);
    throw CannotWrite(name, fault);
  }
}

}  // namespace model
