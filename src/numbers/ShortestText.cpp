// Numbers as text without a pattern. The digits are those of the standard library; the notation is the platform's.
#include <cmath>
#include <cstdlib>

#include "numbers/Decimal.h"
#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

/// The exponents of ten of the first digit that are written without an exponent: 0.0001 to 999999999999999.
constexpr int kLeastPlain = -4;
constexpr int kMostPlain = 14;

std::string Plain(const Decimal& decimal, const std::string& separator) {
  const auto& [digits, exponent] = decimal;
  if (exponent < 0) return "0" + separator + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const std::size_t integers = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= integers) return digits + std::string(integers - digits.size(), '0');
  return digits.substr(0, integers) + separator + digits.substr(integers);
}

std::string Scientific(const Decimal& decimal, const std::string& separator) {
  const auto& [digits, exponent] = decimal;
  std::string text = digits.substr(0, 1);
  if (digits.size() > 1) text += separator + digits.substr(1);
  text += exponent < 0 ? "E-" : "E+";
  const std::string power = std::to_string(std::abs(exponent));
  return text + (power.size() < 2 ? "0" : "") + power;
}

/// Writes a number whose digits `digitsOf` finds for its magnitude.
template <class DigitsOf>
std::string InPlatformNotation(double value, const Separators& separators, DigitsOf digitsOf) {
  if (value == 0) return "0";
  const std::string sign = std::signbit(value) ? "-" : "";
  if (std::isnan(value)) return "1.#QNAN";
  if (std::isinf(value)) return sign + "1.#INF";
  const Decimal decimal = digitsOf(std::fabs(value));
  const bool plain = decimal.Exponent >= kLeastPlain && decimal.Exponent <= kMostPlain;
  return sign + (plain ? Plain(decimal, separators.Decimal) : Scientific(decimal, separators.Decimal));
}

}  // namespace

std::string ShortestText(double value, const Separators& separators) {
  return InPlatformNotation(value, separators, ShortestDecimal);
}

std::string GeneralText(double value, const Separators& separators) {
  return InPlatformNotation(value, separators,
                            [](double magnitude) { return RoundedDecimal(magnitude, kSignificantDigits); });
}

}  // namespace orx::numbers
