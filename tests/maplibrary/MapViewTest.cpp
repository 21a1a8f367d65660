// Ground to pixels and back, and the value below a point.
#include "maplibrary/drawing/MapView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "maplibrary/model/SampleMap.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

/// The value of a grid at a point of the ground that its place covers.
std::optional<double> ValueIn(const PlacedGrid& placed, const GroundPoint& point) {
  if (placed.Place.IsEmpty()) return std::nullopt;
  const double column = (point.X - placed.Place.Left) / placed.Place.Width() * placed.Grid->Columns;
  const double row = (placed.Place.Top - point.Y) / placed.Place.Height() * placed.Grid->Rows;
  if (!(column >= 0 && column < placed.Grid->Columns && row >= 0 && row < placed.Grid->Rows)) return std::nullopt;
  const double value = placed.Grid->At(static_cast<std::int32_t>(row), static_cast<std::int32_t>(column));
  return std::isnan(value) ? std::nullopt : std::optional(value);
}

/// The value of the topmost visible layer that has one at this point of the ground.
std::optional<double> ValueAt(const Map& map, const GroundPoint& point) {
  const auto& layers = map.Stack().All();
  for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
    if (!(*layer)->Visible()) continue;
    const std::vector<PlacedGrid> grids = (*layer)->Grids();
    for (auto grid = grids.rbegin(); grid != grids.rend(); ++grid) {
      if (const auto value = ValueIn(*grid, point)) return value;
    }
  }
  return std::nullopt;
}

/// The ground at the middle of a pixel.
GroundPoint GroundAt(const MapView& view, const Point& pixel) {
  const GroundRect& window = view.Window();
  const Rect pixels = view.Pixels();
  return {window.Left + (pixel.X + 0.5 - pixels.Left) / pixels.Width * window.Width(),
          window.Top - (pixel.Y + 0.5 - pixels.Top) / pixels.Height * window.Height()};
}

TEST(MapLibraryMapView, TheWindowIsFittedAndCentredWithOneScale) {
  EXPECT_EQ(MapView({0, 2, 0, 1}, {100, 100}).Pixels(), (Rect{0, 25, 100, 50}));
  EXPECT_EQ(MapView({0, 1, 0, 2}, {100, 100}).Pixels(), (Rect{25, 0, 50, 100}));
}

TEST(MapLibraryMapView, CornersOfTheWindowAreCornersOfItsPixels) {
  const MapView view({10, 12, 20, 21}, {100, 100});
  EXPECT_EQ(view.ToPixel({10, 21}).X, 0);
  EXPECT_EQ(view.ToPixel({10, 21}).Y, 25);
  EXPECT_EQ(view.ToPixel({12, 20}).X, 100);
  EXPECT_EQ(view.ToPixel({12, 20}).Y, 75);
}

TEST(MapLibraryMapView, APixelStandsForTheGroundAtItsMiddle) {
  const MapView view({0, 4, 0, 2}, {4, 2});
  EXPECT_EQ(GroundAt(view, {0, 0}), (GroundPoint{0.5, 1.5}));
  EXPECT_EQ(GroundAt(view, {3, 1}), (GroundPoint{3.5, 0.5}));
}

TEST(MapLibraryMapView, ATurnedWindowIsShownUpright) {
  EXPECT_EQ(MapView({2, 0, 1, 0}, {10, 10}).Window(), (GroundRect{0, 2, 0, 1}));
}

TEST(MapLibraryMapView, NothingIsShownOfAnEmptyWindowOrInAnEmptyPicture) {
  const double huge = std::numeric_limits<double>::max();
  EXPECT_TRUE(MapView({0, 0, 0, 1}, {10, 10}).IsEmpty());
  EXPECT_TRUE(MapView({-huge, huge, 0, 1}, {10, 10}).IsEmpty());
  EXPECT_TRUE(MapView({0, 1, 0, 1}, {0, 10}).IsEmpty());
  EXPECT_FALSE(MapView({0, 1, 0, 1}, {0, 10}).Contains({0.5, 0.5}));
}

TEST(MapLibraryMapView, AThinWindowKeepsOnePixel) {
  EXPECT_EQ(MapView({0, 1e9, 0, 1e-6}, {100, 100}).Pixels().Height, 1);
}

TEST(MapLibraryMapView, TheValueIsThatOfTheTopmostVisibleLayer) {
  const auto map = SmallMap();
  EXPECT_EQ(ValueAt(*map, {0.5, 0.5}), 40);
  map->Layer(3)->Visible(false);
  EXPECT_EQ(ValueAt(*map, {0.5, 0.5}), 9);
  map->Layer(2)->Visible(false);
  EXPECT_EQ(ValueAt(*map, {0.5, 0.5}), 3);
  EXPECT_EQ(ValueAt(*map, {2, 0.5}), std::nullopt);
}

TEST(MapLibraryMapView, AMissingCellShowsTheLayerBelow) {
  Map map;
  map.AddLayer(SmallLayer("Below", SmallGrid(1, 1, {7})));
  map.AddLayer(SmallLayer("Above", SmallGrid(1, 1, {kNone})));
  EXPECT_EQ(ValueAt(map, {0.5, 0.5}), 7);
}

TEST(MapLibraryMapView, TheHighestPointOfTheElevationDataIsFoundUnderItsPixel) {
  const auto map = MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  const MapView view = ViewOf(*map, {800, 600});
  const PixelPoint summit = view.ToPixel(map->Layer(1)->HighestPoint()->Place);
  const Point pixel = {static_cast<int>(summit.X), static_cast<int>(summit.Y)};
  EXPECT_EQ(ValueAt(*map, GroundAt(view, pixel)), 1076);
}

}  // namespace
}  // namespace orx::maplibrary
