// Number formats: any pattern for any number. What a pattern shows is a number again, and near the one that was shown.
#include <algorithm>
#include <cmath>

#include "numbers/NumberPattern.h"
#include "numbers/Numbers.h"
#include "tests/fuzz/Fuzz.h"

namespace numbers = orx::numbers;
using orx::fuzz::Require;

namespace {

std::string PatternFrom(FuzzedDataProvider& data) {
  if (data.ConsumeIntegralInRange(0, 3) == 0) return data.ConsumeRandomLengthString(40);
  std::string text;
  while (text.size() < 60 && data.ConsumeIntegralInRange(0, 12) > 0)
    text +=
        data.PickValueInArray({"0", "#", "0", "#", ",", ".", "E+", "E-", "e+", "00", " ", "General", "\"", "%", ";"});
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  const double value = orx::fuzz::AnyNumber(data);
  const std::string pattern = PatternFrom(data);
  const std::string text = numbers::FormatNumber(value, pattern);
  Require(numbers::FormatNumber(value, " " + pattern + " ") == text);
  const std::optional<numbers::NumberPattern> known = numbers::ToNumberPattern(pattern);
  if (!std::isfinite(value) || !known) {
    Require(text == numbers::GeneralText(value));
    return 0;
  }
  // A pattern may leave nothing but a sign or a decimal point of a small number.
  const bool hasDigit = std::ranges::any_of(text, [](char c) { return c >= '0' && c <= '9'; });
  if (!hasDigit) return 0;
  const std::optional<double> back = numbers::ToDouble(text);
  if (!back || known->ExponentDigits > 0) return 0;
  const double step = 0.5 * std::pow(10, -std::min(known->DecimalPlaces, 300));
  Require(std::abs(*back - value) <= step * (1 + 1e-9) + std::abs(value) * 1e-14);
  return 0;
}
