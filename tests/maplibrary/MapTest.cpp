// The map as dialogs use it: layers by number, moving and removing, kinds, extent and legends.
#include "maplibrary/model/Map.h"

#include <gtest/gtest.h>

#include <limits>

#include "maplibrary/model/Errors.h"
#include "maplibrary/model/SampleMap.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

std::string NamesOf(IMap& map) {
  std::string names;
  for (std::int32_t i = 1; i <= map.LayerCount(); ++i) names += map.LayerName(i) + " ";
  return names;
}

template <class Action>
std::string ErrorOf(Action action, std::int32_t number) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), number);
    return error.what();
  }
  return "no error";
}

/// For each interface whether the object has it, such as "100011".
template <class... Interfaces>
std::string Answers(HostObject* object) {
  return (std::string() + ... + (QueryKind<Interfaces>(object) ? "1" : "0"));
}

TEST(MapLibraryMap, ObjectsAnswerForTheirKindsOnly) {
  const auto map = SmallMap();
  HostObject* plain = map->Layer(1);
  HostObject* tiled = map->Layer(3);
  Layers layers(*map);
  const auto kinds = [](HostObject* object) {
    return Answers<IMap, ILayers, ILayer, ILabels, IExtent, ILegends>(object);
  };
  EXPECT_EQ(kinds(map.get()), "100011");
  EXPECT_EQ(kinds(plain), "001110");
  EXPECT_EQ(kinds(tiled), "101110");
  EXPECT_EQ(kinds(&layers), "010000");
}

TEST(MapLibraryMap, EveryKindIsAnsweredByItsOwnInterface) {
  const auto map = SmallMap();
  EXPECT_EQ(QueryKind<IMap>(map.get())->LayerCount(), 3);
  EXPECT_EQ(QueryKind<IExtent>(map.get())->Top(), 2);
  EXPECT_EQ(QueryKind<ILegends>(map.get())->LegendCount(), 2);
  EXPECT_EQ(QueryKind<ILayer>(map->Layer(1))->Name(), "A");
  EXPECT_EQ(QueryKind<ILabels>(map->Layer(1))->LabelFont().Name, "Arial");
  EXPECT_EQ(QueryKind<IExtent>(map->Layer(1))->Right(), 2);
  EXPECT_EQ(QueryKind<IMap>(map->Layer(3))->LayerName(2), "North-east");
}

TEST(MapLibraryMap, TheLayerCollectionIsNamedLikeItsMap) {
  const auto map = SmallMap();
  Layers layers(*map);
  EXPECT_EQ(layers.Name(), "Small");
  EXPECT_EQ(layers.Map(), map.get());
}

TEST(MapLibraryMap, LayersMoveOnePlaceAndTellWhenTheyCannot) {
  const auto map = SmallMap();
  EXPECT_TRUE(map->MoveLayerUp(2));
  EXPECT_EQ(NamesOf(*map), "B A Tiles ");
  EXPECT_TRUE(map->MoveLayerDown(2));
  EXPECT_EQ(NamesOf(*map), "B Tiles A ");
  EXPECT_FALSE(map->MoveLayerUp(1));
  EXPECT_FALSE(map->MoveLayerDown(3));
  EXPECT_EQ(NamesOf(*map), "B Tiles A ");
}

TEST(MapLibraryMap, ARemovedLayerLeavesTheMapAndStaysAliveForOpenDialogs) {
  const auto map = SmallMap();
  MapLayer* removed = map->Layer(2);
  EXPECT_TRUE(map->RemoveLayer(2));
  EXPECT_EQ(NamesOf(*map), "A Tiles ");
  EXPECT_EQ(removed->Name(), "B");
  map->Stack().ReleaseRemoved();
  EXPECT_EQ(map->LayerCount(), 2);
}

TEST(MapLibraryMap, AnIndexOutsideTheLayersIsToldWithTheLimits) {
  const auto map = SmallMap();
  const std::string zero = "Subscript out of range: layer 0, give an index from 1 to 3.";
  EXPECT_EQ(ErrorOf([&] { map->Layer(0); }, kErrorSubscript), zero);
  EXPECT_EQ(ErrorOf([&] { map->LayerName(0); }, kErrorSubscript), zero);
  EXPECT_EQ(ErrorOf([&] { map->RemoveLayer(0); }, kErrorSubscript), zero);
  EXPECT_EQ(ErrorOf([&] { map->MoveLayerUp(0); }, kErrorSubscript), zero);
  EXPECT_EQ(ErrorOf([&] { map->MoveLayerDown(4); }, kErrorSubscript),
            "Subscript out of range: layer 4, give an index from 1 to 3.");
  EXPECT_EQ(ErrorOf([] { Map().Layer(1); }, kErrorSubscript), "Subscript out of range: layer 1, there is none.");
  EXPECT_EQ(ErrorOf([&] { map->Legend(2); }, kErrorSubscript),
            "Subscript out of range: legend 2, give an index from 0 to 1.");
}

