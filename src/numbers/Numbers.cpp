#include "numbers/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "numbers/Scanner.h"

namespace orx::numbers {
namespace {

/// What stands around the digits.
struct Affixes {
  int Signs = 0;
  int Currencies = 0;
  int Opened = 0;
  int Closed = 0;
  bool Minus = false;

  bool AreValid() const {
    return Signs <= 1 && Currencies <= 1 && Opened <= 1 && Opened == Closed && Signs + Opened <= 1;
  }
  bool IsNegative() const { return Minus || Opened > 0; }
};

bool TakeSign(Scanner& in, Affixes& affixes) {
  const bool minus = in.Take("-");
  if (!minus && !in.Take("+")) return false;
  ++affixes.Signs;
  affixes.Minus = minus;
  return true;
}

bool TakeCurrency(Scanner& in, const Separators& separators, Affixes& affixes) {
  if (!in.Take(separators.Currency)) return false;
  ++affixes.Currencies;
  return true;
}

bool TakeParenthesis(Scanner& in, std::string_view parenthesis, int& count) {
  if (!in.Take(parenthesis)) return false;
  ++count;
  return true;
}

/// Takes signs, currency signs and parentheses with the blanks between them, in any order.
void TakeAffixes(Scanner& in, const Separators& separators, std::string_view parenthesis, int& parentheses,
                 Affixes& affixes) {
  do {
    in.TakeBlanks();
  } while (TakeSign(in, affixes) || TakeCurrency(in, separators, affixes) ||
           TakeParenthesis(in, parenthesis, parentheses));
}

/// Takes a group separator. What people have no key for may be typed as its plain form.
bool TakeGroup(Scanner& in, const Separators& separators) {
  const std::string_view group = separators.Group;
  if (group == separators.Decimal) return false;
  if (group == "\u00A0" || group == "\u202F") return in.TakeAny({" ", "\u00A0", "\u202F"});
  if (group == "\u2019") return in.TakeAny({"'", "\u2019"});
  return in.Take(group);
}

/// Appends the digits in front of the decimal separator. False when a group is not one of three digits.
bool TakeInteger(Scanner& in, const Separators& separators, std::string& digits) {
  std::string_view group = in.TakeDigits();
  digits += group;
  if (group.empty()) return true;
  for (bool first = true;; first = false) {
    Scanner ahead = in;
    // What no digit follows is no group separator; it may still be a blank behind the number.
    if (!TakeGroup(ahead, separators)) return true;
    const std::string_view next = ahead.TakeDigits();
    if (next.empty()) return true;
    if (next.size() != 3 || (first && group.size() > 3)) return false;
    digits += next;
    group = next;
    in = ahead;
  }
}

/// Takes an exponent when a whole one is there; a lone letter may begin the currency sign.
std::string TakeExponent(Scanner& in) {
  Scanner ahead = in;
  if (!ahead.TakeAny({"E", "e", "D", "d"})) return {};
  std::string exponent = "e";
  if (ahead.Take("-")) {
    exponent += '-';
  } else {
    ahead.Take("+");
  }
  const std::string_view digits = ahead.TakeDigits();
  if (digits.empty()) return {};
  in = ahead;
  return exponent.append(digits);
}

/// True for a number below one; tells too small from too large where the conversion only says "out of range".
bool IsSmall(std::string_view integer, std::string_view fraction, std::string_view exponent) {
  constexpr long long kHuge = 1'000'000'000'000;
  long long power = exponent.starts_with("e-") ? -kHuge : kHuge;
  // An exponent that does not even fit here outweighs every number of digits.
  if (exponent.empty()) power = 0;
  if (!exponent.empty()) std::from_chars(exponent.data() + 1, exponent.data() + exponent.size(), power);
  const std::size_t first = integer.find_first_not_of('0');
  if (first != std::string_view::npos) return power + static_cast<long long>(integer.size() - first) <= 0;
  return power <= static_cast<long long>(fraction.find_first_not_of('0'));
}

/// Takes digits, fraction and exponent, and gives their value.
std::optional<double> TakeMagnitude(Scanner& in, const Separators& separators) {
  std::string integer;
  if (!TakeInteger(in, separators, integer)) return {};
  std::string fraction;
  if (in.Take(separators.Decimal)) fraction = in.TakeDigits();
  if (integer.empty() && fraction.empty()) return {};
  const std::string exponent = TakeExponent(in);

  const std::string plain = "0" + integer + "." + fraction + "0" + exponent;
  double value = 0;
  const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (result.ec == std::errc::result_out_of_range && IsSmall(integer, fraction, exponent)) return 0.0;
  if (result.ec != std::errc() || !std::isfinite(value)) return {};
  return value;
}

/// The value of a whole text "&H..." or "&O...". It is a 16-bit number where it fits one, else a 32-bit number.
std::optional<double> RadixValue(std::string_view text) {
  Scanner in(text);
  in.TakeBlanks();
  const bool hexadecimal = in.TakeAny({"&H", "&h"});
  if (!hexadecimal && !in.TakeAny({"&O", "&o"})) return {};
  const std::string_view digits = in.Rest();
  std::uint32_t bits = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, bits, hexadecimal ? 16 : 8);
  if (result.ec != std::errc()) return {};
  Scanner behind(digits.substr(static_cast<std::size_t>(result.ptr - digits.data())));
  behind.TakeBlanks();
  if (!behind.AtEnd()) return {};
  if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

}  // namespace

std::optional<double> ToDouble(std::string_view text, const Separators& separators) {
  if (const std::optional<double> value = RadixValue(text)) return value;
  Scanner in(text);
  Affixes affixes;
  TakeAffixes(in, separators, "(", affixes.Opened, affixes);
  const std::optional<double> magnitude = TakeMagnitude(in, separators);
  if (!magnitude) return {};
  TakeAffixes(in, separators, ")", affixes.Closed, affixes);
  if (!in.AtEnd() || !affixes.AreValid()) return {};
  return affixes.IsNegative() ? -*magnitude : *magnitude;
}

bool IsNumeric(std::string_view text, const Separators& separators) {
  return ToDouble(text, separators).has_value();
}

std::int32_t RoundToLong(double value) {
  // remainder() is exact and goes to the even neighbour, whatever rounding mode the host has set.
  const double rounded = value - std::remainder(value, 1.0);
  using Limits = std::numeric_limits<std::int32_t>;
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) throw std::overflow_error("Overflow");
  return static_cast<std::int32_t>(rounded);
}

}  // namespace orx::numbers
