#include "maplibrary/files/GroundRect.h"

#include <algorithm>

namespace orx::maplibrary {

GroundRect Normalised(const GroundRect& rect) {
  return {std::min(rect.Left, rect.Right), std::max(rect.Left, rect.Right), std::min(rect.Bottom, rect.Top),
          std::max(rect.Bottom, rect.Top)};
}

GroundRect Union(const GroundRect& a, const GroundRect& b) {
  if (a.IsEmpty()) return b.IsEmpty() ? GroundRect() : Normalised(b);
  if (b.IsEmpty()) return Normalised(a);
  const GroundRect first = Normalised(a);
  const GroundRect second = Normalised(b);
  return {std::min(first.Left, second.Left), std::max(first.Right, second.Right), std::min(first.Bottom, second.Bottom),
          std::max(first.Top, second.Top)};
}

GroundPoint Moved(const GroundPoint& point, const GroundRect& from, const GroundRect& to) {
  if (from == to) return point;
  return {to.Left + (point.X - from.Left) / from.Width() * to.Width(),
          to.Bottom + (point.Y - from.Bottom) / from.Height() * to.Height()};
}

GroundRect Moved(const GroundRect& rect, const GroundRect& from, const GroundRect& to) {
  const GroundPoint lowerLeft = Moved(GroundPoint{rect.Left, rect.Bottom}, from, to);
  const GroundPoint upperRight = Moved(GroundPoint{rect.Right, rect.Top}, from, to);
  return {lowerLeft.X, upperRight.X, lowerLeft.Y, upperRight.Y};
}

}  // namespace orx::maplibrary
