// Contour lines: small grids by hand, a plane, a cone, a saddle, and invariants of random terrain.
#include "maplibrary/drawing/Contours.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <set>

#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

bool IsClosed(const Contour& contour) {
  return contour.Points.size() > 2 && contour.Points.front() == contour.Points.back();
}

GridData Terrain(std::int32_t rows, std::int32_t columns, const std::function<double(double, double)>& height) {
  GridData grid = SmallGrid(rows, columns, {});
  for (std::int32_t row = 0; row < rows; ++row)
    for (std::int32_t column = 0; column < columns; ++column) grid.Values.push_back(height(row, column));
  return grid;
}

double ValueAt(const GridData& grid, const GridPlace& place) {
  const auto row = static_cast<std::int32_t>(std::min(place.Row, grid.Rows - 1.001));
  const auto column = static_cast<std::int32_t>(std::min(place.Column, grid.Columns - 1.001));
  const double down = place.Row - row;
  const double right = place.Column - column;
  return (grid.At(row, column) * (1 - right) + grid.At(row, column + 1) * right) * (1 - down) +
         (grid.At(row + 1, column) * (1 - right) + grid.At(row + 1, column + 1) * right) * down;
}

TEST(RendererContours, OneSquareIsCrossedWhereTheLevelLies) {
  const auto contours = ContoursOf(SmallGrid(2, 2, {0, 0, 10, 10}), 2.5);
  ASSERT_EQ(contours.size(), 1u);
  ASSERT_EQ(contours[0].Points.size(), 2u);
  for (const GridPlace& point : contours[0].Points) EXPECT_EQ(point.Row, 0.25);
  EXPECT_EQ(contours[0].Points[0].Column + contours[0].Points[1].Column, 1);
  EXPECT_FALSE(IsClosed(contours[0]));
}

TEST(RendererContours, ASinglePeakHasARing) {
  const auto contours = ContoursOf(SmallGrid(3, 3, {0, 0, 0, 0, 4, 0, 0, 0, 0}), 1);
  ASSERT_EQ(contours.size(), 1u);
  EXPECT_TRUE(IsClosed(contours[0]));
  ASSERT_EQ(contours[0].Points.size(), 5u);
  const std::set<std::pair<double, double>> expected = {{0.25, 1}, {1, 0.25}, {1.75, 1}, {1, 1.75}};
  std::set<std::pair<double, double>> found;
  for (const GridPlace& point : contours[0].Points) found.insert({point.Row, point.Column});
  EXPECT_EQ(found, expected);
}

TEST(RendererContours, LevelsBeyondTheValuesHaveNoLines) {
  const GridData grid = SmallGrid(2, 2, {1, 2, 3, 4});
  EXPECT_TRUE(ContoursOf(grid, 0.5).empty());
  EXPECT_TRUE(ContoursOf(grid, 1).empty());
  EXPECT_TRUE(ContoursOf(grid, 4.5).empty());
  EXPECT_EQ(ContoursOf(grid, 4).size(), 1u);
  EXPECT_TRUE(ContoursOf(SmallGrid(1, 1, {1}), 1).empty());
}

TEST(RendererContours, ASaddleIsDecidedByItsMiddleSoThatLinesDoNotCross) {
  // High corners at the upper left and the lower right; the mean is 5.
  const GridData grid = SmallGrid(2, 2, {10, 0, 0, 10});
  for (const double level : {4.0, 6.0}) {
    const auto contours = ContoursOf(grid, level);
    ASSERT_EQ(contours.size(), 2u) << level;
    // Below the mean the high ground is joined: each line cuts off a low corner.
    for (const Contour& contour : contours) {
      ASSERT_EQ(contour.Points.size(), 2u);
      const double row = (contour.Points[0].Row + contour.Points[1].Row) / 2;
      const double column = (contour.Points[0].Column + contour.Points[1].Column) / 2;
      const bool isLowCorner = (row < 0.5) != (column < 0.5);
      EXPECT_EQ(isLowCorner, level < 5) << level;
    }
  }
}

TEST(RendererContours, APlaneHasOneStraightLineForEachLevel) {
  const GridData grid = Terrain(20, 30, [](double row, double column) { return 3 * column + row; });
  for (const double level : {10.5, 33.3, 70.0}) {
    const auto contours = ContoursOf(grid, level);
    ASSERT_EQ(contours.size(), 1u) << level;
    for (const GridPlace& point : contours[0].Points) EXPECT_NEAR(3 * point.Column + point.Row, level, 1e-9);
  }
}

TEST(RendererContours, AConeHasClosedCircles) {
  const GridData grid =
      Terrain(41, 41, [](double row, double column) { return 30 - std::hypot(row - 20, column - 20); });
  for (const double level : {15.5, 20.3, 28.7}) {
    const auto contours = ContoursOf(grid, level);
    ASSERT_EQ(contours.size(), 1u) << level;
    EXPECT_TRUE(IsClosed(contours[0]));
    for (const GridPlace& point : contours[0].Points)
      EXPECT_NEAR(std::hypot(point.Row - 20, point.Column - 20), 30 - level, 0.13) << level;
  }
}

TEST(RendererContours, PlacesWithoutValueInterruptTheLines) {
  const GridData grid = SmallGrid(2, 4, {0, 0, kNone, 0, 2, 2, 2, 2});
  const auto contours = ContoursOf(grid, 1);
  ASSERT_EQ(contours.size(), 1u);
  for (const GridPlace& point : contours[0].Points) EXPECT_LE(point.Column, 1);
}

TEST(RendererContours, HugeValuesAreCrossedInBetween) {
  const auto contours = ContoursOf(SmallGrid(2, 2, {-1.7e308, -1.7e308, 1.7e308, 1.7e308}), 0);
  ASSERT_EQ(contours.size(), 1u);
  EXPECT_EQ(contours[0].Points[0].Row, 0.5);
}

TEST(RendererContours, RandomTerrainHasLinesThatEndOnlyAtTheEdgeAndNeverMeet) {
  std::mt19937 random(7);
  for (int run = 0; run < 30; ++run) {
    const GridData grid =
        Terrain(12, 17, [&](double, double) { return std::uniform_real_distribution<double>(0, 10)(random); });
    std::set<std::pair<double, double>> seen;
    for (const Contour& contour : ContoursOf(grid, 5)) {
      ASSERT_GE(contour.Points.size(), 2u);
      for (const GridPlace& end : {contour.Points.front(), contour.Points.back()})
        EXPECT_TRUE(IsClosed(contour) || end.Row == 0 || end.Column == 0 || end.Row == 11 || end.Column == 16);
      const std::size_t last = contour.Points.size() - (IsClosed(contour) ? 1 : 0);
      for (std::size_t i = 0; i < last; ++i) {
        const GridPlace& point = contour.Points[i];
        EXPECT_NEAR(ValueAt(grid, point), 5, 1e-9);
        EXPECT_TRUE(seen.insert({point.Row, point.Column}).second) << "two lines meet";
      }
    }
  }
}

}  // namespace
}  // namespace orx::maplibrary
