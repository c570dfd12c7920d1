#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
  return upper;
}

std::string LCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), Lower);
  return lower;
}

std::size_t FindUpper(std::string_view text, std::string_view upper_key, std::size_t from) {
  if (from > text.size()) return std::string_view::npos;
  const auto found =
      std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), upper_key.begin(),
                  upper_key.end(), [](char a, char b) { return Upper(a) == b; });
  if (found == text.end() && !upper_key.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(found - text.begin());
}

bool HoldsUpper(std::string_view text, std::string_view upper_key) {
  return FindUpper(text, upper_key) != std::string_view::npos;
}

double Val(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return 0.0;
  text.remove_prefix(first);
  bool negative = false;
  if (text[0] == '+' || text[0] == '-') {
    negative = text[0] == '-';
    text.remove_prefix(1);
  }
  // from_chars also takes "inf", "nan" and a second sign; a number begins with a digit or a point and a
  // digit.
  const bool begins =
      !text.empty() && (IsDigit(text[0]) || (text[0] == '.' && text.size() > 1 && IsDigit(text[1])));
  if (!begins) return 0.0;
  double value = 0.0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::general);
  if (error == std::errc::result_out_of_range) {
    // Too large or too small for a double: the exponent's sign tells which.
    const std::string_view number(text.data(), static_cast<std::size_t>(end - text.data()));
    const bool tiny = number.find("e-") != std::string_view::npos ||
                      number.find("E-") != std::string_view::npos || number[0] == '.' ||
                      number.substr(0, 2) == "0.";
    value = tiny ? 0.0 : std::numeric_limits<double>::max();
  }
  return negative ? -value : value;
}

std::int16_t Int16(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) throw RunTimeError(kErrOverflow);
  return static_cast<std::int16_t>(rounded);
}

std::int16_t Int16(int value) {
  if (value < -32768 || value > 32767) throw RunTimeError(kErrOverflow);
  return static_cast<std::int16_t>(value);
}

std::string NumberText(double value) {
  char buffer[32];
  const auto shortest = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  return std::string(buffer, shortest.ptr);
}

std::string NumberText(int value) { return std::to_string(value); }

std::string CatchText(double value) {
  char buffer[400];
  const auto fixed = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 6);
  std::string text(buffer, fixed.ptr);
  const std::size_t point = text.find('.');
  while (text.size() > point + 2 && text.back() == '0') text.pop_back();
  if (text == "-0.0") text = "0.0";
  return text;
}

std::int32_t TokenPos = 0;

namespace {

// The word that begins at or behind a position counted from 0; leaves TokenPos behind it.
std::string_view TokenFrom(std::string_view text, std::size_t from) {
  const std::size_t start = text.find_first_not_of(' ', from);
  if (start == std::string_view::npos) return {};
  const std::size_t end = text.find(' ', start);
  if (end == std::string_view::npos) {
    TokenPos = 0;
    return text.substr(start);
  }
  TokenPos = static_cast<std::int32_t>(end + 1);
  return text.substr(start, end - start);
}

}  // namespace

std::string_view TokenFirst(std::string_view text) {
  TokenPos = 0;
  return TokenFrom(text, 0);
}

std::string_view TokenNext(std::string_view text) {
  if (TokenPos == 0) return {};
  return TokenFrom(text, static_cast<std::size_t>(TokenPos - 1));
}

}  // namespace tarnvik
