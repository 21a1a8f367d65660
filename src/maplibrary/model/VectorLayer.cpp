#include "maplibrary/model/VectorLayer.h"

#include <algorithm>
#include <utility>

namespace orx::maplibrary {
namespace {

GroundRect BoundsOf(const std::vector<Shape>& shapes) {
  bool isFirst = true;
  GroundRect bounds;
  for (const Shape& shape : shapes)
    for (const std::vector<GroundPoint>& part : shape.Parts)
      for (const GroundPoint& point : part) {
        if (std::exchange(isFirst, false)) bounds = {point.X, point.X, point.Y, point.Y};
        bounds.Left = std::min(bounds.Left, point.X);
        bounds.Right = std::max(bounds.Right, point.X);
        bounds.Bottom = std::min(bounds.Bottom, point.Y);
        bounds.Top = std::max(bounds.Top, point.Y);
      }
  return bounds;
}

}  // namespace

VectorLayer::VectorLayer(std::string name, std::string source, std::vector<Shape> shapes)
    : MapLayer(std::move(name), std::move(source)), mShapes(std::move(shapes)), mBounds(BoundsOf(mShapes)) {
}

GroundPoint VectorLayer::OnMap(const GroundPoint& point) const {
  return mBounds.IsEmpty() ? point : Moved(point, mBounds, Current());
}

}  // namespace orx::maplibrary