TEST(MapLibraryMap, AFileBecomesTheTopmostLayerUnderItsName) {
  const auto map = SmallMap();
  const std::string path = ORX_DATA_DIR "/jacksboro.bil";
  HostObject* added = QueryKind<IMap>(map.get())->AddLayer(path, "");
  EXPECT_EQ(map->Layer(4), added);
  EXPECT_EQ(map->LayerName(4), "jacksboro");
  EXPECT_EQ(map->Layer(4)->Source(), path);
}

TEST(MapLibraryMap, AFileThatCannotBeReadLeavesTheMapAsItWas) {
  const auto map = SmallMap();
  EXPECT_EQ(ErrorOf([&] { map->AddLayer("nowhere/none.bil", ""); }, kErrorNoSuchFile), "none.bil: file not found.");
  EXPECT_EQ(NamesOf(*map), "A B Tiles ");
}

TEST(MapLibraryMap, TheWindowFollowsTheLayersUntilASideIsSet) {
  const auto map = SmallMap();
  map->Layer(1)->Right(5);
  EXPECT_EQ(map->Window().Current(), (GroundRect{0, 5, 0, 2}));
  map->Extent()->Top(8);
  map->Layer(1)->Right(7);
  EXPECT_EQ(map->Window().Current(), (GroundRect{0, 5, 0, 8}));
  map->Extent()->Unplace();
  EXPECT_EQ(map->Window().Current(), (GroundRect{0, 7, 0, 2}));
}

TEST(MapLibraryMap, AMapWithoutLayersHasAnEmptyWindow) {
  Map map;
  EXPECT_EQ(map.Extent()->Current(), GroundRect());
  EXPECT_EQ(map.LayerCount(), 0);
}

TEST(MapLibraryExtent, SettingASideToItsValueChangesNothing) {
  const auto map = SmallMap();
  map->Extent()->Place(map->Extent()->Current());
  EXPECT_FALSE(map->Extent()->IsPlaced());
}

TEST(MapLibraryExtent, SidesMustBeFinite) {
  const auto map = SmallMap();
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ErrorOf([&] { map->Extent()->Left(kNone); }, kErrorInvalidValue), "Left must be a finite number.");
  EXPECT_EQ(ErrorOf([&] { map->Layer(1)->Top(infinity); }, kErrorInvalidValue), "Top must be a finite number.");
  EXPECT_EQ(map->Layer(1)->Current(), (GroundRect{0, 2, 0, 2}));
}

TEST(MapLibraryLayer, ValuesThatCannotBeDrawnAreRefused) {
  const auto map = SmallMap();
  MapLayer& layer = *map->Layer(1);
  EXPECT_EQ(ErrorOf([&] { layer.SymbolSize(-1); }, kErrorInvalidValue), "SymbolSize must be from 0 to 1000 points.");
  EXPECT_EQ(ErrorOf([&] { layer.LabelFont({.Size = 1001}); }, kErrorInvalidValue),
            "The size of LabelFont must be from 0 to 1000 points.");
  EXPECT_EQ(ErrorOf([&] { layer.LabelRotation(kNone); }, kErrorInvalidValue), "LabelRotation must be a finite number.");
  EXPECT_EQ(ErrorOf([&] { layer.SymbolRotation(kNone); }, kErrorInvalidValue),
            "SymbolRotation must be a finite number.");
  EXPECT_EQ(ErrorOf([&] { layer.SymbolCharacter(0xD800); }, kErrorInvalidValue),
            "SymbolCharacter must be a character code, found 55296.");
  EXPECT_EQ(ErrorOf([&] { map->Legend(0).TextSize(kNone); }, kErrorInvalidValue),
            "TextSize must be from 0 to 1000 points.");
}

TEST(MapLibraryLayer, TheHighestPointMovesWithTheExtent) {
  const auto layer = SmallLayer("A", SmallGrid(2, 2, {1, 2, 3, 4}));
  EXPECT_EQ(layer->HighestPoint()->Place, (GroundPoint{1.5, 0.5}));
  layer->Place({100, 140, 0, 2});
  EXPECT_EQ(layer->HighestPoint()->Place, (GroundPoint{130, 0.5}));
  EXPECT_EQ(layer->HighestPoint()->Value, 4);
  EXPECT_FALSE(SmallLayer("B", SmallGrid(1, 1, {kNone}))->HighestPoint());
}

TEST(MapLibrarySampleMap, TheElevationDataLiesBelowItsFourQuarters) {
  const auto map = MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  EXPECT_EQ(map->Name(), "jacksboro");
  EXPECT_EQ(NamesOf(*map), "Terrain Quarters ");
  EXPECT_TRUE(map->Layer(1)->Visible());
  EXPECT_FALSE(map->Layer(2)->Visible());
  EXPECT_EQ(NamesOf(*QueryKind<IMap>(map->Layer(2))), "North-west North-east South-west South-east ");
  EXPECT_EQ(map->Layer(1)->HighestPoint()->Value, 1076);
}

}  // namespace
}  // namespace orx::maplibrary
