// Texts and numbers: every value of a case lives as text and is converted here at each use.
//
// Nothing here depends on the locale. Trimming means blanks only; letters are those of ASCII, other bytes
// stay.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnvik {

std::string_view Trim(std::string_view text);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
inline bool IsBlank(std::string_view text) { return Trim(text).empty(); }
// Whether the upper-case form of a text holds a key that is given in upper case.
bool HoldsUpper(std::string_view text, std::string_view upper_key);
// Position of a key in the lower- or upper-case form of a text, npos when it is not there.
std::size_t FindUpper(std::string_view text, std::string_view upper_key, std::size_t from = 0);

// The number at the start of a text: leading blanks are skipped, reading stops at the first character that
// cannot continue the number, a text without a leading number gives 0. Never fails: a number beyond the range
// of a double gives the largest one. "nan", "inf" and hexadecimal forms are no numbers; "1d5" is 1.
double Val(std::string_view text);

// The named narrowings to a 16-bit integer; both raise 6 "Overflow" outside -32768..32767.
std::int16_t Int16(double value);  // rounds half to even
std::int16_t Int16(int value);
inline std::int16_t ValInt(std::string_view text) { return Int16(Val(text)); }

// The shortest decimal form up to 15 significant digits, without leading blank.
std::string NumberText(double value);
std::string NumberText(int value);
// The number format "0.0#####": at least one and at most six decimals.
std::string CatchText(double value);

// A walk over the blank-separated words of one text. Only the blank separates; a tab does not.
// TokenPos is where the next word is looked for, counted from 1; 0 when the text is used up. It is wider than
// the other words of the state, so that a line beyond 32767 characters is walked to its end like any other.
extern std::int32_t TokenPos;
// The views returned hold as long as the text given does.
std::string_view TokenFirst(std::string_view text);  // the first word, "" when there is none
std::string_view TokenNext(std::string_view text);   // the next one, "" when there is none

}  // namespace tarnvik
