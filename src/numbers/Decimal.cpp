// Digits come from the standard library's shortest form, which is exact; rounding works on the digits themselves.
#include "numbers/Decimal.h"

#include <array>
#include <charconv>
#include <string_view>

namespace orx::numbers {

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
    digits = "1";
    ++decimal.Exponent;
  } else {
    ++digits.back();
  }
}

}  // namespace orx::numbers
