// Reads single values of an input file, checks them, and words the faults.
#pragma once

#include "messages.h"
#include "numbers.h"
#include "value_stream.h"

#include <limits>
#include <string>

namespace model {

// Which values an item allows.
struct Range {
  bool whole = false;
  double low = -std::numeric_limits<double>::infinity();
  double high = std::numeric_limits<double>::infinity();
  bool lowIsOut = false;  // the lower limit itself is not allowed

  static Range Any() { return {}; }
  static Range NotBelowZero() { return {false, 0}; }
  static Range AboveZero() { return {false, 0, std::numeric_limits<double>::infinity(), true}; }
  static Range Fraction() { return {false, 0, 1}; }
  static Range Whole(int low, int high) {
    return {true, static_cast<double>(low), static_cast<double>(high)};
  }
};

// "file: line 23: ITEM: what", as the end of the run.
inline Failure FaultAt(const ValueStream& stream, int line, const std::string& item,
                       const std::string& what) {
  return {kInputFault, stream.file + ": line " + std::to_string(line) + ": " + item + ": " + what};
}

// Raises the fault of a value outside its range.
inline void CheckRange(const ValueStream& stream, const Token& token, double value, const Range& range,
                       const std::string& item) {
  const std::string text = Quotable(token.text);
  if (range.whole) {
    // A cast of a number too large for an int is undefined, hence the order of the tests.
    if (value >= range.low && value <= range.high &&
        value == static_cast<double>(static_cast<long long>(value)))
      return;
    throw FaultAt(
        stream, token.line, item,
        text + " is not a whole number from " + Fixed(range.low, 0) + " to " + Fixed(range.high, 0));
  }
  if (range.lowIsOut && value <= range.low)
    throw FaultAt(stream, token.line, item, text + " is not above " + General(range.low));
  if (value < range.low) throw FaultAt(stream, token.line, item, text + " is below " + General(range.low));
  if (value > range.high) throw FaultAt(stream, token.line, item, text + " is above " + General(range.high));
}

// Reads the value at `position` (from 0) of an item of `count` values. `name` gives the item's name and is
// asked only when something is wrong, because most items are long lists.
template <class Name>
double ReadItemValue(ValueStream& stream, const Range& range, int position, int count, const Name& name) {
  const std::optional<Token> token = NextToken(stream);
  if (!token)
    throw Failure(kInputFault, stream.file + ": file ended while reading " + name() + " (value " +
                                   std::to_string(position + 1) + " of " + std::to_string(count) + ")");
  const std::optional<double> value = ReadNumber(token->text);
  if (!value) throw FaultAt(stream, token->line, name(), "'" + Quotable(token->text) + "' is not a number");
  if (*value < range.low || *value > range.high || range.whole || range.lowIsOut)
    CheckRange(stream, *token, *value, range, name());
  return *value;
}

}  // namespace model
