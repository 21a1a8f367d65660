// Shortest texts, compared with the platform's texts of 15 digits where these are all that the number has.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/numbers/oracle/Differences.h"
#include "tests/numbers/oracle/Oracle.h"
#include "tests/numbers/oracle/Values.h"

namespace orx::numbers::oracle {
namespace {

struct Writing {
  double Value = 0;
  const Locale* Where = nullptr;
  std::string Ours;
  std::string Theirs;

  bool Differs() const { return Ours != Theirs; }
  std::string ToText() const { return "\"" + Ours + "\" here is \"" + Theirs + "\" there"; }
};

Writing Write(double value, const Locale& locale) {
  return {value, &locale, ShortestText(value, locale.Marks), TextOf(value, locale).value_or("nothing")};
}

std::string WithComma(std::string text) {
  std::ranges::replace(text, '.', ',');
  return text;
}

/// Each reason with what it explains. The first that fits counts.
std::vector<Difference<Writing>> WritingDifferences() {
  return {
      // These are no numbers, and their texts say so in the words of this library.
      {"NotFinite", [](const Writing& writing) { return !std::isfinite(writing.Value); },
       Write(std::numeric_limits<double>::infinity(), English())},
      // Below the normal range a double is told by fewer digits than the platform writes.
      {"FewerDigitsForTheSmallest",
       [](const Writing& writing) {
         return std::fabs(writing.Value) < std::numeric_limits<double>::min() &&
                writing.Ours.size() < writing.Theirs.size() &&
                numbers::ToDouble(writing.Ours, writing.Where->Marks) == writing.Value;
       },
       Write(std::numeric_limits<double>::denorm_min(), English())},
      // The platform forgets the locale's decimal separator where it writes an exponent.
      {"DecimalCommaBeforeAnExponent",
       [](const Writing& writing) {
         return writing.Where == &German() && writing.Theirs.find('E') != std::string::npos &&
                writing.Ours == WithComma(writing.Theirs);
       },
       Write(1.5e20, German())},
  };
}

TEST(NumbersShortestTextOracle, NumbersOfFifteenDigitsAreWrittenAsThePlatformWritesThem) {
  Differences<Writing> differences(WritingDifferences());
  std::vector<double> values = Values(320);
  const double infinity = std::numeric_limits<double>::infinity();
  values.insert(values.end(), {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()});
  for (const Locale* locale : {&English(), &German()})
    for (const double value : values)
      if (!std::isfinite(value) || HasFifteenDigits(value)) differences.Compare(Write(value, *locale));
  differences.ExpectAllExplained(5'000);
}

TEST(NumbersGeneralTextOracle, EveryNumberIsWrittenAsThePlatformWritesIt) {
  // Only the decimal comma is left to explain: all values are finite and none is below the normal range.
  Differences<Writing> differences({WritingDifferences().back()});
  for (const Locale* locale : {&English(), &German()})
    for (const double value : Values(300))
      differences.Compare(
          {value, locale, GeneralText(value, locale->Marks), TextOf(value, *locale).value_or("nothing")});
  differences.ExpectAllExplained(5'000);
}

}  // namespace
}  // namespace orx::numbers::oracle
