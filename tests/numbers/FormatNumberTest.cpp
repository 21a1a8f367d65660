// Numbers as patterns show them: places, groups, exponents, rounding, and that no more is lost than is not shown.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

using Limits = std::numeric_limits<double>;

const Separators kGermanFormat{",", ".", "€"};
const Separators kSwissFormat{".", "\u2019", "CHF"};

struct Formatted {
  double Value;
  std::string Pattern;
  std::string Text;
};

void ExpectTexts(const std::vector<Formatted>& cases, const Separators& separators = {}) {
  for (const auto& [value, pattern, text] : cases)
    EXPECT_EQ(FormatNumber(value, pattern, separators), text) << ShortestText(value) << " as \"" << pattern << "\"";
}

TEST(NumbersFormatNumber, ThePatternsThatPeopleChooseFrom) {
  ExpectTexts({{1234567.891, "General", "1234567.891"},
               {1234567.891, "0", "1234568"},
               {1234567.891, "0.0", "1234567.9"},
               {1234567.891, "0.00", "1234567.89"},
               {1234567.891, "0.000", "1234567.891"},
               {1234567.891, "0.0000", "1234567.8910"},
               {1234567.891, "0.00000", "1234567.89100"},
               {1234567.891, "0.0000000", "1234567.8910000"},
               {1234567.891, "0.000000000", "1234567.891000000"},
               {1234567.891, "0.0000E+000", "1.2346E+006"},
               {1234567.891, "#,###,##0", "1,234,568"},
               {1234567.891, "#,###,##0.0", "1,234,567.9"}});
}

TEST(NumbersFormatNumber, HalvesGoAwayFromZero) {
  ExpectTexts({{0.5, "0", "1"}, {1.5, "0", "2"}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.125, "0.00", "0.13"}});
  ExpectTexts({{0.49999, "0", "0"}, {0.05, "0.0", "0.1"}, {0.04999, "0.0", "0.0"}, {0.005, "0.00", "0.01"}});
  ExpectTexts({{1.25, "0.0E+0", "1.3E+0"}, {-1.25, "0.0E+0", "-1.3E+0"}});
}

TEST(NumbersFormatNumber, RoundingGoesByTheDecimalNumberAndNotByItsBinaryNeighbour) {
  ExpectTexts({{1.005, "0.00", "1.01"}, {2.675, "0.00", "2.68"}, {-1.005, "0.00", "-1.01"}, {0.285, "0.00", "0.29"}});
  ExpectTexts({{0.1 + 0.2, "0.000000000", "0.300000000"}, {1.1 * 1.1 - 0.005, "0.00", "1.21"}});
}

