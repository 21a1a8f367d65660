#include "forms/Glyph.h"

#include <cmath>

namespace orx {
namespace {

/// The number of sample points along each side of a pixel.
constexpr int kSamples = 4;

bool Holds(const std::vector<GlyphPoint>& outline, GlyphPoint at) {
  bool inside = false;
  for (std::size_t i = 0, before = outline.size() - 1; i < outline.size(); before = i++) {
    const GlyphPoint& a = outline[i];
    const GlyphPoint& b = outline[before];
    if ((a.Y > at.Y) != (b.Y > at.Y) && at.X < (b.X - a.X) * (at.Y - a.Y) / (b.Y - a.Y) + a.X) inside = !inside;
  }
  return inside;
}

/// The part of a pixel that the shape covers, from 0 to 1.
double CoverOf(const GlyphShape& shape, int x, int y, double unit) {
  int hits = 0;
  for (int i = 0; i < kSamples; ++i)
    for (int j = 0; j < kSamples; ++j)
      hits += Holds(shape.Outline, {(x + (i + 0.5) / kSamples) * unit, (y + (j + 0.5) / kSamples) * unit});
  return static_cast<double>(hits) / (kSamples * kSamples);
}

/// A colour with alpha; parts are from 0 to 1 and not premultiplied.
struct Tint {
  double Red = 0;
  double Green = 0;
  double Blue = 0;
  double Alpha = 0;

  void Lay(Color color, double cover) {
    if (cover <= 0) return;
    const double alpha = cover + Alpha * (1 - cover);
    const auto mix = [&](double& below, std::uint8_t above) {
      below = (above / 255.0 * cover + below * Alpha * (1 - cover)) / alpha;
    };
    mix(Red, color.Red);
    mix(Green, color.Green);
    mix(Blue, color.Blue);
    Alpha = alpha;
  }
  void Fade() {
    Red = Green = Blue = 0.3 * Red + 0.59 * Green + 0.11 * Blue;
    Alpha *= 0.4;
  }
};

std::uint8_t Byte(double share) {
  return static_cast<std::uint8_t>(std::lround(share * 255));
}

}  // namespace

Image DrawGlyph(const Glyph& glyph, int pixels, bool faded) {
  Image image{pixels, pixels, {}};
  const double unit = static_cast<double>(kGlyphGrid) / pixels;
  for (int y = 0; y < pixels; ++y) {
    for (int x = 0; x < pixels; ++x) {
      Tint tint;
      for (const GlyphShape& shape : glyph.Shapes) tint.Lay(shape.Fill, CoverOf(shape, x, y, unit));
      if (faded) tint.Fade();
      for (const double part : {tint.Red, tint.Green, tint.Blue, tint.Alpha}) image.Pixels.push_back(Byte(part));
    }
  }
  return image;
}

}  // namespace orx
