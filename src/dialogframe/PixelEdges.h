// Hit-testing the mouse against rectangles of pixels.
#pragma once

#include <cstdint>

namespace orx {

/// A rectangle in pixels. All four edges belong to it.
struct PixelEdges {
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Right = 0;
  std::int32_t Bottom = 0;
};

namespace modMain {

/// True if the point lies inside the rectangle or on its edge.
inline bool PointInRect(std::int16_t x, std::int16_t y, const PixelEdges& rectangle) {
  return rectangle.Left <= x && x <= rectangle.Right && rectangle.Top <= y && y <= rectangle.Bottom;
}

}  // namespace modMain
}  // namespace orx
