// The geometry of the grid and the ways through it, without a dialog.
#include "forms/Keys.h"
#include "pickers/CharacterGrid.h"
#include "tests/support/User.h"

#include <gtest/gtest.h>

namespace orx::test {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2, 1.0333};

TEST(CharacterGrid, CellsAreNineteenPixelsApartTwentyToARow) {
  const CharacterGrid grid;
  EXPECT_EQ((Point{9, 9}), grid.PlaceOf(0));
  EXPECT_EQ((Point{370, 9}), grid.PlaceOf(19));
  EXPECT_EQ((Point{9, 28}), grid.PlaceOf(20));
  EXPECT_EQ((Point{104, 66}), grid.PlaceOf(65));
  EXPECT_EQ((Point{294, 237}), grid.PlaceOf(255));
}

TEST(CharacterGrid, PixelsOfTheScreenAreRoundedWithHalvesToTheEvenOne) {
  EXPECT_EQ((Point{14 + 28, 14}), CharacterGrid(1.5).PlaceOf(1));
  EXPECT_EQ((Point{18 + 38, 18}), CharacterGrid(2).PlaceOf(1));
  EXPECT_EQ((Point{11 + 24, 11}), CharacterGrid(1.25).PlaceOf(1));
}

TEST(CharacterGrid, EveryPixelOfACellIsItsCode) {
  for (const double scale : kScales) {
    const CharacterGrid grid(scale);
    const int step = grid.PlaceOf(1).X - grid.PlaceOf(0).X;
    for (int code = 0; code < CharacterGrid::kCodes; ++code) {
      const Point first = grid.PlaceOf(code);
      const Point last{first.X + step - 1, first.Y + step - 1};
      EXPECT_EQ(code, grid.CodeAt(first)) << scale;
      EXPECT_EQ(code, grid.CodeAt(last)) << scale;
    }
  }
}

TEST(CharacterGrid, TheMarginsAboveAndToTheLeftAreNoCode) {
  for (const double scale : kScales) {
    const CharacterGrid grid(scale);
    const Point first = grid.PlaceOf(0);
    EXPECT_EQ(std::nullopt, grid.CodeAt({first.X - 1, first.Y + 30}));
    EXPECT_EQ(std::nullopt, grid.CodeAt({first.X + 30, first.Y - 1}));
    EXPECT_EQ(std::nullopt, grid.CodeAt({0, 0}));
    EXPECT_EQ(std::nullopt, grid.CodeAt({-50, -50}));
  }
}

TEST(CharacterGrid, TheMarginToTheRightCountsForTheNextRow) {
  EXPECT_EQ(19, CharacterGrid().CodeAt({388, 9}));
  EXPECT_EQ(20, CharacterGrid().CodeAt({389, 9}));
}

TEST(CharacterGrid, BehindTheLastCodeThereIsNone) {
  const CharacterGrid grid;
  EXPECT_EQ(255, grid.CodeAt({312, 255}));
  EXPECT_EQ(std::nullopt, grid.CodeAt({313, 255}));
  EXPECT_EQ(std::nullopt, grid.CodeAt({9, 256}));
}

TEST(CharacterGrid, ACellIsOnePixelWiderThanItsCharacterOnEachSideAndNeverTooNarrow) {
  const CharacterGrid grid;
  EXPECT_EQ((Rect{8, 9, 14, 19}), grid.CellOf(0, {12, 19}));
  EXPECT_EQ((Rect{8, 9, 11, 19}), grid.CellOf(0, {9, 19}));
  EXPECT_EQ((Rect{8, 9, 10, 19}), grid.CellOf(0, {8, 19}));
  EXPECT_EQ((Rect{8, 9, 10, 19}), grid.CellOf(0, {0, 19}));
  EXPECT_EQ((Rect{16, 18, 20, 38}), CharacterGrid(2).CellOf(0, {17, 38}));
  EXPECT_EQ((Rect{16, 18, 22, 38}), CharacterGrid(2).CellOf(0, {18, 38}));
}

TEST(CharacterGrid, LeftAndRightGoAroundTheEnds) {
  EXPECT_EQ(64, CharacterGrid::Neighbour(65, kKeyCodeLeft));
  EXPECT_EQ(255, CharacterGrid::Neighbour(0, kKeyCodeLeft));
  EXPECT_EQ(20, CharacterGrid::Neighbour(19, kKeyCodeRight));
  EXPECT_EQ(0, CharacterGrid::Neighbour(255, kKeyCodeRight));
}

TEST(CharacterGrid, UpAndDownEndAtTheFirstAndTheLastRow) {
  EXPECT_EQ(45, CharacterGrid::Neighbour(65, kKeyCodeUp));
  EXPECT_EQ(0, CharacterGrid::Neighbour(20, kKeyCodeUp));
  EXPECT_EQ(std::nullopt, CharacterGrid::Neighbour(19, kKeyCodeUp));
  EXPECT_EQ(255, CharacterGrid::Neighbour(235, kKeyCodeDown));
  EXPECT_EQ(std::nullopt, CharacterGrid::Neighbour(236, kKeyCodeDown));
  EXPECT_EQ(std::nullopt, CharacterGrid::Neighbour(240, kKeyCodeDown));
}

TEST(CharacterGrid, OtherKeysStay) {
  for (const int key : {kKeyCodeSpace, kKeyCodeHome, kKeyCodePageDown, kKeyCodeShift, static_cast<int>('A')})
    EXPECT_EQ(65, CharacterGrid::Neighbour(65, key));
}

}  // namespace
}  // namespace orx::test
