// Lines cut to a frame, such as the picture of a map.
#include "maplibrary/drawing/ClipLine.h"

#include <gtest/gtest.h>

#include <limits>

namespace orx::maplibrary {
namespace {

constexpr Rect kClipFrame{0, 0, 100, 50};

std::vector<std::pair<double, double>> EndPlacesOf(const std::vector<PixelPoint>& line) {
  std::vector<std::pair<double, double>> places;
  for (const std::vector<PixelPoint>& piece : ClippedLine(line, kClipFrame))
    for (const PixelPoint& point : piece) places.emplace_back(point.X, point.Y);
  return places;
}

using EndPlaces = std::vector<std::pair<double, double>>;

TEST(MapLibraryClipLine, WhatLiesInTheFrameStays) {
  EXPECT_EQ((EndPlaces{{0, 0}, {100, 50}}), EndPlacesOf({{0, 0}, {100, 50}}));
  EXPECT_EQ((EndPlaces{{10, 25}, {100, 25}}), EndPlacesOf({{10, 25}, {200, 25}}));
  EXPECT_EQ(EndPlaces{}, EndPlacesOf({{-5, -5}, {-1, 60}}));
}

TEST(MapLibraryClipLine, SegmentsThatLeadBeyondAllNumbersAreLeftOut) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  for (const double far : {kInfinity, -kInfinity, kNone}) {
    EXPECT_EQ((EndPlaces{{10, 10}, {20, 20}}), EndPlacesOf({{far, 10}, {10, 10}, {20, 20}, {20, far}}));
    EXPECT_EQ(EndPlaces{}, EndPlacesOf({{far, far}, {far, far}}));
  }
  constexpr double kMost = std::numeric_limits<double>::max();
  EXPECT_EQ(EndPlaces{}, EndPlacesOf({{-kMost, 10}, {kMost, 10}}));
}

TEST(MapLibraryClipLine, WhereTheEndsAreVeryFarTheCutStillLiesInTheFrame) {
  for (const double far : {1e18, 1e100, 1e300})
    for (const auto& [x, y] : EndPlacesOf({{-far, -far / 3}, {far, far / 2}, {-far / 7, far}, {far / 3, -far}})) {
      EXPECT_TRUE(x >= 0 && x <= 100) << x;
      EXPECT_TRUE(y >= 0 && y <= 50) << y;
    }
}

}  // namespace
}  // namespace orx::maplibrary
