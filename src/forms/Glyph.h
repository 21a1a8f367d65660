// Small pictures for buttons, made of outlines so that they are sharp at every resolution. They have no colours of
// their own: a desktop draws them in the ink of its buttons.
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

/// The corners of an area.
using GlyphOutline = std::vector<GlyphPoint>;

/// What lies inside of an odd number of outlines is ink: an outline in another one cuts a hole.
struct Glyph {
  std::vector<GlyphOutline> Outlines;
};

/// The glyph as an image of `pixels` x `pixels` in one colour, transparent where there is no ink.
Image DrawGlyph(const Glyph& glyph, int pixels, Color ink);

}  // namespace orx
