// What a number pattern such as "#,##0.00" asks for; FormatNumber fills it.
#pragma once

#include <optional>
#include <string_view>

namespace orx::numbers {

struct NumberPattern {
  /// Digit places in front of the decimal separator, and how many of them are always filled.
  int IntegerPlaces = 0;
  int LeastIntegers = 0;
  bool Grouped = false;
  bool HasDecimal = false;
  /// Digit places behind the decimal separator, and how many of them are always filled.
  int DecimalPlaces = 0;
  int LeastDecimals = 0;
  /// The least number of digits of the exponent; none without an exponent.
  int ExponentDigits = 0;
  char ExponentLetter = 'E';
  bool ShowsPlus = false;
};

/// The pattern that `text` is, or nothing when there is anything in it that FormatNumber does not describe.
std::optional<NumberPattern> ToNumberPattern(std::string_view text);

}  // namespace orx::numbers
