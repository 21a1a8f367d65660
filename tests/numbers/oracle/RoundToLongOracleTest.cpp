// Whole numbers, compared with the platform.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "tests/numbers/oracle/Differences.h"
#include "tests/numbers/oracle/Oracle.h"
#include "tests/numbers/oracle/Values.h"

namespace orx::numbers::oracle {
namespace {

using Limits = std::numeric_limits<std::int32_t>;

struct Rounding {
  double Value = 0;
  std::optional<std::int32_t> Ours;
  std::optional<std::int32_t> Theirs;

  static std::string ToText(std::optional<std::int32_t> rounded) {
    return rounded ? std::to_string(*rounded) : "an error";
  }

  bool Differs() const { return Ours != Theirs; }
  std::string ToText() const {
    return ShortestText(Value) + " is " + ToText(Ours) + " here and " + ToText(Theirs) + " there";
  }
};

std::optional<std::int32_t> Rounded(double value) {
  try {
    return numbers::RoundToLong(value);
  } catch (const std::overflow_error&) {
    return {};
  }
}

Rounding Round(double value) {
  return {value, Rounded(value), RoundToLong(value)};
}

std::vector<Difference<Rounding>> RoundingDifferences() {
  return {
      // What is no number is no whole number; the platform takes it for the largest one.
      {"NotANumber", [](const Rounding& rounding) { return std::isnan(rounding.Value) && !rounding.Ours; },
       Round(std::numeric_limits<double>::quiet_NaN())},
  };
}

TEST(NumbersRoundToLongOracle, RoundsAndOverflowsAsThePlatformDoes) {
  Differences<Rounding> differences(RoundingDifferences());
  for (const double value : Values(20)) differences.Compare(Round(value));
  for (int i = -20'000; i <= 20'000; ++i) differences.Compare(Round(i / 4.0));
  for (int i = -8'000; i <= 8'000; ++i) {
    differences.Compare(Round(Limits::max() + i / 1000.0));
    differences.Compare(Round(Limits::min() + i / 1000.0));
  }
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double value : {1e300, -1e300, infinity, -infinity, std::numeric_limits<double>::quiet_NaN()})
    differences.Compare(Round(value));
  differences.ExpectAllExplained(60'000);
}

}  // namespace
}  // namespace orx::numbers::oracle