TEST(NumbersFormatNumber, NoMoreThanFifteenDigitsAreSignificant) {
  ExpectTexts(
      {{0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"}, {123456789012345678.0, "0", "123456789012346000"}});
  ExpectTexts(
      {{123456.7890123456, "0.0000000000", "123456.7890123460"}, {1234567890123.125, "0.00", "1234567890123.13"}});
}

TEST(NumbersFormatNumber, CarriesRunThroughAllDigits) {
  ExpectTexts(
      {{9.995, "0.00", "10.00"}, {99.5, "0", "100"}, {0.95, "0.0", "1.0"}, {999999.5, "#,###,##0", "1,000,000"}});
  ExpectTexts({{9.99995e5, "0.0000E+000", "1.0000E+006"}, {9.99995e-1, "0.0000E+000", "1.0000E+000"}});
  ExpectTexts({{0.99995, "0.0000", "1.0000"}, {1.99995, "0.0000", "2.0000"}, {9.9999e99, "0.00E+00", "1.00E+100"}});
}

TEST(NumbersFormatNumber, GroupsOfThreeDigits) {
  ExpectTexts({{0, "#,###,##0", "0"},
               {12, "#,###,##0", "12"},
               {123, "#,###,##0", "123"},
               {1234, "#,###,##0", "1,234"},
               {-123456, "#,###,##0", "-123,456"},
               {1234567890, "#,###,##0", "1,234,567,890"},
               {0.04, "#,###,##0.0", "0.0"},
               {5, "0,000", "0,005"}});
}

TEST(NumbersFormatNumber, TheLocaleGivesTheSeparators) {
  ExpectTexts({{1234.5, "#,###,##0.0", "1.234,5"}, {0.25, "0.00", "0,25"}, {125, "0.0000E+000", "1,2500E+002"}},
              kGermanFormat);
  ExpectTexts({{1234567.5, "#,###,##0.0", "1\u2019234\u2019567.5"}, {0.25, "0.00", "0.25"}}, kSwissFormat);
  ExpectTexts({{1234567.5, "#,###,##0.0", "1234567.5"}}, {".", "", ""});
}

TEST(NumbersFormatNumber, ExponentsHaveTheirSignAndAtLeastTheirPlaces) {
  ExpectTexts({{1.25e2, "0.0000E+000", "1.2500E+002"},
               {1.25e-2, "0.0000E+000", "1.2500E-002"},
               {-1.25e2, "0.0000E+000", "-1.2500E+002"},
               {1.5e300, "0.0000E+0", "1.5000E+300"},
               {1.5e3, "0.0E-00", "1.5E03"},
               {1.5e-3, "0.0E-00", "1.5E-03"},
               {1234, "00.0E+00", "12.3E+02"},
               {1.5, "0.0e+00", "1.5e+00"}});
}

TEST(NumbersFormatNumber, ZeroHasNoSignAndNoPower) {
  for (const double zero : {0.0, -0.0})
    ExpectTexts(
        {{zero, "0", "0"}, {zero, "0.00", "0.00"}, {zero, "0.0000E+000", "0.0000E+000"}, {zero, "General", "0"}});
}

TEST(NumbersFormatNumber, WhatRoundsToZeroHasNoMinus) {
  ExpectTexts({{-0.4, "0", "0"}, {-0.0049, "0.00", "0.00"}, {-1e-300, "0.000000000", "0.000000000"}});
  ExpectTexts({{-0.5, "0", "-1"}, {-0.005, "0.00", "-0.01"}, {-0.04, "#,###,##0.0", "0.0"}});
}

TEST(NumbersFormatNumber, OptionalPlacesAreShownWhenTheNumberHasThem) {
  ExpectTexts({{1.5, "0.##", "1.5"}, {1.256, "0.##", "1.26"}, {1.5, "0.0#", "1.5"}, {1, "0.0#", "1.0"}});
  ExpectTexts({{1, "0.##", "1."}, {0.5, "#.0", ".5"}, {1.5, "0.#0", "1.50"}, {5, "000", "005"}, {5, "0#", "05"}});
  ExpectTexts({{0, "#", ""}, {0, "#.0", ".0"}, {0.5, "#", "1"}, {0.4, "#", ""}});
}

TEST(NumbersFormatNumber, TheLargestAndTheSmallestNumbers) {
  ExpectTexts({{1e20, "0.0", "100000000000000000000.0"},
               {1e20, "#,###,##0", "100,000,000,000,000,000,000"},
               {1e300, "0", "1" + std::string(300, '0')},
               {Limits::max(), "0", "179769313486232" + std::string(294, '0')},
               {Limits::max(), "0.0000E+000", "1.7977E+308"},
               {Limits::lowest(), "0.0000E+000", "-1.7977E+308"},
               {Limits::denorm_min(), "0.000000000", "0.000000000"},
               {Limits::denorm_min(), "0.0000E+000", "4.9407E-324"},
               {1e-300, "0." + std::string(300, '0'), "0." + std::string(299, '0') + "1"}});
}

TEST(NumbersFormatNumber, WhatIsNotFiniteIsNotFormatted) {
  ExpectTexts({{Limits::infinity(), "0.00", "1.#INF"}, {-Limits::infinity(), "#,###,##0", "-1.#INF"}});
  ExpectTexts({{Limits::quiet_NaN(), "0.0000E+000", "1.#QNAN"}});
}

TEST(NumbersFormatNumber, GeneralInAnyLetterCaseHasFifteenDigits) {
  for (const std::string general : {"General", "general", "GENERAL", " General "})
    ExpectTexts({{0.1 + 0.2, general, "0.3"},
                 {0.09999999999999999, general, "0.1"},
                 {1.0 / 3, general, "0.333333333333333"},
                 {999999999999999.9, general, "1E+15"},
                 {1e20, general, "1E+20"},
                 // The double is 1.00125711208421499996...E+294.
                 {1.001257112084215e294, general, "1.00125711208421E+294"}});
  ExpectTexts({{1234.5, "General", "1234,5"}}, kGermanFormat);
}

TEST(NumbersFormatNumber, BlanksAroundThePatternAreIgnored) {
  ExpectTexts({{1.5, " 0.00 ", "1.50"}, {1.5, "\t0", "2"}, {1.5, "0.0E+0 ", "1.5E+0"}});
}

TEST(NumbersFormatNumber, WhatIsNoPatternGivesTheShortestText) {
  for (const std::string other :
       {"",     " ",    ".",  "E+00",     "0 0",  "0.0.0",      "0,", ",0", "0,,0",    "0.0,0", "0E+",
        "0E00", "0E+#", "0%", "0.00;0.0", "yyyy", "Scientific", "0x", "$0", "0E+0E+0", "-0"})
    ExpectTexts({{1234.5678, other, "1234.5678"}});
}

/// The value of one unit of the last place that a pattern with so many decimals shows for `value`.
double LastPlace(double value, int decimals, bool scientific) {
  const double power = scientific && value != 0 ? std::floor(std::log10(std::fabs(value)) + 1e-12) : 0;
  return std::pow(10.0, power - decimals);
}

struct Precision {
  std::string Pattern;
  int Decimals;
};

void ExpectNothingLost(double value, const Precision& precision, const Separators& separators) {
  const std::string text = FormatNumber(value, precision.Pattern, separators);
  const std::optional<double> back = ToDouble(text, separators);
  // Doubles next to the largest one round to a number beyond it.
  if (std::fabs(value) > 1.7976e308) return;
  ASSERT_TRUE(back) << text;
  const double last = LastPlace(value, precision.Decimals, precision.Pattern.find('E') != std::string::npos);
  EXPECT_LE(std::fabs(*back - value), last / 2 + std::fabs(value) * 1e-14) << text << " for " << ShortestText(value);
}

const std::vector<Precision> kPrecisions{{"0", 0},           {"0.0", 1},       {"0.00", 2},        {"0.000", 3},
                                         {"0.0000", 4},      {"0.00000", 5},   {"0.0000000", 7},   {"0.000000000", 9},
                                         {"0.0000E+000", 4}, {"#,###,##0", 0}, {"#,###,##0.0", 1}, {"General", 16}};

TEST(NumbersFormatNumber, RandomEverydayNumbersReadBackToTheLastPlaceShown) {
  std::mt19937_64 random(20250301);
  std::uniform_real_distribution<double> power(-10, 14);
  for (int i = 0; i < 5'000; ++i) {
    const double value = std::pow(10.0, power(random)) * (i % 2 == 0 ? 1 : -1);
    for (const Precision& precision : kPrecisions)
      ExpectNothingLost(value, precision, i % 3 ? Separators() : kSwissFormat);
  }
}

TEST(NumbersFormatNumber, RandomBitPatternsReadBackToTheLastPlaceShown) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 5'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    for (const Precision& precision : kPrecisions) ExpectNothingLost(value, precision, kGermanFormat);
  }
}

TEST(NumbersFormatNumber, RandomHalvesGoAwayFromZeroAtEveryPlace) {
  std::mt19937_64 random(5);
  for (int i = 0; i < 5'000; ++i) {
    const std::string integer = std::to_string(random() % 100'000) + ".";
    const int kept = 100 + static_cast<int>(random() % 899);
    const double half = std::stod(integer + std::to_string(kept * 10 + 5));
    const std::string up = integer + std::to_string(kept + 1);
    ASSERT_EQ(FormatNumber(half, "0.000"), up);
    ASSERT_EQ(FormatNumber(-half, "0.000"), "-" + up);
  }
}

}  // namespace
}  // namespace orx::numbers
