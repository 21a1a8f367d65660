// Numbers as text: the notation, and that every double reads back as it was.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

const Separators kGermanSeparators{",", ".", "€"};

::testing::AssertionResult ReadsBack(double value, const Separators& separators = {}) {
  const std::string text = ShortestText(value, separators);
  const std::optional<double> back = ToDouble(text, separators);
  if (back && *back == value) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "\"" << text << "\" reads as " << back.value_or(NAN);
}

TEST(NumbersShortestText, WholeNumbersAndDecimals) {
  EXPECT_EQ(ShortestText(7), "7");
  EXPECT_EQ(ShortestText(-1200), "-1200");
  EXPECT_EQ(ShortestText(0.5), "0.5");
  EXPECT_EQ(ShortestText(-12.25), "-12.25");
  EXPECT_EQ(ShortestText(0.1 + 0.2), "0.30000000000000004");
}

TEST(NumbersShortestText, BothZerosAreZero) {
  EXPECT_EQ(ShortestText(0.0), "0");
  EXPECT_EQ(ShortestText(-0.0), "0");
}

TEST(NumbersShortestText, UpToFifteenDigitsArePlain) {
  EXPECT_EQ(ShortestText(123456789012345), "123456789012345");
  EXPECT_EQ(ShortestText(100000000000000), "100000000000000");
  EXPECT_EQ(ShortestText(1e15), "1E+15");
  EXPECT_EQ(ShortestText(-1234567890123456), "-1.234567890123456E+15");
}

TEST(NumbersShortestText, ManyZerosBehindThePointGiveAnExponent) {
  EXPECT_EQ(ShortestText(0.00025), "0.00025");
  EXPECT_EQ(ShortestText(0.000025), "2.5E-05");
  EXPECT_EQ(ShortestText(1.5e-7), "1.5E-07");
}

TEST(NumbersShortestText, ExponentsHaveAtLeastTwoDigits) {
  EXPECT_EQ(ShortestText(1e20), "1E+20");
  EXPECT_EQ(ShortestText(1e-9), "1E-09");
  EXPECT_EQ(ShortestText(std::numeric_limits<double>::max()), "1.7976931348623157E+308");
  EXPECT_EQ(ShortestText(std::numeric_limits<double>::denorm_min()), "5E-324");
}

TEST(NumbersShortestText, TheLocaleGivesTheDecimalSeparator) {
  EXPECT_EQ(ShortestText(0.5, kGermanSeparators), "0,5");
  EXPECT_EQ(ShortestText(1234.5, kGermanSeparators), "1234,5");
  EXPECT_EQ(ShortestText(1.5e-7, kGermanSeparators), "1,5E-07");
}

TEST(NumbersShortestText, WhatIsNoFiniteNumberReadsAsNone) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ShortestText(infinity), "1.#INF");
  EXPECT_EQ(ShortestText(-infinity), "-1.#INF");
  EXPECT_EQ(ShortestText(std::numeric_limits<double>::quiet_NaN()), "1.#QNAN");
  EXPECT_FALSE(IsNumeric(ShortestText(infinity)));
}

TEST(NumbersShortestText, RandomBitPatternsReadBack) {
  std::mt19937_64 random(20240229);
  for (int i = 0; i < 200'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    ASSERT_TRUE(ReadsBack(value));
  }
}

TEST(NumbersShortestText, RandomSubnormalsReadBack) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20'000; ++i) ASSERT_TRUE(ReadsBack(std::bit_cast<double>(random() >> 12 >> (random() % 52))));
}

TEST(NumbersShortestText, RandomEverydayNumbersReadBackInEveryLocale) {
  std::mt19937_64 random(11);
  std::uniform_int_distribution<int> digits(-9'999'999, 9'999'999);
  std::uniform_int_distribution<int> power(-9, 12);
  for (int i = 0; i < 50'000; ++i) {
    const double value = digits(random) * std::pow(10.0, power(random));
    ASSERT_TRUE(ReadsBack(value));
    ASSERT_TRUE(ReadsBack(value, kGermanSeparators));
  }
}

TEST(NumbersShortestText, TheExtremesReadBack) {
  using Limits = std::numeric_limits<double>;
  for (const double value : {Limits::min(), Limits::max(), Limits::lowest(), Limits::denorm_min(), Limits::epsilon(),
                             std::nextafter(Limits::min(), 0.0), std::nextafter(1.0, 2.0), 9007199254740993.0})
    EXPECT_TRUE(ReadsBack(value));
}

}  // namespace
}  // namespace orx::numbers
