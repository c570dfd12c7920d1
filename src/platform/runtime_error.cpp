#include "platform/runtime_error.h"

#include <new>
#include <utility>

namespace tarnvik {

namespace {

constexpr std::pair<int, const char*> kTexts[] = {
    {kErrOverflow, "Overflow"},
    {kErrOutOfMemory, "Out of memory"},
    {kErrSubscript, "Subscript out of range"},
    {kErrDivisionByZero, "Division by zero"},
    {kErrTypeMismatch, "Type mismatch"},
    {kErrBadFileName, "Bad file name or number"},
    {kErrFileNotFound, "File not found"},
    {kErrDeviceIo, "Device I/O error"},
    {kErrDiskFull, "Disk full"},
    {kErrPastEnd, "Input past end of file"},
    {kErrPermission, "Permission denied"},
    {kErrPathAccess, "Path/File access error"},
    {kErrPathNotFound, "Path not found"},
    {kErrNoControlElement, "Control array element doesn't exist"},
    {kErrInvalidProperty, "Invalid property value"},
    {kErrDialogCancelled, "Cancel was selected."},
};

}  // namespace

std::string RunTimeErrorText(int number) {
  for (const auto& [n, text] : kTexts) {
    if (n == number) return text;
  }
  return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(int number) : RunTimeError(number, RunTimeErrorText(number)) {}

RunTimeError::RunTimeError(int number, const std::string& text) : std::runtime_error(text), Number(number) {}

std::string CurrentErrorText() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return RunTimeErrorText(kErrOutOfMemory);
  } catch (const std::length_error&) {
    return RunTimeErrorText(kErrOutOfMemory);
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace tarnvik
