// Small pictures for buttons, kept as shapes so that they are sharp at every resolution.
#pragma once

#include <vector>

#include "forms/Appearance.h"
#include "forms/Canvas.h"

namespace orx {

/// A place on the square that glyphs are drawn on, from 0 to kGlyphGrid to the right and down.
struct GlyphPoint {
  double X = 0;
  double Y = 0;
};

/// The sides of the square: one unit is a pixel at 96 dpi.
inline constexpr int kGlyphGrid = 16;

/// A filled outline; where it crosses itself, the inside alternates.
struct GlyphShape {
  Color Fill;
  std::vector<GlyphPoint> Outline;
};

/// Shapes in drawing order.
struct Glyph {
  std::vector<GlyphShape> Shapes;
};

/// The glyph as an image of `pixels` x `pixels`, transparent around the shapes. A faded one stands on a disabled
/// button.
Image DrawGlyph(const Glyph& glyph, int pixels, bool faded);

}  // namespace orx
