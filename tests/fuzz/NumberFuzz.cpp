// Texts as numbers, in any locale: a number is finite, and its shortest text reads back as the same one.
#include <cmath>
#include <stdexcept>

#include "numbers/Numbers.h"
#include "tests/fuzz/Fuzz.h"

namespace numbers = orx::numbers;
using orx::fuzz::Require;

namespace {

numbers::Separators SeparatorsFrom(FuzzedDataProvider& data) {
  switch (data.ConsumeIntegralInRange(0, 4)) {
    case 0:
      return {};
    case 1:
      return {",", ".", "\xE2\x82\xAC"};
    case 2:
      return {",", "\xC2\xA0", "kr"};
    case 3:
      return {".", "", ""};
    default:
      return {data.ConsumeRandomLengthString(3), data.ConsumeRandomLengthString(3), data.ConsumeRandomLengthString(3)};
  }
}

std::string TextFrom(FuzzedDataProvider& data, const numbers::Separators& separators) {
  if (data.ConsumeBool()) return data.ConsumeRemainingBytesAsString();
  std::string text;
  while (data.remaining_bytes() > 0) {
    switch (data.ConsumeIntegralInRange(0, 9)) {
      case 0:
        text += separators.Decimal;
        break;
      case 1:
        text += separators.Group;
        break;
      case 2:
        text += separators.Currency;
        break;
      case 3:
        text += data.PickValueInArray({"(", ")", "-", "+", " ", "\t", "&H", "&O", "E", "D", "e+", "d-", "_", "%"});
        break;
      default:
        text += std::to_string(data.ConsumeIntegralInRange(0, 999));
    }
  }
  return text;
}

bool IsUsual(const numbers::Separators& separators) {
  return separators.Decimal == "." || separators.Decimal == ",";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  const numbers::Separators separators = SeparatorsFrom(data);
  const std::string text = TextFrom(data, separators);
  const std::optional<double> value = numbers::ToDouble(text, separators);
  Require(numbers::IsNumeric(text, separators) == value.has_value());
  if (!value) return 0;
  Require(std::isfinite(*value));
  if (IsUsual(separators)) Require(numbers::ToDouble(numbers::ShortestText(*value, separators), separators) == *value);
  try {
    Require(std::abs(numbers::RoundToLong(*value) - *value) <= 0.5);
  } catch (const std::overflow_error&) {
    Require(std::abs(*value) > 2147483647);
  }
  return 0;
}
