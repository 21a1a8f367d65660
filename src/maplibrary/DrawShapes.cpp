#include "maplibrary/DrawShapes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orx::maplibrary {
namespace {

constexpr Color kPointColor = {150, 20, 30};
constexpr Color kLineColor = {30, 70, 140};
constexpr Color kEdgeColor = {90, 60, 20};
/// The side of a point's square and the width of a line, in points.
constexpr double kPointSize = 4;
constexpr double kLineWidth = 1;

struct Segment {
  PixelPoint From;
  PixelPoint To;
};

/// The part of a segment inside the frame, after Liang and Barsky: "A New Concept and Method for Line Clipping", ACM
/// Transactions on Graphics 3 (1984).
std::optional<Segment> Clipped(const Segment& whole, const Rect& frame) {
  const double dx = whole.To.X - whole.From.X;
  const double dy = whole.To.Y - whole.From.Y;
  double start = 0;
  double end = 1;
  const auto cut = [&](double direction, double room) {
    if (direction == 0) return room >= 0;
    const double at = room / direction;
    if (direction < 0) start = std::max(start, at);
    if (direction > 0) end = std::min(end, at);
    return start <= end;
  };
  const bool isSeen = cut(-dx, whole.From.X - frame.Left) && cut(dx, frame.Right() - whole.From.X) &&
                      cut(-dy, whole.From.Y - frame.Top) && cut(dy, frame.Bottom() - whole.From.Y);
  if (!isSeen) return std::nullopt;
  const auto at = [&](double share) { return PixelPoint{whole.From.X + share * dx, whole.From.Y + share * dy}; };
  return Segment{at(start), at(end)};
}

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
    LineMark line{{}, pen, mWidth};
    for (std::size_t i = 1; i < points.size(); ++i) {
      const std::optional<Segment> seen = Clipped({Place(points[i - 1]), Place(points[i])}, mView.Pixels());
      if (!seen) continue;
      if (line.Points.empty() || line.Points.back() != Rounded(seen->From)) {
        Finish(line);
        line.Points.push_back(Rounded(seen->From));
      }
      line.Points.push_back(Rounded(seen->To));
    }
    Finish(line);
  }

  void Finish(LineMark& line) {
    if (!line.Points.empty()) mCanvas.Draw(line);
    line.Points.clear();
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
