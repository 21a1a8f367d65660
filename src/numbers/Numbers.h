// The one place that tests text for a number, converts it, and writes numbers as text, in the user's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orx::numbers {

/// The separators of a locale, UTF-8. An empty `Group` or `Currency` means that there is none.
struct Separators {
  std::string Decimal = ".";
  std::string Group = ",";
  std::string Currency = "$";
};

/// The value of `text` when it is a number: blanks around it, a sign in front or behind, parentheses for a negative
/// amount, groups of three digits, an exponent with E or D, "&H" and "&O" for hexadecimal and octal, a currency sign.
/// Anything else, a number beyond the range of a double included, gives no value. A group separator that does not stand
/// between groups of three digits makes the text no number.
std::optional<double> ToDouble(std::string_view text, const Separators& separators = {});

/// True when ToDouble finds a number.
bool IsNumeric(std::string_view text, const Separators& separators = {});

/// The nearest whole number, halves to the even neighbour. Throws std::overflow_error beyond 32 bits and for NaN.
std::int32_t RoundToLong(double value);

/// The shortest decimal text that reads back as the same double, with the locale's decimal separator: "0.5", "1E+20",
/// "1.5E-07". Numbers from 0.0001 up to 15 digits are written without an exponent. What is not finite gives "1.#INF",
/// "-1.#INF" or "1.#QNAN", which are no numbers for ToDouble.
std::string ShortestText(double value, const Separators& separators = {});

/// The number with up to 15 significant digits, in the same notation: the general format of the platform, which writes
/// 0.1 also for the double next to it.
std::string GeneralText(double value, const Separators& separators = {});

/// `value` as `pattern` shows it, with the locale's separators. "0" is a digit that is always there, "#" one that is
/// there when the number has it, "," between them asks for groups of three digits, "." for the decimal separator (which
/// is shown even when no digit follows), "E+00" at the end for an exponent of at least so many digits that always has
/// its sign; "E-00" shows only a minus. Examples: "0.00", "#,###,##0.0", "0.0000E+000". All digits in front of the
/// decimal separator are shown, however few places the pattern has for them.
///
/// At most 15 digits are significant; they are rounded half away from zero, so 1.005 as "0.00" is "1.01". A value that
/// rounds to zero has no minus sign. Blanks around the pattern are ignored. "General" in any letter case, a pattern
/// with anything else in it, and a value that is not finite give GeneralText.
std::string FormatNumber(double value, std::string_view pattern, const Separators& separators = {});

}  // namespace orx::numbers
