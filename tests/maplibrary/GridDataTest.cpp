// Grids in memory and rectangles on the ground.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

TEST(MapLibraryGridData, EdgesLieHalfACellOutsideTheCentres) {
  const GridData grid = {2, 3, 2, 4, {10, 20}, {}, {1, 2, 3, 4, 5, 6}};
  EXPECT_EQ(grid.Edges(), (GroundRect{9, 15, 14, 22}));
  EXPECT_EQ(grid.CenterOf({1, 2}), (GroundPoint{14, 16}));
}

TEST(MapLibraryGridData, MissingCellsCountNeitherForTheRangeNorTheHighest) {
  const GridData grid = SmallGrid(1, 5, {kNone, -3, 7, kNone, 7});
  EXPECT_EQ(RangeOf(grid), (ValueRange{-3, 7}));
  EXPECT_EQ(HighestCell(grid), (GridCell{0, 2}));
}

TEST(MapLibraryGridData, APartKeepsItsPlaceAndValues) {
  const GridData part = PartOf(SmallGrid(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9}), {1, 1}, 2, 2);
  EXPECT_EQ(part.Values, (std::vector<double>{5, 6, 8, 9}));
  EXPECT_EQ(part.Edges(), (GroundRect{1, 3, 0, 2}));
}

TEST(MapLibraryGroundRect, AnEmptyRectangleAddsNothingToAUnion) {
  const GroundRect some = {4, 2, 1, 3};
  EXPECT_EQ(Union({}, some), (GroundRect{2, 4, 1, 3}));
  EXPECT_EQ(Union(some, {}), (GroundRect{2, 4, 1, 3}));
  EXPECT_EQ(Union({}, {}), GroundRect());
  EXPECT_EQ(Union({0, 1, 0, 1}, {5, 6, -2, -1}), (GroundRect{0, 6, -2, 1}));
}

TEST(MapLibraryGroundRect, SidesThatCannotBeDividedByAreEmpty) {
  const double huge = std::numeric_limits<double>::max();
  EXPECT_TRUE(GroundRect({0, 1, 5, 5}).IsEmpty());
  EXPECT_TRUE(GroundRect({-huge, huge, 0, 1}).IsEmpty());
  EXPECT_TRUE(GroundRect({0, 1, 0, 1e-320}).IsEmpty());
  EXPECT_FALSE(GroundRect({1, 0, 0, 1}).IsEmpty());
}

TEST(MapLibraryGroundRect, WhatLiesInARectangleMovesAndStretchesWithIt) {
  const GroundRect from = {0, 10, 0, 10};
  EXPECT_EQ(Moved(GroundPoint{5, 2}, from, {100, 120, 50, 60}), (GroundPoint{110, 52}));
  EXPECT_EQ(Moved(GroundRect{0, 5, 5, 10}, from, {20, 0, 0, 10}), (GroundRect{20, 10, 5, 10}));
  EXPECT_EQ(Moved(GroundPoint{0.1, 0.3}, from, from), (GroundPoint{0.1, 0.3}));
}

}  // namespace
}  // namespace orx::maplibrary
