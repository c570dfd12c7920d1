// Numbers as text, the same on every machine: no locale is ever asked.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vpa {

// Reads `text` as a finite number in the usual C notation; the whole text must be used up ("12abc", "1,5",
// "nan", "inf", "0x10", "1d5" and numbers beyond the range of a double give nothing).
std::optional<double> ReadNumber(std::string_view text);

// As ReadNumber, for whole numbers within the range of an int ("6" and "6.0" are good, "7.5" is not).
std::optional<int> ReadWhole(std::string_view text);

// The shortest text that reads as just `value` again; plain digits where they are not absurdly many.
std::string Exact(double value);

// `value` to ten significant digits: enough for everything computed here, without the dust of its last bits.
std::string Rounded(double value);

// `value` to six decimals, for proportions.
std::string Share(double value);

}  // namespace vpa
