// The decimal digits of a number, which the ways to write it share.
#pragma once

#include <string>

namespace orx::numbers {

/// More digits than these show the noise of binary numbers instead of what was entered.
inline constexpr int kSignificantDigits = 15;

/// Significant digits, the first one standing for tens to the power of `Exponent`. No digits stand for zero.
struct Decimal {
  std::string Digits;
  int Exponent = 0;
};

/// The fewest digits that tell a finite `magnitude` above zero from every other double.
Decimal ShortestDecimal(double magnitude);

/// A finite `magnitude` above zero with `count` significant digits, halves away from zero; from 1 to 17 digits.
Decimal RoundedDecimal(double magnitude, int count);

/// Keeps the first `count` digits, halves away from zero, and no zeros behind the last digit. A carry may raise the
/// exponent; with a count of zero it leaves a single 1 or nothing, with a negative one nothing.
void RoundTo(Decimal& decimal, int count);

}  // namespace orx::numbers
