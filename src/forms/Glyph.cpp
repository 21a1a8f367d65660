#include "forms/Glyph.h"

#include <cmath>
#include <cstdint>

namespace orx {
namespace {

/// The number of sample points along each side of a pixel.
constexpr int kSamples = 4;

bool Holds(const GlyphOutline& outline, GlyphPoint at) {
  bool inside = false;
  for (std::size_t i = 0, before = outline.size() - 1; i < outline.size(); before = i++) {
    const GlyphPoint& a = outline[i];
    const GlyphPoint& b = outline[before];
    if ((a.Y > at.Y) != (b.Y > at.Y) && at.X < (b.X - a.X) * (at.Y - a.Y) / (b.Y - a.Y) + a.X) inside = !inside;
  }
  return inside;
}

bool IsInk(const Glyph& glyph, GlyphPoint at) {
  bool ink = false;
  for (const GlyphOutline& outline : glyph.Outlines) ink ^= Holds(outline, at);
  return ink;
}

/// How much of a pixel is ink, from 0 to 255.
std::uint8_t CoverOf(const Glyph& glyph, int x, int y, double unit) {
  int hits = 0;
  for (int i = 0; i < kSamples; ++i)
    for (int j = 0; j < kSamples; ++j)
      hits += IsInk(glyph, {(x + (i + 0.5) / kSamples) * unit, (y + (j + 0.5) / kSamples) * unit});
  return static_cast<std::uint8_t>(std::lround(255.0 * hits / (kSamples * kSamples)));
}

}  // namespace

Image DrawGlyph(const Glyph& glyph, int pixels, Color ink) {
  Image image{pixels, pixels, {}};
  const double unit = static_cast<double>(kGlyphGrid) / pixels;
  for (int y = 0; y < pixels; ++y)
    for (int x = 0; x < pixels; ++x)
      for (const std::uint8_t part : {ink.Red, ink.Green, ink.Blue, CoverOf(glyph, x, y, unit)})
        image.Pixels.push_back(part);
  return image;
}

}  // namespace orx
