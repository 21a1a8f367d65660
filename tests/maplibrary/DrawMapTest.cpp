// Drawn maps: layers in their order, the symbols of their peaks, and labels beside them.
#include <gtest/gtest.h>

#include <functional>

#include "tests/maplibrary/Drawing.h"

namespace orx::maplibrary {
namespace {

TEST(MapLibraryDrawMap, EachVisibleLayerIsOneImageOverTheWindow) {
  const auto map = SmallMap();
  map->Layer(2)->Visible(false);
  const auto images = Drawing(*map).All<ImageMark>();
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0].Place, (Rect{50, 0, 100, 100}));
  EXPECT_EQ(images[0].Picture->Width, 100);
}

TEST(MapLibraryDrawMap, TheOldDrawingIsReplaced) {
  const auto map = SmallMap();
  Drawing drawing(*map);
  const std::size_t once = drawing.Drawn.Marks().size();
  DrawMap(*map, drawing.Drawn, {200, 100});
  EXPECT_EQ(drawing.Drawn.Marks().size(), once);
}

TEST(MapLibraryDrawMap, AMapWithNothingToShowIsItsBackground) {
  EXPECT_EQ(Drawing(Map()).Drawn.Marks().size(), 1u);
  const auto map = OneLayer();
  map->Layer(1)->Visible(false);
  EXPECT_EQ(Drawing(*map).Drawn.Marks().size(), 1u);
}

TEST(MapLibraryDrawMap, LayersAreDrawnInTheirOrder) {
  const auto map = SmallMap();
  const auto topmost = [&] { return Drawing(*map).All<ImageMark>().back().Picture->Pixels; };
  const auto tilesOnTop = topmost();
  map->MoveLayerDown(2);
  EXPECT_NE(topmost(), tilesOnTop);
}

TEST(MapLibraryDrawMap, ALayerThatIsMovedOnTheGroundIsDrawnElsewhere) {
  const auto map = OneLayer();
  const auto pixels = [&] { return Drawing(*map).All<ImageMark>().front().Picture->Pixels; };
  map->Extent()->Place({0, 4, 0, 1});
  const auto before = pixels();
  map->Layer(1)->Left(1);
  EXPECT_NE(pixels(), before);
}

TEST(MapLibraryDrawMap, ColoursReachOverAllVisibleLayers) {
  const auto map = SmallMap();
  EXPECT_EQ(VisibleRange(*map), (ValueRange{1, 40}));
  map->Layer(3)->Visible(false);
  EXPECT_EQ(VisibleRange(*map), (ValueRange{1, 9}));
  EXPECT_EQ(VisibleRange(Map()), std::nullopt);
}

TEST(MapLibraryDrawMap, ExtremeSettingsAreDrawnLikeOthers) {
  const auto map = SmallMap();
  map->Layer(1)->Place({-1e300, 1e300, -1e-300, 1e308});
  map->Layer(2)->Place({1e308, -1e308, 5, 5});
  map->Layer(3)->Place({3, -4, 2, -9});
  map->Layer(3)->Name(std::string(2'000'000, 'W'));
  map->Layer(3)->LabelFont({.Size = 1000});
  map->Legend(1).TextSize(1000);
  for (const GroundRect& window :
       {GroundRect{-1e300, 1e300, 0, 1}, {-1e308, 1e308, 0, 1}, {0, 1, 0, 1e-300}, {3, -4, 2, -9}}) {
    map->Extent()->Place(window);
    EXPECT_TRUE(Drawing(*map).Shows("Layers")) << window.Left;
  }
}

TEST(MapLibraryDrawPeaks, TheSymbolStandsOnTheHighestPoint) {
  const auto map = OneLayer();
  map->Layer(1)->SymbolFont("Symbols");
  map->Layer(1)->SymbolSize(20);
  map->Layer(1)->SymbolRotation(45);
  const TextMark symbol = Drawing(*map).Text(kTriangle);
  EXPECT_EQ(symbol.Center, (Point{50, 50}));
  EXPECT_EQ(symbol.Face, (Font{.Name = "Symbols", .Size = 20}));
  EXPECT_EQ(symbol.Rotation, 45);
}

TEST(MapLibraryDrawPeaks, ASymbolIsAnyCharacter) {
  const auto map = OneLayer();
  map->Layer(1)->SymbolCharacter(0x1F3D4);
  EXPECT_TRUE(Drawing(*map).Shows("\xF0\x9F\x8F\x94"));
  map->Layer(1)->SymbolCharacter(0xE9);
  EXPECT_TRUE(Drawing(*map).Shows("\xC3\xA9"));
  map->Layer(1)->SymbolCharacter('x');
  EXPECT_TRUE(Drawing(*map).Shows("x"));
}

