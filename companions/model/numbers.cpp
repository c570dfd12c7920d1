#include "numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace model {

namespace {

// std::from_chars does not say to which side a number left the range of a double.
bool IsBelowRange(std::string_view digits) {
  const std::size_t exponent = digits.find_first_of("eE");
  if (exponent != std::string_view::npos) return digits.substr(exponent + 1, 1) == "-";
  return digits.front() == '0' || digits.front() == '.';
}

std::string Written(double value, std::chars_format form, int precision) {
  std::array<char, 400> text{};  // the longest double in fixed notation has 309 digits before the point
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::isfinite(value) ? value : 0.0,
                                 form, precision);
  return {text.data(), end.ptr};
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end != text.data() + text.size()) return std::nullopt;
  if (fault == std::errc::result_out_of_range) {
    if (text.front() == '-') text.remove_prefix(1);
    return IsBelowRange(text) ? std::optional(0.0) : std::nullopt;
  }
  if (fault != std::errc() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string General(double value) { return Written(value, std::chars_format::general, 7); }

std::string Fixed(double value, int decimals) { return Written(value, std::chars_format::fixed, decimals); }

std::string Exponential(double value) { return Written(value, std::chars_format::scientific, 1); }

std::string PadLeft(const std::string& text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

}  // namespace model
