// What the platform's automation library says to the questions that numbers/ answers, as an oracle for its tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "numbers/Numbers.h"

namespace orx::numbers::oracle {

/// A locale of the platform, with the separators that the platform uses for it.
struct Locale {
  std::uint32_t Id = 0;
  Separators Marks;
};

/// English in the United States and German in Germany: a decimal point and a decimal comma.
const Locale& English();
const Locale& German();

std::optional<double> ToDouble(const std::string& text, const Locale& locale);
std::optional<std::string> FormatNumber(double value, const std::string& pattern, const Locale& locale);
std::optional<std::int32_t> RoundToLong(double value);
/// Has 15 significant digits at most.
std::optional<std::string> TextOf(double value, const Locale& locale);

/// True when these digits are enough to tell the number from every other double.
bool HasFifteenDigits(double value);

}  // namespace orx::numbers::oracle
