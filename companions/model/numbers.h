// Numbers as text, the same on every machine: no locale is ever asked.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace model {

// Reads `text` as a finite number in the usual C notation; the whole text must be used up ("12abc", "1,5",
// "nan", "inf" and numbers beyond the range of a double give nothing). A number too small for a double reads
// as 0.
std::optional<double> ReadNumber(std::string_view text);

// `value` as printf("%.7g") writes it in the C locale. A value that is not finite is written as 0, since the
// readers of the output files know no other numbers.
std::string General(double value);

// `value` with a fixed number of decimals, and in the form 2.7e-09. Not finite: as General.
std::string Fixed(double value, int decimals);
std::string Exponential(double value);

// `text` filled up with blanks on the left to at least `width` characters.
std::string PadLeft(const std::string& text, std::size_t width);

}  // namespace model
