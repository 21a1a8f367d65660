// Legends in the corners of a map: what they say, where they stand, and with what frame.
#include <gtest/gtest.h>

#include <set>

#include "maplibrary/drawing/MapLettering.h"
#include "maplibrary/model/ColorRamp.h"
#include "tests/maplibrary/Drawing.h"

namespace orx::maplibrary {
namespace {

constexpr Size kPicture = {600, 400};
constexpr Color kPaper = {255, 255, 255};

/// One layer with the elevation legend alone, at the bottom right.
std::unique_ptr<Map> WithElevation() {
  auto map = OneLayer();
  map->Layer(1)->ShowLabels(false);
  map->Legend(0).Visible(true);
  return map;
}

/// One layer with the layer legend alone, at the top left.
std::unique_ptr<Map> WithLayers() {
  auto map = OneLayer();
  map->Legend(1).Visible(true);
  return map;
}

/// The places of the framed legends.
std::vector<Rect> Boxes(const Map& map) {
  std::vector<Rect> boxes;
  for (const FillMark& fill : Drawing(map, kPicture).All<FillMark>()) {
    if (fill.Fill == kPaper) boxes.push_back(fill.Place);
  }
  return boxes;
}

TEST(MapLibraryDrawLegends, TheElevationLegendSaysTitleLimitsAndMiddle) {
  const Drawing drawing(*WithElevation(), kPicture);
  for (const char* text : {"Elevation", "7", "4", "1"}) EXPECT_TRUE(drawing.Shows(text)) << text;
  EXPECT_LT(drawing.Text("7").Center.Y, drawing.Text("4").Center.Y);
  EXPECT_LT(drawing.Text("4").Center.Y, drawing.Text("1").Center.Y);
}

TEST(MapLibraryDrawLegends, TheElevationLegendRunsFromSummitToLowland) {
  auto fills = Drawing(*WithElevation(), kPicture).All<FillMark>();
  std::erase_if(fills, [](const FillMark& fill) { return fill.Place.Height != 1; });
  ASSERT_GT(fills.size(), 50u);
  EXPECT_GT(fills.front().Fill.Blue, ColorAt(0.95).Blue);
  EXPECT_LT(std::abs(fills.back().Fill.Red - ColorAt(0).Red), 4);
  EXPECT_EQ(fills.back().Place.Top - fills.front().Place.Top, static_cast<int>(fills.size()) - 1);
}

TEST(MapLibraryDrawLegends, TheLayerLegendNamesTheVisibleLayersBehindTheirSymbols) {
  const auto map = WithLayers();
  map->AddLayer(SmallLayer("Hidden", SmallGrid(1, 1, {1}))).Visible(false);
  map->Layer(1)->SymbolCharacter('o');
  map->Layer(1)->Name("Hills");
  map->Layer(1)->Visible(true);
  const Drawing drawing(*map, kPicture);
  EXPECT_TRUE(drawing.Shows("Hills"));
  EXPECT_FALSE(drawing.Shows("Hidden"));
  const auto texts = drawing.Texts();
  EXPECT_EQ(texts[texts.size() - 2].Text, "o");
  EXPECT_LT(texts[texts.size() - 2].Center.X, texts.back().Center.X);
}

TEST(MapLibraryDrawLegends, AFrameIsPaperWithALineAroundIt) {
  const auto map = WithLayers();
  EXPECT_EQ(Boxes(*map).size(), 1u);
  EXPECT_EQ(Drawing(*map, kPicture).All<LineMark>().size(), 1u);
  map->Legend(1).Framed(false);
  EXPECT_EQ(Boxes(*map).size(), 0u);
  EXPECT_EQ(Drawing(*map, kPicture).All<LineMark>().size(), 0u);
}

TEST(MapLibraryDrawLegends, WithoutAFrameLettersHaveAHalo) {
  const auto map = WithLayers();
  const std::size_t framed = Drawing(*map, kPicture).All<TextMark>().size();
  map->Legend(1).Framed(false);
  EXPECT_EQ(Drawing(*map, kPicture).All<TextMark>().size(), framed + 3 * 8);
}

TEST(MapLibraryDrawLegends, ALegendStandsInItsCorner) {
  const auto map = WithLayers();
  const auto boxAt = [&](LegendCorner corner) {
    map->Legend(1).Corner(corner);
    return Boxes(*map).at(0);
  };
  EXPECT_EQ(boxAt(LegendCorner::TopLeft).Left, 10);
  EXPECT_EQ(boxAt(LegendCorner::TopLeft).Top, 10);
  EXPECT_EQ(boxAt(LegendCorner::TopRight).Right(), 590);
  EXPECT_EQ(boxAt(LegendCorner::TopRight).Top, 10);
  EXPECT_EQ(boxAt(LegendCorner::BottomLeft).Left, 10);
  EXPECT_EQ(boxAt(LegendCorner::BottomLeft).Bottom(), 390);
  EXPECT_EQ(boxAt(LegendCorner::BottomRight).Right(), 590);
  EXPECT_EQ(boxAt(LegendCorner::BottomRight).Bottom(), 390);
}

TEST(MapLibraryDrawLegends, LegendsOfOneCornerDoNotCoverEachOther) {
  const auto map = WithElevation();
  map->Legend(1).Visible(true);
  for (const LegendCorner corner : {LegendCorner::TopLeft, LegendCorner::BottomRight}) {
    map->Legend(0).Corner(corner);
    map->Legend(1).Corner(corner);
    const auto boxes = Boxes(*map);
    ASSERT_EQ(boxes.size(), 2u);
    const bool apart = boxes[0].Bottom() < boxes[1].Top || boxes[1].Bottom() < boxes[0].Top;
    EXPECT_TRUE(apart);
  }
}

TEST(MapLibraryDrawLegends, ABoxHoldsItsTitleAndGrowsWithTheTextSize) {
  const auto map = WithLayers();
  const Rect small = Boxes(*map).at(0);
  map->Legend(1).TextSize(18);
  const Rect large = Boxes(*map).at(0);
  EXPECT_GT(large.Height, small.Height * 3 / 2);
  EXPECT_EQ(Drawing(*map, kPicture).Text("Layers").Face.Size, 18);
  map->Legend(1).Title("A title that is much wider than the names of the layers");
  EXPECT_GT(Boxes(*map).at(0).Width, large.Width * 2);
}

TEST(MapLibraryDrawLegends, ALegendWithoutATitleStartsWithItsRows) {
  const auto map = WithLayers();
  const int titled = Boxes(*map).at(0).Height;
  map->Legend(1).Title("");
  EXPECT_LT(Boxes(*map).at(0).Height, titled);
  EXPECT_TRUE(Drawing(*map, kPicture).Shows("A"));
}

TEST(MapLibraryDrawLegends, LegendsThatAreHiddenEmptyOrWithoutSizeAreNotDrawn) {
  const auto map = WithElevation();
  map->Legend(0).TextSize(0);
  EXPECT_TRUE(Boxes(*map).empty());
  map->Legend(0).TextSize(9);
  map->Layer(1)->Visible(false);
  EXPECT_TRUE(Boxes(*map).empty());
}

TEST(MapLibraryLettering, ValuesHaveTwoDecimalsAtMost) {
  EXPECT_EQ(ValueText(1076), "1076");
  EXPECT_EQ(ValueText(0.125), "0.13");
  EXPECT_EQ(ValueText(-12.5), "-12.5");
  EXPECT_EQ(ValueText(-0.001), "0");
  EXPECT_EQ(ValueText(1e300), "1e+300");
}

TEST(MapLibraryLettering, WidthsFollowLettersSizeAndWeight) {
  Canvas canvas;
  const Lettering lettering(canvas, 96.0 / 72.0);
  const double width = lettering.WidthOf("Map", {.Size = 9});
  EXPECT_NEAR(lettering.WidthOf("Map", {.Size = 18}), 2 * width, 1e-9);
  EXPECT_GT(lettering.WidthOf("Map", {.Size = 9, .Bold = true}), width);
  EXPECT_GT(lettering.WidthOf("WWW", {}), 2 * lettering.WidthOf("iii", {}));
  EXPECT_EQ(lettering.WidthOf("\xC3\xA9\xC3\xA9", {}), 2 * lettering.WidthOf("\xE2\x96\xB2", {}));
}

}  // namespace
}  // namespace orx::maplibrary
