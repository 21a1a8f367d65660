// Colours of values and the legend that explains them: classes, special values, sizes, formats.
#include "maplibrary/drawing/ValueColors.h"

#include <gtest/gtest.h>

#include "maplibrary/drawing/PaintGrid.h"
#include "maplibrary/model/ColorRamp.h"
#include "tests/maplibrary/Drawing.h"

namespace orx::maplibrary {
namespace {

constexpr Size kLarge = {600, 600};

/// A layer of one row whose classes reach from 0 to 4 in steps of 1.
std::unique_ptr<Layer> Classed(std::vector<double> values) {
  const auto columns = static_cast<std::int32_t>(values.size());
  auto layer = SmallLayer("Rain", SmallGrid(1, columns, std::move(values)));
  LayerData& data = *layer->Data();
  data.ClassifyMethod(classifymethod::kEqualIntervals);
  data.NumberOfClasses(4);
  data.MinValue(0);
  data.MaxValue(4);
  return layer;
}

/// The pixels of the layer, a letter each: the class from '0' on, '.' where nothing is painted, 'S' the colour of
/// special values, '?' any other.
std::string Painted(const Layer& layer, Sampling sampling = Sampling::Nearest, int pixelsPerCell = 1) {
  const std::int32_t columns = layer.Grid().Columns;
  Image image = BlankImage({columns * pixelsPerCell, 1});
  PaintGrid(image, {0, static_cast<double>(columns), 0, 1}, layer.Grids().front(), {0, 4}, sampling);
  std::string text;
  for (std::size_t i = 0; i < image.Pixels.size(); i += 4) {
    const Color color = {image.Pixels[i], image.Pixels[i + 1], image.Pixels[i + 2]};
    char letter = color == Color{1, 2, 3} ? 'S' : '?';
    for (int c = 0; c < 4; ++c)
      if (color == ClassColor(c, 4)) letter = static_cast<char>('0' + c);
    text += image.Pixels[i + 3] == 0 ? '.' : letter;
  }
  return text;
}

void MakeSpecial(SpecialValue& kind, double lower, double upper, bool transparent) {
  kind.Enabled(true);
  kind.LowerBound(lower);
  kind.UpperBound(upper);
  kind.Transparent(transparent);
  kind.Color({1, 2, 3});
}

TEST(MapLibraryValueColors, EachValueHasTheColourOfItsClass) {
  EXPECT_EQ(Painted(*Classed({0, 0.9, 1, 2.5, 3, 3.999, 4})), "0012333");
}

TEST(MapLibraryValueColors, ValuesOutsideBelongToTheOuterClassesOrAreMissing) {
  const auto layer = Classed({-7, 2, 99});
  EXPECT_EQ(Painted(*layer), "023");
  layer->Data()->OutsideAsMissing(true);
  EXPECT_EQ(Painted(*layer), ".2.");
  MakeSpecial(layer->Data()->MissingValue(), -999, -999, false);
  EXPECT_EQ(Painted(*layer), "S2S");
}

TEST(MapLibraryValueColors, SpecialValuesAreFilledOrLeftOutAsSet) {
  const auto layer = Classed({0, 1, 2, 3});
  MakeSpecial(layer->Data()->ZeroValue(), -0.5, 0.5, false);
  MakeSpecial(layer->Data()->MissingValue(), 2, 2, true);
  EXPECT_EQ(Painted(*layer), "S1.3");
  layer->Data()->MissingValue().Transparent(false);
  EXPECT_EQ(Painted(*layer), "S1S3");
  layer->Data()->ZeroValue().Enabled(false);
  EXPECT_EQ(Painted(*layer), "01S3");
}

TEST(MapLibraryValueColors, PlacesWithoutDataAreFilledWhenTheyAreNotTransparent) {
  const auto layer = Classed({1, kNone, 3});
  EXPECT_EQ(Painted(*layer), "1.3");
  MakeSpecial(layer->Data()->NoDataValue(), -1, -1, false);
  EXPECT_EQ(Painted(*layer), "1S3");
  layer->Data()->NoDataValue().Enabled(false);
  EXPECT_EQ(Painted(*layer), "1.3");
}

TEST(MapLibraryValueColors, SpecialValuesAreNotBlendedWithTheirNeighbours) {
  const auto layer = Classed({1, 3, 1});
  MakeSpecial(layer->Data()->MissingValue(), 3, 3, false);
  EXPECT_EQ(Painted(*layer, Sampling::Blended, 4), "1111SSSS1111");
}

TEST(MapLibraryValueColors, AutomaticColoursHaveSpecialValuesToo) {
  const auto layer = Classed({1, 2});
  layer->Data()->ClassifyMethod(classifymethod::kAutomatic);
  MakeSpecial(layer->Data()->MissingValue(), 2, 2, true);
  EXPECT_EQ(Painted(*layer), "?.");
}

std::unique_ptr<Map> MapOf(std::unique_ptr<Layer> layer) {
  auto map = std::make_unique<Map>("One");
  map->AddLayer(std::move(layer)).ShowLabels(false);
  map->Legend(1).Visible(false);
  return map;
}

LayerData& DataOf(Map& map) {
  return *dynamic_cast<Layer&>(*map.Layer(1)).Data();
}

TEST(MapLibraryValueLegend, ShowsTheLimitsOfTheClassesInTheChosenFormatHighestFirst) {
  const auto map = MapOf(Classed({0, 4}));
  DataOf(*map).ValueFormat("0.00");
  const Drawing drawing(*map, kLarge);
  EXPECT_TRUE(drawing.Shows("0.00 – 1.00"));
  EXPECT_TRUE(drawing.Shows("3.00 – 4.00"));
  EXPECT_LT(drawing.Text("3.00 – 4.00").Center.Y, drawing.Text("0.00 – 1.00").Center.Y);
  EXPECT_FALSE(drawing.Shows("Rain"));
}

TEST(MapLibraryValueLegend, ShowsTheNameOfTheParameterWhenSet) {
  const auto map = MapOf(Classed({0, 4}));
  DataOf(*map).ShowParameterName(true);
  EXPECT_TRUE(Drawing(*map, kLarge).Shows("Rain"));
}

TEST(MapLibraryValueLegend, ManyClassesAreABarWithItsEnds) {
  const auto map = MapOf(Classed({0, 4}));
  DataOf(*map).NumberOfClasses(17);
  DataOf(*map).ValueFormat("0.0");
  const Drawing drawing(*map, kLarge);
  for (const char* const text : {"4.0", "2.0", "0.0"}) EXPECT_TRUE(drawing.Shows(text)) << text;
  EXPECT_FALSE(drawing.Shows("0.0 – 0.2"));
}

TEST(MapLibraryValueLegend, SpecialValuesHaveRowsWhenSet) {
  const auto map = MapOf(Classed({0, 4}));
  SpecialValue& missing = DataOf(*map).MissingValue();
  missing.InLegend(true);
  EXPECT_FALSE(Drawing(*map, kLarge).Shows("Missing value"));
  missing.Enabled(true);
  EXPECT_TRUE(Drawing(*map, kLarge).Shows("Missing value"));
  DataOf(*map).ClassifyMethod(classifymethod::kAutomatic);
  EXPECT_TRUE(Drawing(*map, kLarge).Shows("Missing value"));
}

TEST(MapLibraryValueLegend, SizesGrowFromTheFirstClassToTheLast) {
  const auto map = MapOf(Classed({0, 4}));
  DataOf(*map).LegendStyle(legendstyle::kByColorAndSize);
  DataOf(*map).FirstClassSize(3);
  DataOf(*map).LastClassSize(33);
  const Drawing drawing(*map, kLarge);
  const auto sideOf = [&](int index) {
    for (const FillMark& fill : drawing.All<FillMark>())
      if (fill.Fill == ClassColor(index, 4)) return fill.Place.Width;
    return 0;
  };
  EXPECT_EQ(sideOf(0), 3);
  EXPECT_EQ(sideOf(1), 13);
  EXPECT_EQ(sideOf(3), 33);
}

TEST(MapLibraryValueLegend, ExplainsTheTopmostVisibleLayerThatHasData) {
  const auto map = MapOf(Classed({0, 4}));
  map->AddLayer(SmallLayer("Top", SmallGrid(1, 1, {5})));
  DataOf(*map).ValueFormat("0.00");
  EXPECT_FALSE(Drawing(*map, kLarge).Shows("0.00 – 1.00"));
  map->Layer(2)->Visible(false);
  EXPECT_TRUE(Drawing(*map, kLarge).Shows("0.00 – 1.00"));
}

}  // namespace
}  // namespace orx::maplibrary
