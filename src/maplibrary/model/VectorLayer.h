// A layer of the embedded map that shows points, lines and areas.
#pragma once

#include <string>
#include <vector>

#include "maplibrary/files/Shape.h"
#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// Its extent surrounds the shapes until a side is set; then they are moved and stretched with it. It marks no peaks.
class VectorLayer final : public MapLayer {
 public:
  /// `source` is the file that the shapes came from, empty for none.
  VectorLayer(std::string name, std::string source, std::vector<Shape> shapes);

  std::vector<PlacedGrid> Grids() const override { return {}; }
  const std::vector<Shape>& Shapes() const { return mShapes; }
  /// Where a point of a shape stands on the map.
  GroundPoint OnMap(const GroundPoint& point) const;

 protected:
  GroundRect Natural() const override { return mBounds; }

 private:
  std::vector<Shape> mShapes;
  GroundRect mBounds;
};

}  // namespace orx::maplibrary
