// Relief shading: slopes and light of grids that can be worked out by hand, intensities, and how shades meet colours.
#include "maplibrary/model/GridShade.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "hostobjects/RunTimeError.h"
#include "maplibrary/drawing/PaintGrid.h"
#include "tests/maplibrary/SmallGrids.h"

namespace orx::maplibrary {
namespace {

constexpr double kLevelLight = 0.70710678118654752;  // The sine of 45 degrees.

GridData GridOf(std::int32_t rows, std::int32_t columns, const std::function<double(double x, double y)>& height) {
  GridData grid = SmallGrid(rows, columns, {});
  for (std::int32_t row = 0; row < rows; ++row)
    for (std::int32_t column = 0; column < columns; ++column) grid.Values.push_back(height(column, rows - 1 - row));
  return grid;
}

std::string FailureOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const RunTimeError& error) {
    return error.what();
  }
  return {};
}

TEST(RendererShade, TheSlopeOfNineCellsIsThatWorkedOutByHand) {
  // 1 2 4 / 3 5 8 / 6 7 9 in cells of 2 x 4.
  GridData grid = SmallGrid(3, 3, {1, 2, 4, 3, 5, 8, 6, 7, 9});
  grid.CellWidth = 2;
  grid.CellHeight = 4;
  const Slope slope = SlopeOf(grid, 1, 1, 1);
  EXPECT_DOUBLE_EQ(slope.East, ((4 + 2 * 8 + 9) - (1 + 2 * 3 + 6)) / 16.0);
  EXPECT_DOUBLE_EQ(slope.North, ((1 + 2 * 2 + 4) - (6 + 2 * 7 + 9)) / 32.0);
  EXPECT_DOUBLE_EQ(SlopeOf(grid, 1, 1, 3).East, 3 * slope.East);
}

TEST(RendererShade, APlaneHasItsSlopeEverywhereInside) {
  const GridData grid = GridOf(6, 7, [](double x, double y) { return 2 * x - 0.5 * y + 100; });
  for (std::int32_t row = 1; row < 5; ++row) {
    for (std::int32_t column = 1; column < 6; ++column) {
      const Slope slope = SlopeOf(grid, row, column, 1);
      EXPECT_NEAR(slope.East, 2, 1e-12);
      EXPECT_NEAR(slope.North, -0.5, 1e-12);
    }
  }
}

TEST(RendererShade, GroundAcrossTheLightIsFullyLitAndGroundTurnedAwayIsDark) {
  // A slope of 45 degrees that falls to the east, lit from the east and from the west at 45 degrees.
  const Slope falling{-1, 0};
  EXPECT_NEAR(LightSource(90, 45).On(falling), 1, 1e-12);
  EXPECT_NEAR(LightSource(270, 45).On(falling), 0, 1e-12);
  EXPECT_NEAR(LightSource(123, 45).On(Slope{}), kLevelLight, 1e-12);
  EXPECT_NEAR(LightSource(0, 90).On(Slope{}), 1, 1e-12);
  EXPECT_EQ(LightSource(270, 10).On(Slope{-5, 0}), 0);
  // North counts as 0 degrees, clockwise.
  EXPECT_GT(LightSource(0, 45).On(Slope{0, -1}), 0.99);
  EXPECT_GT(LightSource(45, 35).On(Slope{-1, -1}), 0.99);
}

TEST(RendererShade, AConeIsLitAllAroundByItsAspect) {
  constexpr double kMiddle = 20;
  const GridData grid = GridOf(41, 41, [](double x, double y) { return 50 - std::hypot(x - kMiddle, y - kMiddle); });
  const std::vector<float> light = LightSource(315, 45).On(grid, 1);
  for (int degrees = 0; degrees < 360; degrees += 15) {
    const double aspect = degrees * 3.14159265358979 / 180;
    const auto column = static_cast<std::size_t>(std::lround(kMiddle + 15 * std::sin(aspect)));
    const auto row = static_cast<std::size_t>(std::lround(kMiddle - 15 * std::cos(aspect)));
    const double truth = std::atan2(static_cast<double>(column) - kMiddle, kMiddle - static_cast<double>(row));
    const double expected = (1 + std::cos(truth - 315 * 3.14159265358979 / 180)) / 2;
    EXPECT_NEAR(light[row * 41 + column], expected, 0.01) << degrees;
  }
}

