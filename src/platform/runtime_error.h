// Run-time errors: the one exception type of the program.
#pragma once

#include <stdexcept>
#include <string>

namespace tarnvik {

// Numbers of the errors that the program raises or meets; the texts are customary and stand in messages.
inline constexpr int kErrOverflow = 6;
inline constexpr int kErrOutOfMemory = 7;
inline constexpr int kErrSubscript = 9;
inline constexpr int kErrDivisionByZero = 11;
inline constexpr int kErrTypeMismatch = 13;
inline constexpr int kErrBadFileName = 52;
inline constexpr int kErrFileNotFound = 53;
inline constexpr int kErrDeviceIo = 57;
inline constexpr int kErrDiskFull = 61;
inline constexpr int kErrPastEnd = 62;
inline constexpr int kErrPermission = 70;
inline constexpr int kErrPathAccess = 75;
inline constexpr int kErrPathNotFound = 76;
inline constexpr int kErrNoControlElement = 340;
inline constexpr int kErrInvalidProperty = 380;
inline constexpr int kErrDialogCancelled = 32755;
inline constexpr int kErrScan = 50000;

// Raised where a fault is noticed, caught by the trap of the routine that has one; a front end shows
// the text of one that no routine caught.
struct RunTimeError : std::runtime_error {
  explicit RunTimeError(int number);
  RunTimeError(int number, const std::string& text);
  int Number;
};

// The customary text of a number, such as "Subscript out of range" for 9.
std::string RunTimeErrorText(int number);

// The text for a message box of whatever exception is in flight: a RunTimeError's own text, "Out of memory"
// for a failed allocation. To be called inside a catch block.
std::string CurrentErrorText();

}  // namespace tarnvik
