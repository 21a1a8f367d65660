// Points, lines and areas on the ground.
#pragma once

#include <vector>

#include "maplibrary/files/GroundRect.h"

namespace orx::maplibrary {

enum class ShapeKind { Points, Line, Area };

/// One object of a vector file: points, the parts of a line, or the rings of an area, whose ends meet.
struct Shape {
  ShapeKind Kind = ShapeKind::Points;
  std::vector<std::vector<GroundPoint>> Parts;
  bool operator==(const Shape&) const = default;
};

}  // namespace orx::maplibrary
