// Contour lines on a map: levels, pens, widths, colours and labels.
#include "maplibrary/drawing/DrawIsolines.h"

#include <gtest/gtest.h>

#include "hostobjects/RunTimeError.h"
#include "maplibrary/drawing/ValueColors.h"
#include "tests/maplibrary/Drawing.h"

namespace orx::maplibrary {
namespace {

constexpr Size kPicture = {400, 400};

/// A plane that rises from 0 in the west to 8 in the east, in 4 classes, with visible lines.
std::unique_ptr<Map> Plane() {
  GridData grid = SmallGrid(9, 9, {});
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 9; ++column) grid.Values.push_back(column);
  auto map = std::make_unique<Map>("Plane");
  map->AddLayer(SmallLayer("A", std::move(grid))).ShowLabels(false);
  map->Layer(1)->SymbolSize(0);
  map->Legend(0).Visible(false);
  map->Legend(1).Visible(false);
  LayerData& data = *dynamic_cast<Layer&>(*map->Layer(1)).Data();
  data.NumberOfClasses(4);
  data.Lines().Line().Style(0);
  return map;
}

LayerData& DataOf(Map& map) {
  return *dynamic_cast<Layer&>(*map.Layer(1)).Data();
}

std::vector<LineMark> LinesOf(const Map& map) {
  return Drawing(map, kPicture).All<LineMark>();
}

TEST(RendererIsolines, NothingIsDrawnAtFirst) {
  const auto map = Plane();
  DataOf(*map).Lines().Line().Style(LineStyle::kInvisible);
  EXPECT_TRUE(LinesOf(*map).empty());
}

TEST(RendererIsolines, LinesStandAtTheLimitsBetweenTheClasses) {
  const auto map = Plane();
  EXPECT_EQ(IsolineLevels(DataOf(*map)), (std::vector<double>{2, 4, 6}));
  const std::vector<LineMark> lines = LinesOf(*map);
  ASSERT_EQ(lines.size(), 3u);
  // Column 4 of 9 has its centre in the middle of the picture.
  for (const Point& point : lines[1].Points) EXPECT_EQ(point.X, 200);
  EXPECT_LT(lines[0].Points[0].X, lines[1].Points[0].X);
}

TEST(RendererIsolines, EveryNthLimitHasALine) {
  const auto map = Plane();
  DataOf(*map).NumberOfClasses(8);
  DataOf(*map).Lines().RangeStep(3);
  EXPECT_EQ(IsolineLevels(DataOf(*map)), (std::vector<double>{3, 6}));
  DataOf(*map).Lines().RangeStep(8);
  EXPECT_TRUE(IsolineLevels(DataOf(*map)).empty());
}

TEST(RendererIsolines, EndlessClassesHaveABoundedNumberOfLines) {
  const auto map = Plane();
  DataOf(*map).NumberOfClasses(65535);
  EXPECT_LE(IsolineLevels(DataOf(*map)).size(), 256u);
  EXPECT_GE(IsolineLevels(DataOf(*map)).size(), 128u);
}

TEST(RendererIsolines, PenAndWidthAreThoseSet) {
  const auto map = Plane();
  DataOf(*map).Lines().Line().Width(3);
  DataOf(*map).Lines().Line().Color({1, 2, 3});
  for (const LineMark& line : LinesOf(*map)) {
    EXPECT_EQ(line.Width, 3);
    EXPECT_EQ(line.Pen, (Color{1, 2, 3}));
  }
}

TEST(RendererIsolines, WidthsAndColoursFollowTheClasses) {
  const auto map = Plane();
  DataOf(*map).Lines().UseRangeWidth(true);
  DataOf(*map).Lines().UseRangeColor(true);
  DataOf(*map).Lines().MaxWidth(9);
  const std::vector<LineMark> lines = LinesOf(*map);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].Width, 3);
  EXPECT_EQ(lines[1].Width, 5);
  EXPECT_EQ(lines[2].Width, 7);
  EXPECT_NE(lines[0].Pen, lines[2].Pen);
}

TEST(RendererIsolines, PenStylesCutTheLines) {
  const auto map = Plane();
  std::size_t before = 3;
  for (const std::int32_t style : {1, 3, 4, 2}) {
    DataOf(*map).Lines().Line().Style(style);
    const std::vector<LineMark> lines = LinesOf(*map);
    EXPECT_GT(lines.size(), before) << style;
    before = lines.size();
    for (const LineMark& line : lines) EXPECT_LE(std::abs(line.Points.back().Y - line.Points.front().Y), 10);
  }
  DataOf(*map).Lines().Line().Style(6);
  EXPECT_EQ(LinesOf(*map).size(), 3u);
}

