#include "maplibrary/drawing/DrawShapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "maplibrary/drawing/ClipLine.h"

namespace orx::maplibrary {
namespace {

constexpr Color kPointColor = {150, 20, 30};
constexpr Color kLineColor = {30, 70, 140};
constexpr Color kEdgeColor = {90, 60, 20};
/// The side of a point's square and the width of a line, in points.
constexpr double kPointSize = 4;
constexpr double kLineWidth = 1;

class ShapePainter {
 public:
  ShapePainter(const VectorLayer& layer, const MapView& view, Canvas& canvas, double pixelsPerPoint)
      : mLayer(layer),
        mView(view),
        mCanvas(canvas),
        mPoint(std::max(static_cast<int>(std::lround(kPointSize * pixelsPerPoint)), 1)),
        mWidth(std::max(static_cast<int>(std::lround(kLineWidth * pixelsPerPoint)), 1)) {}

  void Draw(const Shape& shape) {
    for (const std::vector<GroundPoint>& part : shape.Parts) {
      if (shape.Kind == ShapeKind::Points) {
        DrawPoints(part);
      } else {
        DrawLine(part, shape.Kind == ShapeKind::Area ? kEdgeColor : kLineColor);
      }
    }
  }

 private:
  PixelPoint Place(const GroundPoint& point) const { return mView.ToPixel(mLayer.OnMap(point)); }

  static Point Rounded(const PixelPoint& place) {
    return {static_cast<int>(std::floor(place.X)), static_cast<int>(std::floor(place.Y))};
  }

  void DrawPoints(const std::vector<GroundPoint>& points) {
    for (const GroundPoint& point : points) {
      if (!mView.Contains(mLayer.OnMap(point))) continue;
      const Point place = Rounded(Place(point));
      mCanvas.Draw(FillMark{{place.X - mPoint / 2, place.Y - mPoint / 2, mPoint, mPoint}, kPointColor});
    }
  }

  void DrawLine(const std::vector<GroundPoint>& points, Color pen) {
    std::vector<PixelPoint> line;
    for (const GroundPoint& point : points) line.push_back(Place(point));
    for (const std::vector<PixelPoint>& piece : ClippedLine(line, mView.Pixels())) {
      LineMark mark{{}, pen, mWidth};
      for (const PixelPoint& point : piece) mark.Points.push_back(Rounded(point));
      mCanvas.Draw(std::move(mark));
    }
  }

  const VectorLayer& mLayer;
  const MapView& mView;
  Canvas& mCanvas;
  int mPoint;
  int mWidth;
};

}  // namespace

void DrawShapes(const VectorLayer& layer, const MapView& view, Canvas& canvas, double pixelsPerPoint) {
  ShapePainter painter(layer, view, canvas, pixelsPerPoint);
  for (const Shape& shape : layer.Shapes()) painter.Draw(shape);
}

}  // namespace orx::maplibrary
