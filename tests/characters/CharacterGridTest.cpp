// The geometry of the grid and the ways through it, without a dialog.
#include "forms/Appearance.h"
#include "forms/Keys.h"
#include "pickers/CharacterGrid.h"
#include "tests/support/User.h"

#include <gtest/gtest.h>

namespace orx::test {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 1.75, 2, 1.0333};

TEST(CharacterGrid, CellsAreNineteenPixelsApartTwentyToARow) {
  const CharacterGrid grid;
  EXPECT_EQ((Rect{9, 9, 19, 19}), grid.CellOf(0));
  EXPECT_EQ((Rect{370, 9, 19, 19}), grid.CellOf(19));
  EXPECT_EQ((Rect{9, 28, 19, 19}), grid.CellOf(20));
  EXPECT_EQ((Rect{104, 66, 19, 19}), grid.CellOf(65));
  EXPECT_EQ((Rect{294, 237, 19, 19}), grid.CellOf(255));
}

TEST(CharacterGrid, PixelsOfTheScreenAreRoundedWithHalvesToTheEvenOne) {
  EXPECT_EQ((Rect{14 + 28, 14, 28, 28}), CharacterGrid(1.5).CellOf(1));
  EXPECT_EQ((Rect{18 + 38, 18, 38, 38}), CharacterGrid(2).CellOf(1));
  EXPECT_EQ((Rect{11 + 24, 11, 24, 24}), CharacterGrid(1.25).CellOf(1));
}

TEST(CharacterGrid, EveryPixelOfACellIsItsCode) {
  for (const double scale : kScales) {
    const CharacterGrid grid(scale);
    for (int code = 0; code < kCharacterCodes; ++code) {
      const Rect cell = grid.CellOf(code);
      EXPECT_EQ(code, grid.CodeAt({cell.Left, cell.Top})) << scale;
      EXPECT_EQ(code, grid.CodeAt({cell.Right() - 1, cell.Bottom() - 1})) << scale;
    }
  }
}

TEST(CharacterGrid, TheMarginsAboveAndToTheLeftAreNoCode) {
  for (const double scale : kScales) {
    const CharacterGrid grid(scale);
    const Rect first = grid.CellOf(0);
    EXPECT_EQ(std::nullopt, grid.CodeAt({first.Left - 1, first.Top + 30}));
    EXPECT_EQ(std::nullopt, grid.CodeAt({first.Left + 30, first.Top - 1}));
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