TEST(RendererShade, CellsWithoutValueHaveNoLightAndDoNotSpoilTheirNeighbours) {
  GridData grid = SmallGrid(3, 3, {5, 5, 5, 5, 5, kNone, 5, 5, 5});
  const std::vector<float> light = LightSource(315, 45).On(grid, 1);
  EXPECT_TRUE(std::isnan(light[5]));
  for (const std::size_t cell : {0U, 1U, 4U, 8U}) EXPECT_NEAR(light[cell], kLevelLight, 1e-6) << cell;
}

TEST(RendererShade, DarkeningReachesFromTheMinimumToFullIntensity) {
  GridShade shade;
  shade.ShadeVersion(shadeversion::kDarkening);
  shade.MinIntensity(20);
  shade.NrOfShades(255);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(0), 20);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(1), 100);
  EXPECT_NEAR(shade.IntensityOf(0.5), 60, 0.5);
  shade.NrOfShades(2);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(0.4), 20);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(0.6), 100);
  shade.NrOfShades(5);
  shade.FirstShadeIndex(3);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(0), 60);
}

TEST(RendererShade, SunAndShadowHasMidLightOnLevelGround) {
  GridShade shade;
  shade.NrOfShades(255);
  shade.MinIntensity(50);
  shade.MidIntensity(90);
  shade.MaxIntensity(150);
  shade.Altitude(30);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(0), 50);
  EXPECT_NEAR(shade.IntensityOf(0.5), 90, 0.3);
  EXPECT_NEAR(shade.IntensityOf(0.75), 120, 0.5);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(1), 150);
  shade.MidIndexAutomatic(true);
  shade.AltitudeDefault(90);
  EXPECT_DOUBLE_EQ(shade.IntensityOf(1), 90);
}

TEST(RendererShade, SuggestsTheTrueScaleOfDegreesAndExaggeratesGentleGround) {
  GridShade shade;
  double factor = -1;
  EXPECT_FALSE(shade.SuggestScaleFactor(factor));
  GridData degrees = GridOf(20, 20, [](double x, double y) { return 40 * x + 10 * y; });
  degrees.CellWidth = degrees.CellHeight = 0.001;
  degrees.UpperLeft = {0.0005, 0.0195};
  shade.Grid(std::make_shared<const GridData>(degrees));
  ASSERT_TRUE(shade.SuggestScaleFactor(factor));
  EXPECT_NEAR(factor, 1 / 111320.0, 0.01 / 111320);
  GridData metres = GridOf(20, 20, [](double x, double) { return 0.1 * x; });
  metres.CellWidth = metres.CellHeight = 2;
  shade.Grid(std::make_shared<const GridData>(metres));
  ASSERT_TRUE(shade.SuggestScaleFactor(factor));
  EXPECT_GT(factor, 4);
  EXPECT_LE(factor, 10);
}

TEST(RendererShade, SuggestsNothingForLevelGroundOrWithoutValues) {
  for (const double height : {7.0, kNone}) {
    GridShade shade;
    shade.Grid(std::make_shared<const GridData>(GridOf(4, 4, [=](double, double) { return height; })));
    double factor = -1;
    EXPECT_FALSE(shade.SuggestScaleFactor(factor));
    EXPECT_EQ(factor, -1);
  }
}

TEST(RendererShade, ValuesOutsideTheirRangesAreRefused) {
  GridShade shade;
  const std::pair<std::function<void()>, const char*> acts[] = {
      {[&] { shade.Altitude(91); }, "Altitude must be from 0 to 90."},
      {[&] { shade.Azimuth(-1); }, "Azimuth must be from 0 to 360."},
      {[&] { shade.NrOfShades(0); }, "NrOfShades must be from 1 to 255."},
      {[&] { shade.FirstShadeIndex(256); }, "FirstShadeIndex must be from 1 to 255."},
      {[&] { shade.AltitudeDefault(91); }, "AltitudeDefault must be from 0 to 90."},
      {[&] { shade.CombineColors(3); }, "CombineColors must be from 0 to 2."},
      {[&] { shade.ShadeVersion(11); }, "ShadeVersion must be one of 10, 20."},
      {[&] { shade.ScaleFactor(-0.1); }, "ScaleFactor must be a number that is not negative."},
      {[&] { shade.ScaleMultiplier(kNone); }, "ScaleMultiplier must be a number that is not negative."},
      {[&] { shade.MinIntensity(-1); }, "MinIntensity must be a number that is not negative."},
      {[&] { shade.MidIntensity(-1); }, "MidIntensity must be a number that is not negative."},
      {[&] { shade.MaxIntensity(-1); }, "MaxIntensity must be a number that is not negative."}};
  for (const auto& [act, text] : acts) EXPECT_EQ(FailureOf(act), text);
}

