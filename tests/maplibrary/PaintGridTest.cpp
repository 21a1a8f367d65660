// Grids as pictures: colours, places of cells, missing values, and both ways of sampling.
#include "maplibrary/drawing/PaintGrid.h"

#include <gtest/gtest.h>

#include "maplibrary/model/ColorRamp.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

/// The pixels as text, one letter each: the value of the ramp from '0' (lowest) to '8' (highest), '.' for transparent
/// and '?' for any other colour. Shares count in eighths.
std::string Shares(const Image& image) {
  std::string text;
  for (std::size_t i = 0; i < image.Pixels.size(); i += 4) {
    if (i > 0 && i / 4 % static_cast<std::size_t>(image.Width) == 0) text += '|';
    const Color color = {image.Pixels[i], image.Pixels[i + 1], image.Pixels[i + 2]};
    char letter = '?';
    for (int eighth = 0; eighth <= 8; ++eighth) {
      if (color == ColorAt(eighth / 8.0)) letter = static_cast<char>('0' + eighth);
    }
    text += image.Pixels[i + 3] == 0 ? '.' : letter;
  }
  return text;
}

/// A new image of the part of the ground in the window. Colours reach over the grid's own range of values.
Image RenderGrid(const GridData& grid, const GroundRect& window, Size size, Sampling sampling = Sampling::Blended) {
  Image image = BlankImage(size);
  PaintGrid(image, window, {std::make_shared<const GridData>(grid), grid.Edges()}, RangeOf(grid).value_or(ValueRange()),
            sampling);
  return image;
}

TEST(MapLibraryColorRamp, ColoursRunFromLowlandsToSummitsWithoutSteps) {
  EXPECT_EQ(ColorAt(0), (Color{84, 142, 98}));
  EXPECT_EQ(ColorAt(1), (Color{240, 236, 232}));
  EXPECT_EQ(ColorAt(-5), ColorAt(0));
  EXPECT_EQ(ColorAt(5), ColorAt(1));
  EXPECT_EQ(ColorAt(kNone), ColorAt(0));
  for (int i = 0; i < 1000; ++i) {
    const Color a = ColorAt(i / 1000.0);
    const Color b = ColorAt((i + 1) / 1000.0);
    EXPECT_LE(std::abs(a.Red - b.Red) + std::abs(a.Green - b.Green) + std::abs(a.Blue - b.Blue), 8) << i;
  }
}

TEST(MapLibraryColorRamp, SharesLieBetweenTheLimits) {
  EXPECT_EQ(ShareOf(236, {236, 1076}), 0);
  EXPECT_EQ(ShareOf(656, {236, 1076}), 0.5);
  EXPECT_EQ(ShareOf(2000, {236, 1076}), 1);
  EXPECT_EQ(ShareOf(5, {5, 5}), 0.5);
  EXPECT_EQ(ShareOf(0, {-1.7e308, 1.7e308}), 0.5);
}

TEST(MapLibraryRenderGrid, EveryCellFillsItsPixels) {
  const GridData grid = SmallGrid(2, 2, {0, 8, 2, 6});
  EXPECT_EQ(Shares(RenderGrid(grid, {0, 2, 0, 2}, {4, 4}, Sampling::Nearest)), "0088|0088|2266|2266");
}

TEST(MapLibraryRenderGrid, BetweenCentresValuesAreBlended) {
  const GridData grid = SmallGrid(1, 2, {0, 8});
  EXPECT_EQ(Shares(RenderGrid(grid, {0, 2, 0, 1}, {8, 1})), "00135788");
  const GridData column = SmallGrid(2, 1, {8, 0});
  EXPECT_EQ(Shares(RenderGrid(column, {0, 1, 0, 2}, {1, 4})), "8|6|2|0");
}

TEST(MapLibraryRenderGrid, FourCentresAreBlendedInBothDirections) {
  const GridData grid = SmallGrid(2, 2, {0, 8, 8, 0});
  EXPECT_EQ(Shares(RenderGrid(grid, {0.5, 1.5, 0.5, 1.5}, {1, 1})), "4");
}

TEST(MapLibraryRenderGrid, MissingCellsStayTransparentAndDoNotSpoilTheirNeighbours) {
  const GridData grid = SmallGrid(1, 3, {0, kNone, 8});
  EXPECT_EQ(Shares(RenderGrid(grid, {0, 3, 0, 1}, {6, 1})), "00..88");
}

TEST(MapLibraryRenderGrid, TheGroundOutsideTheGridIsTransparent) {
  const GridData grid = SmallGrid(1, 1, {5});
  EXPECT_EQ(Shares(RenderGrid(grid, {-1, 2, -1, 2}, {3, 3})), "...|.4.|...");
  EXPECT_EQ(Shares(RenderGrid(grid, {5, 6, 5, 6}, {2, 1})), "..");
}

TEST(MapLibraryRenderGrid, AWindowShowsItsPartOfTheGrid) {
  const GridData grid = SmallGrid(2, 2, {0, 8, 2, 6});
  EXPECT_EQ(Shares(RenderGrid(grid, {1, 2, 0, 2}, {1, 2}, Sampling::Nearest)), "8|6");
}

TEST(MapLibraryRenderGrid, AMirroredPlaceMirrorsThePicture) {
  const auto grid = std::make_shared<const GridData>(SmallGrid(1, 2, {0, 8}));
  Image image = BlankImage({2, 1});
  PaintGrid(image, {0, 2, 0, 1}, {grid, {2, 0, 0, 1}}, {0, 8}, Sampling::Nearest);
  EXPECT_EQ(Shares(image), "80");
}

TEST(MapLibraryRenderGrid, NothingIsPaintedWithoutAPlaceOrWindow) {
  const auto grid = std::make_shared<const GridData>(SmallGrid(1, 1, {5}));
  Image image = BlankImage({1, 1});
  PaintGrid(image, {0, 1, 0, 1}, {grid, {1, 1, 0, 1}}, {0, 8});
  PaintGrid(image, {0, 0, 0, 0}, {grid, {0, 1, 0, 1}}, {0, 8});
  EXPECT_EQ(Shares(image), ".");
  EXPECT_TRUE(RenderGrid(*grid, {0, 1, 0, 1}, {0, 5}).Pixels.empty());
  EXPECT_TRUE(RenderGrid(*grid, {0, 1, 0, 1}, {-3, 5}).Pixels.empty());
}

TEST(MapLibraryRenderGrid, AGridWithoutValuesIsTransparent) {
  EXPECT_EQ(Shares(RenderGrid(SmallGrid(1, 2, {kNone, kNone}), {0, 2, 0, 1}, {2, 1})), "..");
}

}  // namespace
}  // namespace orx::maplibrary
