// From the twips of forms to the pixels of a screen and back.
#pragma once

#include <cmath>

#include "forms/Geometry.h"

namespace orx {

/// A length converted by a scale (see Desktop::Scale), rounded to the nearest.
inline int TwipsToPixels(int twips, double scale) {
  return static_cast<int>(std::lround(twips * scale / kTwipsPerPixel));
}
inline int PixelsToTwips(int pixels, double scale) {
  return static_cast<int>(std::lround(pixels * kTwipsPerPixel / scale));
}

/// Width and height converted.
inline Size TwipsToPixels(Size twips, double scale) {
  return {TwipsToPixels(twips.Width, scale), TwipsToPixels(twips.Height, scale)};
}

/// A place converted. Its edges are rounded, not its size, so that neighbours meet whatever the scale.
inline Rect TwipsToPixels(const Rect& twips, double scale) {
  const int left = TwipsToPixels(twips.Left, scale);
  const int top = TwipsToPixels(twips.Top, scale);
  return {left, top, TwipsToPixels(twips.Right(), scale) - left, TwipsToPixels(twips.Bottom(), scale) - top};
}

}  // namespace orx
