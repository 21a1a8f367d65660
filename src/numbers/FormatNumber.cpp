// Numbers as a pattern shows them. All work is done on decimal digits, so that no size of number is a special case.
#include <cmath>
#include <cstdlib>

#include "numbers/Decimal.h"
#include "numbers/NumberPattern.h"
#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

/// The digits in front of the decimal separator and behind it.
struct Parts {
  std::string Integers;
  std::string Decimals;
};

/// Splits a number in front of whose decimal separator `integers` digits stand, or minus so many zeros behind it.
Parts Split(const std::string& digits, int integers) {
  if (digits.empty()) return {};
  if (integers <= 0) return {"", std::string(static_cast<std::size_t>(-integers), '0') + digits};
  const std::size_t count = static_cast<std::size_t>(integers);
  if (digits.size() <= count) return {digits + std::string(count - digits.size(), '0'), ""};
  return {digits.substr(0, count), digits.substr(count)};
}

std::string Grouped(const std::string& digits, const std::string& separator) {
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += separator;
    text += digits[i];
  }
  return text;
}

void FillFront(std::string& digits, int least) {
  const std::size_t count = static_cast<std::size_t>(least);
  if (digits.size() < count) digits.insert(0, count - digits.size(), '0');
}

std::string Joined(Parts parts, const NumberPattern& pattern, const Separators& separators) {
  FillFront(parts.Integers, pattern.LeastIntegers);
  const std::size_t least = static_cast<std::size_t>(pattern.LeastDecimals);
  if (parts.Decimals.size() < least) parts.Decimals.resize(least, '0');
  return (pattern.Grouped ? Grouped(parts.Integers, separators.Group) : parts.Integers) +
         (pattern.HasDecimal ? separators.Decimal : "") + parts.Decimals;
}

std::string ExponentText(int exponent, const NumberPattern& pattern) {
  std::string digits = std::to_string(std::abs(exponent));
  FillFront(digits, pattern.ExponentDigits);
  const std::string plus = pattern.ShowsPlus ? "+" : "";
  return pattern.ExponentLetter + (exponent < 0 ? "-" : plus) + digits;
}

/// Rounds to the places of the pattern and writes them; nothing but the sign is missing then.
std::string MagnitudeText(Decimal& decimal, const NumberPattern& pattern, const Separators& separators) {
  if (pattern.ExponentDigits == 0) {
    RoundTo(decimal, decimal.Exponent + 1 + pattern.DecimalPlaces);
    return Joined(Split(decimal.Digits, decimal.Exponent + 1), pattern, separators);
  }
  RoundTo(decimal, pattern.IntegerPlaces + pattern.DecimalPlaces);
  const int exponent = decimal.Digits.empty() ? 0 : decimal.Exponent + 1 - pattern.IntegerPlaces;
  return Joined(Split(decimal.Digits, pattern.IntegerPlaces), pattern, separators) + ExponentText(exponent, pattern);
}

}  // namespace

std::string FormatNumber(double value, std::string_view pattern, const Separators& separators) {
  const std::optional<NumberPattern> places = ToNumberPattern(pattern);
  if (!places || !std::isfinite(value)) return GeneralText(value, separators);
  Decimal decimal;
  if (value != 0) decimal = RoundedDecimal(std::fabs(value), kSignificantDigits);
  const std::string magnitude = MagnitudeText(decimal, *places, separators);
  return (std::signbit(value) && !decimal.Digits.empty() ? "-" : "") + magnitude;
}

}  // namespace orx::numbers