/// One pixel in the middle of a plane that falls to the east, as painted.
std::vector<std::uint8_t> Painted(std::int16_t combine, std::int32_t azimuth, std::int32_t version) {
  const auto layer = SmallLayer("A", GridOf(5, 5, [](double x, double) { return -x; }));
  GridShade& shade = layer->Data()->Shade();
  shade.CombineColors(combine);
  shade.Azimuth(azimuth);
  shade.ShadeVersion(version);
  shade.ScaleAutomatic(false);
  shade.ScaleFactor(1);
  shade.MinIntensity(0);
  shade.MaxIntensity(200);
  Image image = BlankImage({1, 1});
  PaintGrid(image, {2, 3, 2, 3}, layer->Grids().front(), {-4, 0});
  return image.Pixels;
}

TEST(RendererShade, ShadesDarkenAndLightenTheColours) {
  const auto plain = Painted(combinecolors::kNone, 270, shadeversion::kDarkening);
  EXPECT_EQ(plain[3], 255);
  const auto dark = Painted(combinecolors::kShadeAndColors, 270, shadeversion::kDarkening);
  EXPECT_EQ(dark, (std::vector<std::uint8_t>{0, 0, 0, 255}));
  EXPECT_EQ(Painted(combinecolors::kShadeAndColors, 90, shadeversion::kDarkening), plain);
  const auto sunny = Painted(combinecolors::kShadeAndColors, 90, shadeversion::kSunAndShadow);
  for (int part = 0; part < 3; ++part)
    EXPECT_EQ(sunny[static_cast<std::size_t>(part)], std::min(2 * plain[static_cast<std::size_t>(part)], 255)) << part;
}

TEST(RendererShade, EndlessIntensityIsWhiteAndNotBeyond) {
  const auto layer = SmallLayer("A", GridOf(5, 5, [](double x, double) { return -x; }));
  GridShade& shade = layer->Data()->Shade();
  shade.CombineColors(combinecolors::kShadeAndColors);
  shade.Azimuth(90);
  shade.MaxIntensity(1e300);
  Image image = BlankImage({1, 1});
  PaintGrid(image, {2, 3, 2, 3}, layer->Grids().front(), {-4, 0});
  EXPECT_EQ(image.Pixels, (std::vector<std::uint8_t>{255, 255, 255, 255}));
}

TEST(RendererShade, AFilledPlaceWithoutDataKeepsItsColour) {
  const auto layer = SmallLayer("A", SmallGrid(1, 1, {kNone}));
  layer->Data()->NoDataValue().Transparent(false);
  layer->Data()->NoDataValue().Color({10, 20, 30});
  for (const std::int16_t combine : {combinecolors::kShadeAndColors, combinecolors::kShadeAndDevice}) {
    layer->Data()->Shade().CombineColors(combine);
    Image image = BlankImage({1, 1});
    PaintGrid(image, {0, 1, 0, 1}, layer->Grids().front(), {0, 1});
    EXPECT_EQ(image.Pixels, (std::vector<std::uint8_t>{10, 20, 30, 255}));
  }
}

TEST(RendererShade, OverTheDeviceShadesAreVeils) {
  EXPECT_EQ(Painted(combinecolors::kShadeAndDevice, 270, shadeversion::kDarkening),
            (std::vector<std::uint8_t>{0, 0, 0, 255}));
  EXPECT_EQ(Painted(combinecolors::kShadeAndDevice, 90, shadeversion::kDarkening)[3], 0);
  EXPECT_EQ(Painted(combinecolors::kShadeAndDevice, 90, shadeversion::kSunAndShadow),
            (std::vector<std::uint8_t>{255, 255, 255, 255}));
}

}  // namespace
}  // namespace orx::maplibrary
