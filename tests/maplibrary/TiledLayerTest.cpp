// A layer of tiles: cut from a grid, moved as a whole or one by one.
#include "maplibrary/model/TiledLayer.h"

#include <gtest/gtest.h>

#include "hostobjects/RunTimeError.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

std::unique_ptr<TiledLayer> FourTiles() {
  return MakeQuarters("Tiles", "", SmallGrid(2, 2, {10, 20, 40, 30}));
}

TEST(MapLibraryTiledLayer, QuartersTogetherMakeTheGrid) {
  const auto layer = MakeQuarters("Q", "file", SmallGrid(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9}));
  std::vector<std::vector<double>> values;
  for (const PlacedGrid& placed : layer->Grids()) values.push_back(placed.Grid->Values);
  EXPECT_EQ(values, (std::vector<std::vector<double>>{{1}, {2, 3}, {4, 7}, {5, 6, 8, 9}}));
  EXPECT_EQ(layer->Current(), (GroundRect{0, 3, 0, 3}));
  EXPECT_EQ(layer->Layer(4)->Source(), "file");
}

TEST(MapLibraryTiledLayer, AGridOfOneRowCannotBeQuartered) {
  EXPECT_THROW(MakeQuarters("Q", "", SmallGrid(1, 2, {1, 2})), RunTimeError);
}

TEST(MapLibraryTiledLayer, SettingASideMovesAndStretchesAllTiles) {
  const auto layer = FourTiles();
  layer->Right(4);
  EXPECT_EQ(layer->Grids()[0].Place, (GroundRect{0, 2, 1, 2}));
  EXPECT_EQ(layer->Grids()[3].Place, (GroundRect{2, 4, 0, 1}));
  EXPECT_EQ(layer->HighestPoint()->Place, (GroundPoint{1, 0.5}));
}

TEST(MapLibraryTiledLayer, ATileMovesAloneAndTheLayerSurroundsIt) {
  const auto layer = FourTiles();
  layer->Layer(2)->Right(5);
  EXPECT_EQ(layer->Extent()->Right(), 5);
  EXPECT_EQ(layer->Grids()[0].Place, (GroundRect{0, 1, 1, 2}));
}

TEST(MapLibraryTiledLayer, ATileThatMovesInAPlacedLayerLeavesTheOthersWhereTheyAre) {
  const auto layer = FourTiles();
  layer->Right(4);
  layer->Layer(2)->Right(3);
  EXPECT_EQ(layer->Grids()[0].Place, (GroundRect{0, 2, 1, 2}));
  EXPECT_EQ(layer->Grids()[1].Place, (GroundRect{2, 6, 1, 2}));
}

TEST(MapLibraryTiledLayer, EveryTileMarksItsPeakAndTheLayerTheHighestOfThem) {
  const auto layer = FourTiles();
  layer->Layer(1)->Visible(false);
  std::string marked;
  for (const MarkedPeak& peak : layer->MarkedPeaks()) {
    marked += peak.Marker->Name() + " " + std::to_string(static_cast<int>(peak.At.Value)) + ", ";
  }
  EXPECT_EQ(marked, "North-east 20, South-west 40, South-east 30, Tiles 40, ");
}

TEST(MapLibraryTiledLayer, TilesAreReorderedRemovedAndAdded) {
  const auto layer = FourTiles();
  EXPECT_TRUE(layer->MoveLayerDown(1));
  EXPECT_TRUE(layer->MoveLayerUp(4));
  EXPECT_TRUE(layer->RemoveLayer(2));
  EXPECT_EQ(layer->LayerName(1), "North-east");
  EXPECT_EQ(layer->LayerName(2), "South-east");
  layer->AddLayer(ORX_DATA_DIR "/jacksboro.bil", "");
  EXPECT_EQ(layer->LayerName(layer->LayerCount()), "jacksboro");
}

TEST(MapLibraryTiledLayer, ALayerWithoutTilesIsEmpty) {
  const auto layer = FourTiles();
  while (layer->LayerCount() > 0) layer->RemoveLayer(1);
  EXPECT_EQ(layer->Current(), GroundRect());
  EXPECT_TRUE(layer->MarkedPeaks().empty());
  layer->Right(3);
  EXPECT_EQ(layer->OnMap(GroundPoint{1, 2}), (GroundPoint{1, 2}));
}

}  // namespace
}  // namespace orx::maplibrary