TEST(MapLibraryDrawPeaks, ASymbolWithoutSizeOrPictureIsNotDrawn) {
  const auto map = OneLayer();
  map->Layer(1)->SymbolSize(0);
  EXPECT_FALSE(Drawing(*map).Shows(kTriangle));
  map->Layer(1)->SymbolSize(11);
  map->Layer(1)->SymbolCharacter(7);
  EXPECT_EQ(Drawing(*map).Texts().size(), 1u);
}

TEST(MapLibraryDrawPeaks, TheLabelSaysNameOrValueOrBoth) {
  const auto map = OneLayer();
  for (const auto& [content, text] : {std::pair(LabelContent::Name, "A"), std::pair(LabelContent::Value, "7"),
                                      std::pair(LabelContent::NameAndValue, "A 7")}) {
    map->Layer(1)->Content(content);
    EXPECT_TRUE(Drawing(*map).Shows(text)) << text;
  }
  map->Layer(1)->ShowLabels(false);
  EXPECT_EQ(Drawing(*map).Texts().size(), 1u);
}

TEST(MapLibraryDrawPeaks, TheLabelStandsOnItsSideOfTheSymbol) {
  const auto map = OneLayer();
  const auto centerAt = [&](LabelPosition position) {
    map->Layer(1)->Position(position);
    return Drawing(*map).Text("7").Center;
  };
  EXPECT_EQ(centerAt(LabelPosition::Center), (Point{50, 50}));
  EXPECT_EQ(centerAt(LabelPosition::Above).X, 50);
  EXPECT_LT(centerAt(LabelPosition::Above).Y, 43);
  EXPECT_GT(centerAt(LabelPosition::Below).Y, 57);
  EXPECT_LT(centerAt(LabelPosition::Left).X, 43);
  EXPECT_GT(centerAt(LabelPosition::Right).X, 57);
  EXPECT_EQ(centerAt(LabelPosition::Right).Y, 50);
}

TEST(MapLibraryDrawPeaks, TheLabelHasItsOwnFontColourAndRotation) {
  const auto map = OneLayer();
  const Font font = {.Name = "Serif", .Size = 14, .Italic = true};
  map->Layer(1)->LabelFont(font);
  map->Layer(1)->LabelColor({1, 2, 3});
  map->Layer(1)->LabelRotation(90);
  const TextMark label = Drawing(*map).Text("7");
  EXPECT_EQ(label.Face, font);
  EXPECT_EQ(label.Pen, (Color{1, 2, 3}));
  EXPECT_EQ(label.Rotation, 90);
}

TEST(MapLibraryDrawPeaks, AWideLabelComesNearerWhenItIsTurnedUpright) {
  const auto map = OneLayer();
  map->Layer(1)->Name("A layer of a long name");
  map->Layer(1)->Content(LabelContent::Name);
  const int level = Drawing(*map).Text(map->LayerName(1)).Center.X;
  map->Layer(1)->LabelRotation(90);
  EXPECT_LT(Drawing(*map).Text(map->LayerName(1)).Center.X, level - 30);
}

TEST(MapLibraryDrawPeaks, LettersHaveALightHaloBelowThem) {
  const auto texts = Drawing(*OneLayer()).All<TextMark>();
  ASSERT_EQ(texts.size(), 18u);
  EXPECT_EQ(texts[0].Pen, (Color{255, 255, 255}));
  EXPECT_EQ(texts[0].Center, (Point{49, 49}));
  EXPECT_EQ(texts[8].Center, (Point{50, 50}));
  EXPECT_NE(texts[8].Pen, (Color{255, 255, 255}));
}

TEST(MapLibraryDrawPeaks, PeaksOutsideTheWindowAreNotMarked) {
  const auto map = OneLayer();
  map->Extent()->Left(1);
  EXPECT_TRUE(Drawing(*map).Texts().empty());
}

TEST(MapLibraryDrawPeaks, VisibleTilesMarkTheirOwnPeaks) {
  const auto map = SmallMap();
  auto& tiles = dynamic_cast<TiledLayer&>(*map->Layer(3));
  tiles.Layer(1)->Visible(false);
  const Drawing drawing(*map, {600, 600});
  EXPECT_FALSE(drawing.Shows("10"));
  for (const char* value : {"20", "30", "40"}) EXPECT_TRUE(drawing.Shows(value)) << value;
}

}  // namespace
}  // namespace orx::maplibrary
