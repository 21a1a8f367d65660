// Digits come from the standard library, whose conversions are exact; rounding works on the digits themselves.
#include "numbers/Decimal.h"

#include <array>
#include <charconv>
#include <string_view>

namespace orx::numbers {
namespace {

/// As many digits as the longest double has; with fewer, a digit that is not its own could decide how it is rounded.
constexpr int kAllDigits = 767;
/// Longer than any number with this many digits, its point and its exponent.
using Buffer = std::array<char, kAllDigits + 16>;

/// Takes a text such as "1.25e+02" apart.
Decimal FromScientific(std::string_view text) {
  const std::size_t mark = text.find('e');
  Decimal decimal{std::string(text.substr(0, mark))};
  std::erase(decimal.Digits, '.');
  const std::size_t number = text[mark + 1] == '+' ? mark + 2 : mark + 1;
  std::from_chars(text.data() + number, text.data() + text.size(), decimal.Exponent);
  return decimal;
}

}  // namespace

Decimal ShortestDecimal(double magnitude) {
  Buffer buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
  return FromScientific({buffer.data(), end.ptr});
}

Decimal RoundedDecimal(double magnitude, int count) {
  Buffer buffer;
  // The conversion itself takes halves to the even digit, so it is asked for all digits.
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific,
                                 kAllDigits - 1);
  Decimal decimal = FromScientific({buffer.data(), end.ptr});
  RoundTo(decimal, count);
  return decimal;
}

void RoundTo(Decimal& decimal, int count) {
  std::string& digits = decimal.Digits;
  if (count < 0) {
    digits.clear();
    return;
  }
  const std::size_t kept = static_cast<std::size_t>(count);
  if (kept >= digits.size()) return;
  const bool up = digits[kept] >= '5';
  digits.resize(kept);
  // What is rounded up from nine becomes a zero and is dropped, as are the zeros that rounding down leaves at the end.
  const char dropped = up ? '9' : '0';
  while (!digits.empty() && digits.back() == dropped) digits.pop_back();
  if (!up) return;
  if (digits.empty()) {
    digits.assign(1, '1');
    ++decimal.Exponent;
  } else {
    ++digits.back();
  }
}

}  // namespace orx::numbers
