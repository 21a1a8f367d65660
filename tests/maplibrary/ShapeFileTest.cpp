// Layers from vector files and lists, and how they are drawn.
#include <gtest/gtest.h>

#include <bit>
#include <functional>
#include <limits>

#include "hostobjects/RunTimeError.h"
#include "maplibrary/drawing/DrawShapes.h"
#include "maplibrary/model/LayerFile.h"
#include "maplibrary/model/Map.h"
#include "maplibrary/model/TiledLayer.h"
#include "maplibrary/model/VectorLayer.h"
#include "tests/maplibrary/GridFiles.h"

namespace orx::maplibrary {
namespace {

/// Writes the numbers of a shape file.
class ShapeBytes {
 public:
  ShapeBytes& Big(std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) mText += static_cast<char>(value >> shift & 0xFF);
    return *this;
  }
  ShapeBytes& Little(std::uint32_t value) {
    for (int shift = 0; shift <= 24; shift += 8) mText += static_cast<char>(value >> shift & 0xFF);
    return *this;
  }
  ShapeBytes& Number(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    return Little(static_cast<std::uint32_t>(bits)).Little(static_cast<std::uint32_t>(bits >> 32));
  }
  const std::string& Text() const { return mText; }

 private:
  std::string mText;
};

std::string Header(std::uint32_t code = 9994, std::uint32_t version = 1000) {
  ShapeBytes bytes;
  bytes.Big(code);
  for (int i = 0; i < 5; ++i) bytes.Big(0);
  bytes.Big(50).Little(version).Little(5);
  for (int i = 0; i < 8; ++i) bytes.Number(0);
  return bytes.Text();
}

std::string Record(std::uint32_t number, const std::string& content) {
  return ShapeBytes().Big(number).Big(static_cast<std::uint32_t>(content.size() / 2)).Text() + content;
}

std::string PointContent(double x, double y, std::uint32_t type = 1) {
  return ShapeBytes().Little(type).Number(x).Number(y).Text();
}

/// The content of a line or area: where its parts start, and its points.
std::string Parted(std::uint32_t type, const std::vector<std::uint32_t>& parts,
                   const std::vector<GroundPoint>& points) {
  ShapeBytes bytes;
  bytes.Little(type);
  for (int i = 0; i < 4; ++i) bytes.Number(0);
  bytes.Little(static_cast<std::uint32_t>(parts.size())).Little(static_cast<std::uint32_t>(points.size()));
  for (const std::uint32_t part : parts) bytes.Little(part);
  for (const GroundPoint& point : points) bytes.Number(point.X).Number(point.Y);
  return bytes.Text();
}

const std::vector<GroundPoint> kCorners = {{0, 0}, {10, 0}, {10, 10}, {0, 0}};

class LayerFiles : public GridFiles {
 protected:
  std::vector<Shape> Shapes(const std::string& content) {
    const auto layer = ReadLayerFile(Write("x.shp", content));
    return dynamic_cast<VectorLayer&>(*layer).Shapes();
  }
  std::string ErrorOf(const std::string& name, const std::string& content) {
    try {
      ReadLayerFile(Write(name, content));
    } catch (const RunTimeError& error) {
      return error.what();
    }
    return {};
  }
};

TEST_F(LayerFiles, PointsLinesAndAreasAreRead) {
  const auto shapes = Shapes(Header() + Record(1, PointContent(3, 4)) + Record(2, Parted(3, {0, 2}, kCorners)) +
                             Record(3, Parted(5, {0}, kCorners)));
  ASSERT_EQ(3u, shapes.size());
  EXPECT_EQ((Shape{ShapeKind::Points, {{{3, 4}}}}), shapes[0]);
  EXPECT_EQ((Shape{ShapeKind::Line, {{{0, 0}, {10, 0}}, {{10, 10}, {0, 0}}}}), shapes[1]);
  EXPECT_EQ((Shape{ShapeKind::Area, {kCorners}}), shapes[2]);
}

TEST_F(LayerFiles, HeightsAndMeasuresArePassedOver) {
  const auto shapes = Shapes(Header() + Record(1, PointContent(3, 4, 11) + std::string(16, 'z')) +
                             Record(2, Parted(23, {0}, kCorners) + std::string(48, 'm')));
  ASSERT_EQ(2u, shapes.size());
  EXPECT_EQ(ShapeKind::Points, shapes[0].Kind);
  EXPECT_EQ((Shape{ShapeKind::Line, {kCorners}}), shapes[1]);
}

TEST_F(LayerFiles, EmptyShapesAreLeftOut) {
  EXPECT_TRUE(Shapes(Header() + Record(1, ShapeBytes().Little(0).Text())).empty());
  EXPECT_TRUE(Shapes(Header()).empty());
}

TEST_F(LayerFiles, WhatIsNoShapeFileIsToldWithItsName) {
  EXPECT_EQ("x.shp: is no shape file.", ErrorOf("x.shp", "text"));
  EXPECT_EQ("x.shp: is no shape file.", ErrorOf("x.shp", Header(9995)));
  EXPECT_EQ("x.shp: is no shape file.", ErrorOf("x.shp", Header(9994, 999)));
}

TEST_F(LayerFiles, RecordsThatDoNotFitAreToldByTheirNumber) {
  const auto error = [&](const std::string& records) { return ErrorOf("x.shp", Header() + records); };
  EXPECT_EQ("x.shp: ends within a record.", error("1234"));
  EXPECT_EQ("x.shp: record 7 is longer than the file.", error(ShapeBytes().Big(7).Big(0xFFFFFFFF).Text()));
  EXPECT_EQ("x.shp: record 1 has no type.", error(Record(1, "")));
  EXPECT_EQ("x.shp: record 1 is too short for what it holds.", error(Record(1, PointContent(1, 2).substr(0, 18))));
  EXPECT_EQ("x.shp: record 1 is of type 31, which is not points, lines or areas.",
            error(Record(1, ShapeBytes().Little(31).Text())));
  EXPECT_EQ("x.shp: record 1 has a coordinate that is no number.",
            error(Record(1, PointContent(std::numeric_limits<double>::quiet_NaN(), 0))));
  EXPECT_EQ("x.shp: record 1 has parts that do not follow each other.", error(Record(1, Parted(3, {0, 9}, kCorners))));
  EXPECT_EQ("x.shp: record 1 is too short for what it holds.",
            error(Record(1, Parted(3, {0}, kCorners).substr(0, 100))));
}

TEST_F(LayerFiles, OtherExtensionsAreTold) {
  EXPECT_EQ("x.txt: unknown kind of file. Choose one with the extension .bil, .asc, .shp or .lst.",
            ErrorOf("x.txt", "x"));
}

TEST_F(LayerFiles, AMapTakesAVectorLayerFromItsFile) {
  Map map;
  map.AddLayer(Write("roads.shp", Header() + Record(1, Parted(3, {0}, kCorners))), {});
  EXPECT_EQ("roads", map.LayerName(1));
  EXPECT_EQ(10, map.Extent()->Right());
}

std::vector<Mark> Drawn(std::vector<Shape> shapes, const GroundRect& window) {
  Canvas canvas;
  DrawShapes(VectorLayer("x", "", std::move(shapes)), MapView(window, {100, 100}), canvas, 1);
  return canvas.Marks();
}

TEST(DrawShapes, PointsAreSquaresAtTheirPlace) {
  const auto marks = Drawn({{ShapeKind::Points, {{{5, 5}, {50, 5}}}}}, {0, 10, 0, 10});
  ASSERT_EQ(1u, marks.size()) << "The point outside is left out.";
  EXPECT_EQ((Rect{48, 48, 4, 4}), std::get<FillMark>(marks[0]).Place);
}

TEST(DrawShapes, LinesRunFromPointToPoint) {
  const auto marks = Drawn({{ShapeKind::Line, {{{0, 10}, {5, 5}, {9, 5}}}}}, {0, 10, 0, 10});
  ASSERT_EQ(1u, marks.size());
  EXPECT_EQ((std::vector<Point>{{0, 0}, {50, 50}, {90, 50}}), std::get<LineMark>(marks[0]).Points);
}

TEST(DrawShapes, LinesAreCutOffAtTheEdgesAndMayComeBack) {
  const auto marks = Drawn({{ShapeKind::Line, {{{5, 5}, {1e9, 5}, {1e9, 2}, {5, 2}}}}}, {0, 10, 0, 10});
  ASSERT_EQ(2u, marks.size());
  EXPECT_EQ((std::vector<Point>{{50, 50}, {100, 50}}), std::get<LineMark>(marks[0]).Points);
  EXPECT_EQ((Point{50, 80}), std::get<LineMark>(marks[1]).Points.back());
}

}  // namespace
}  // namespace orx::maplibrary
