#include "numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vpa {

namespace {

std::string Written(double value, std::chars_format form, int precision) {
  std::array<char, 400> text{};  // the longest double in fixed notation has 309 digits before the point
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, form, precision);
  return {text.data(), end.ptr};
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end != text.data() + text.size() || fault != std::errc() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<int> ReadWhole(std::string_view text) {
  const std::optional<double> value = ReadNumber(text);
  if (!value || std::trunc(*value) != *value || std::fabs(*value) > std::numeric_limits<int>::max())
    return std::nullopt;
  return static_cast<int>(*value);
}

std::string Exact(double value) {
  const double size = std::fabs(value);
  const bool plain = size == 0 || (size >= 1e-7 && size < 1e15);
  std::array<char, 400> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), size == 0 ? 0.0 : value,
                                 plain ? std::chars_format::fixed : std::chars_format::scientific);
  return {text.data(), end.ptr};
}

std::string Rounded(double value) {
  return Exact(ReadNumber(Written(value, std::chars_format::general, 10)).value_or(0));
}

std::string Share(double value) {
  return Exact(ReadNumber(Written(value, std::chars_format::fixed, 6)).value_or(0));
}

}  // namespace vpa