TEST(RendererIsolines, LabelsStandAlongTheLinesInTheChosenFormat) {
  const auto map = Plane();
  DataOf(*map).ValueFormat("0.0");
  DataOf(*map).Lines().LabelVisible(true);
  DataOf(*map).Lines().LabelDistance(0.5);
  const std::vector<TextMark> texts = Drawing(*map, kPicture).Texts();
  ASSERT_EQ(texts.size(), 6u);
  for (const TextMark& text : texts) {
    EXPECT_NEAR(std::abs(text.Rotation), 90, 0.1);
    EXPECT_TRUE(text.Text == "2.0" || text.Text == "4.0" || text.Text == "6.0") << text.Text;
  }
  EXPECT_NEAR(std::abs(texts[1].Center.Y - texts[0].Center.Y), 200, 2);
  DataOf(*map).Lines().LabelDistance(0.25);
  EXPECT_GT(Drawing(*map, kPicture).Texts().size(), 8u);
}

TEST(RendererIsolines, LabelsAloneStandWithoutLines) {
  const auto map = Plane();
  DataOf(*map).Lines().Line().Style(LineStyle::kInvisible);
  DataOf(*map).Lines().LabelVisible(true);
  EXPECT_TRUE(LinesOf(*map).empty());
  EXPECT_FALSE(Drawing(*map, kPicture).Texts().empty());
}

TEST(RendererIsolines, AllLinesOrTheLongestOfALevelAreLabelled) {
  const auto map = Plane();
  // A ridge between two valleys: two lines for the level in the middle.
  GridData grid = SmallGrid(9, 9, {});
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 9; ++column) grid.Values.push_back(8 - 2 * std::abs(column - 4));
  map->RemoveLayer(1);
  map->AddLayer(SmallLayer("B", std::move(grid))).ShowLabels(false);
  LayerData& data = DataOf(*map);
  data.NumberOfClasses(2);
  data.Lines().LabelVisible(true);
  data.Lines().LabelDistance(2);
  map->Layer(1)->SymbolSize(0);
  EXPECT_EQ(Drawing(*map, kPicture).Texts().size(), 1u);
  data.Lines().LabelAllIsolines(true);
  EXPECT_EQ(Drawing(*map, kPicture).Texts().size(), 2u);
}

TEST(RendererIsolines, LabelsHaveTheFontAndTheColourSet) {
  const auto map = Plane();
  GridIsolines& lines = DataOf(*map).Lines();
  lines.LabelVisible(true);
  lines.LabelFont().Name("Times");
  lines.LabelFont().Size(11);
  lines.LabelFont().Bold(true);
  lines.LabelFont().Color({9, 8, 7});
  const TextMark text = Drawing(*map, kPicture).Texts().front();
  EXPECT_EQ(text.Face.Name, "Times");
  EXPECT_EQ(text.Face.Size, 11);
  EXPECT_TRUE(text.Face.Bold);
  EXPECT_EQ(text.Pen, (Color{9, 8, 7}));
  lines.LabelUseRangeColor(true);
  EXPECT_NE(Drawing(*map, kPicture).Texts().front().Pen, (Color{9, 8, 7}));
}

TEST(RendererIsolines, NothingIsDrawnBesideThePictureAndAFarZoomIsQuick) {
  const auto map = Plane();
  GridIsolines& lines = DataOf(*map).Lines();
  lines.LabelVisible(true);
  lines.LabelDistance(0);
  for (const double width : {3.0, 1e-3, 1e-9}) {
    map->Extent()->Place({4.5 - width / 3, 4.5 + width, 4, 4 + width});
    for (const std::int32_t style : {0, 2}) {
      lines.Line().Style(style);
      const std::vector<LineMark> marks = LinesOf(*map);
      EXPECT_FALSE(marks.empty()) << width;
      EXPECT_LT(marks.size(), 2000u) << width;
      for (const LineMark& mark : marks)
        for (const Point& point : mark.Points)
          EXPECT_TRUE(point.X >= 0 && point.X <= 400 && point.Y >= 0 && point.Y <= 400) << point.X << " " << point.Y;
    }
  }
}

TEST(RendererIsolines, SettingsOutsideTheirRangesAreRefused) {
  GridIsolines lines;
  EXPECT_THROW(lines.RangeStep(0), RunTimeError);
  EXPECT_THROW(lines.MaxWidth(101), RunTimeError);
  EXPECT_THROW(lines.LabelDistance(-1), RunTimeError);
  EXPECT_THROW(lines.Line().Style(7), RunTimeError);
  EXPECT_THROW(lines.Line().Width(-1), RunTimeError);
  EXPECT_THROW(lines.LabelFont().Size(2000), RunTimeError);
  EXPECT_EQ(lines.RangeStep(), 1);
}

}  // namespace
}  // namespace orx::maplibrary
