// Places and rectangles on the ground, in the map's own unit (degrees or metres), y upwards.
#pragma once

#include <cmath>

namespace orx::maplibrary {

struct GroundPoint {
  double X = 0;
  double Y = 0;
  bool operator==(const GroundPoint&) const = default;
};

/// A rectangle by its sides. Left may lie right of Right, and Bottom above Top; what lies in it then stands mirrored.
struct GroundRect {
  double Left = 0;
  double Right = 0;
  double Bottom = 0;
  double Top = 0;

  double Width() const { return Right - Left; }
  double Height() const { return Top - Bottom; }
  /// Without usable width or height (none, not finite, or too small to divide by): nothing can be drawn in it.
  bool IsEmpty() const { return !std::isnormal(Width()) || !std::isnormal(Height()); }
  bool operator==(const GroundRect&) const = default;
};

/// The same rectangle with Left <= Right and Bottom <= Top.
GroundRect Normalised(const GroundRect& rect);

/// The smallest upright rectangle around both. An empty one adds nothing.
GroundRect Union(const GroundRect& a, const GroundRect& b);

/// Where `point` stands when all that lies in `from` is moved and stretched into `to`. `from` must not be empty. The
/// point itself when both are the same.
GroundPoint Moved(const GroundPoint& point, const GroundRect& from, const GroundRect& to);
GroundRect Moved(const GroundRect& rect, const GroundRect& from, const GroundRect& to);

}  // namespace orx::maplibrary
