// Pictures made of pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace orx {

/// A raster of opaque or transparent pixels, row by row from the top; 4 bytes each in the order red, green, blue, alpha
/// (alpha not premultiplied).
struct Image {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint8_t> Pixels;
};

}  // namespace orx
