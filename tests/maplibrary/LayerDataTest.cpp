// The data of a grid layer: what it starts with, what its setters refuse, its classes, and another file.
#include "maplibrary/model/LayerData.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/maplibrary/GridFiles.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

LayerData DataOf(std::vector<double> values) {
  const auto columns = static_cast<std::int32_t>(values.size());
  return {"a.asc", std::make_shared<const GridData>(SmallGrid(1, columns, std::move(values)))};
}

std::string FailureOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return error.what();
  }
  return {};
}

TEST(MapLibraryLayerData, StartsAutomaticOverItsOwnRange) {
  LayerData data = DataOf({1, kNone, 9});
  EXPECT_EQ(data.ClassifyMethod(), classifymethod::kAutomatic);
  EXPECT_FALSE(data.HasClasses());
  EXPECT_EQ(data.NumberOfClasses(), 10);
  EXPECT_EQ(data.ClassCount(), 10);
  EXPECT_EQ(data.MinValue(), 1);
  EXPECT_EQ(data.MaxValue(), 9);
  EXPECT_EQ(data.StepSize(), 0.8);
  EXPECT_EQ(data.MinimumOfData(), 1);
  EXPECT_EQ(data.MaximumOfData(), 9);
  EXPECT_EQ(data.FileName(), "a.asc");
}

TEST(MapLibraryLayerData, WithoutValuesTheRangeIsNotKnown) {
  LayerData data = DataOf({kNone});
  EXPECT_EQ(data.MinimumOfData(), kUnknownRangeEnd);
  EXPECT_EQ(data.MaximumOfData(), kUnknownRangeEnd);
  EXPECT_EQ(data.MinValue(), kUnknownRangeEnd);
}

TEST(MapLibraryLayerData, NoDataIsTheValueThatTheFileNames) {
  GridData grid = SmallGrid(1, 1, {1});
  grid.NoData = -32768;
  LayerData data("", std::make_shared<const GridData>(grid));
  EXPECT_EQ(data.NoDataValue().LowerBound(), -32768);
  EXPECT_EQ(data.NoDataValue().UpperBound(), -32768);
  EXPECT_TRUE(data.NoDataValue().Enabled());
  EXPECT_FALSE(data.MissingValue().Enabled());
}

TEST(MapLibraryLayerData, ValuesThatMakeNoSenseAreRefusedAndNothingChanges) {
  LayerData data = DataOf({1, 9});
  const double infinite = std::numeric_limits<double>::infinity();
  const std::pair<std::function<void()>, const char*> acts[] = {
      {[&] { data.ClassifyMethod(2); }, "ClassifyMethod must be one of 0, 1, 6, 7."},
      {[&] { data.NumberOfClasses(0); }, "NumberOfClasses must be from 1 to 65535."},
      {[&] { data.NumberOfClasses(65536); }, "NumberOfClasses must be from 1 to 65535."},
      {[&] { data.MinValue(kNone); }, "MinValue must be a finite number."},
      {[&] { data.MaxValue(infinite); }, "MaxValue must be a finite number."},
      {[&] { data.LegendStyle(3); }, "LegendStyle must be one of 0, 1, 2."},
      {[&] { data.FirstClassSize(-1); }, "FirstClassSize must be from 0 to 1000 pixels."},
      {[&] { data.LastClassSize(1001); }, "LastClassSize must be from 0 to 1000 pixels."},
      {[&] { data.MissingValue().LowerBound(kNone); }, "LowerBound must be a finite number."},
      {[&] { data.ZeroValue().UpperBound(infinite); }, "UpperBound must be a finite number."},
  };
  for (const auto& [act, text] : acts) EXPECT_EQ(FailureOf(act), text);
  EXPECT_EQ(data.NumberOfClasses(), 10);
  EXPECT_EQ(data.MaxValue(), 9);
}

TEST(MapLibraryLayerData, ClassesMeetAndTheLastOneEndsWithTheRange) {
  LayerData data = DataOf({0, 1});
  data.ClassifyMethod(classifymethod::kEqualIntervals);
  data.NumberOfClasses(3);
  data.MinValue(0.1);
  data.MaxValue(0.7);
  EXPECT_EQ(data.LimitsOf(0).Low, 0.1);
  EXPECT_EQ(data.LimitsOf(0).High, data.LimitsOf(1).Low);
  EXPECT_EQ(data.LimitsOf(2).High, 0.7);
}

TEST(MapLibraryLayerData, AnotherFileBringsAnotherGridAndABrokenOneChangesNothing) {
  LayerData data = DataOf({1, 9});
  EXPECT_NE(FailureOf([&] { data.FileName("/no/such/file.asc"); }), "");
  EXPECT_EQ(data.FileName(), "a.asc");
  EXPECT_EQ(data.MaximumOfData(), 9);
  const std::string other = std::string(ORX_DATA_DIR) + "/jacksboro.bil";
  data.FileName(other);
  EXPECT_EQ(data.FileName(), other);
  EXPECT_EQ(data.MaximumOfData(), 1076);
  EXPECT_EQ(data.MaxValue(), 9);
}

TEST(MapLibraryLayerData, AnswersForItsKindsAndALayerDoesNotAnswerForThem) {
  const auto layer = SmallLayer("A", SmallGrid(1, 1, {5}));
  EXPECT_EQ(QueryKind<IData>(layer->Data()), static_cast<IData*>(layer->Data()));
  EXPECT_TRUE(QueryKind<IClassification>(layer->Data()));
  EXPECT_TRUE(QueryKind<IDataOptions>(layer->Data()));
  EXPECT_FALSE(QueryKind<ILayer>(layer->Data()));
  EXPECT_FALSE(QueryKind<IData>(layer.get()));
}

}  // namespace
}  // namespace orx::maplibrary
