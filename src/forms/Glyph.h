// Small pictures for buttons, made of shapes so that they are sharp at every resolution.
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

/// The length of the square's sides: one unit is a pixel at 96 dpi.
inline constexpr int kGlyphGrid = 16;

/// A filled outline; where it crosses itself, inside and outside alternate.
struct GlyphShape {
  Color Fill;
  std::vector<GlyphPoint> Outline;
};

/// Shapes in drawing order.
struct Glyph {
  std::vector<GlyphShape> Shapes;
};

/// The glyph as an image of `pixels` x `pixels`, transparent around the shapes. Disabled buttons show a faded one.
Image DrawGlyph(const Glyph& glyph, int pixels, bool faded);

}  // namespace orx
