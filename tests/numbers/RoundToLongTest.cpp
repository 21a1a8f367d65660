// Whole numbers: halves go to the even neighbour, what does not fit is an error.
#include <gtest/gtest.h>

#include <cfenv>
#include <limits>
#include <stdexcept>

#include "numbers/Numbers.h"

namespace orx::numbers {
namespace {

TEST(NumbersRoundToLong, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(RoundToLong(0.5), 0);
  EXPECT_EQ(RoundToLong(1.5), 2);
  EXPECT_EQ(RoundToLong(2.5), 2);
  EXPECT_EQ(RoundToLong(-0.5), 0);
  EXPECT_EQ(RoundToLong(-1.5), -2);
  EXPECT_EQ(RoundToLong(-2.5), -2);
}

TEST(NumbersRoundToLong, OthersGoToTheNearest) {
  EXPECT_EQ(RoundToLong(12.49), 12);
  EXPECT_EQ(RoundToLong(12.51), 13);
  EXPECT_EQ(RoundToLong(0.49999999999999994), 0);
  EXPECT_EQ(RoundToLong(-7), -7);
}

TEST(NumbersRoundToLong, TheRoundingModeOfTheHostDoesNotMatter) {
  const int before = std::fegetround();
  std::fesetround(FE_UPWARD);
  const std::int32_t rounded = RoundToLong(2.25);
  std::fesetround(before);
  EXPECT_EQ(rounded, 2);
}

TEST(NumbersRoundToLong, TheLimitsFit) {
  EXPECT_EQ(RoundToLong(2147483647.0), 2147483647);
  EXPECT_EQ(RoundToLong(2147483647.49), 2147483647);
  EXPECT_EQ(RoundToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(NumbersRoundToLong, WhatDoesNotFitIsAnOverflow) {
  EXPECT_THROW(RoundToLong(2147483647.5), std::overflow_error);
  EXPECT_THROW(RoundToLong(-2147483648.51), std::overflow_error);
  EXPECT_THROW(RoundToLong(1e300), std::overflow_error);
  EXPECT_THROW(RoundToLong(std::numeric_limits<double>::infinity()), std::overflow_error);
  EXPECT_THROW(RoundToLong(std::numeric_limits<double>::quiet_NaN()), std::overflow_error);
}

}  // namespace
}  // namespace orx::numbers
