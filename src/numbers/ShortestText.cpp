// Numbers as text. The digits are those of the standard library's shortest form; the notation is the platform's.
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

/// The exponents of ten of the first digit that are written without an exponent: 0.0001 to 999999999999999.
constexpr int kLeastPlain = -4;
constexpr int kMostPlain = 14;

/// Significant digits, the first one standing for tens to the power of `Exponent`.
struct Decimal {
  std::string Digits;
  int Exponent = 0;
};

Decimal ShortestDecimal(double magnitude) {
  std::array<char, 32> buffer{};
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
  const std::string_view text(buffer.data(), end.ptr);
  const std::size_t mark = text.find('e');
  Decimal decimal{std::string(text.substr(0, mark))};
  std::erase(decimal.Digits, '.');
  const std::size_t number = text[mark + 1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(text.data() + number, end.ptr, decimal.Exponent);
  return decimal;
}

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

}  // namespace

std::string ShortestText(double value, const Separators& separators) {
  if (value == 0) return "0";
  const std::string sign = std::signbit(value) ? "-" : "";
  if (std::isnan(value)) return "1.#QNAN";
  if (std::isinf(value)) return sign + "1.#INF";
  const Decimal decimal = ShortestDecimal(std::fabs(value));
  const bool plain = decimal.Exponent >= kLeastPlain && decimal.Exponent <= kMostPlain;
  return sign + (plain ? Plain(decimal, separators.Decimal) : Scientific(decimal, separators.Decimal));
}

}  // namespace orx::numbers
