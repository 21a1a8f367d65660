// The map that demo and tests start from.
#include <gtest/gtest.h>

#include "hostobjects/IMap.h"
#include "maplibrary/model/SampleMap.h"

namespace orx::maplibrary {
namespace {

TEST(MapLibrarySampleMap, ShowsTheTerrainAndHidesItsQuarters) {
  const auto map = MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  ASSERT_EQ(2, map->LayerCount());
  EXPECT_TRUE(map->Layer(1)->Visible());
  EXPECT_FALSE(map->Layer(2)->Visible());
  EXPECT_EQ(nullptr, QueryKind<IMap>(map->Layer(1)));
  ASSERT_NE(nullptr, QueryKind<IMap>(map->Layer(2)));
  EXPECT_EQ(4, QueryKind<IMap>(map->Layer(2))->LayerCount());
}

}  // namespace
}  // namespace orx::maplibrary
