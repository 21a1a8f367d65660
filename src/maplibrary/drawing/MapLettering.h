// Lettering on maps: estimated sizes of texts, values as text, and texts with a light halo.
#pragma once

#include <string>

#include "forms/Canvas.h"
#include "maplibrary/drawing/MapView.h"

namespace orx::maplibrary {

/// Draws texts on a canvas at a scale of fonts.
class Lettering {
 public:
  Lettering(Canvas& canvas, double pixelsPerPoint) : mCanvas(canvas), mPixelsPerPoint(pixelsPerPoint) {}

  /// Width of a text in pixels after the letter widths of common sans-serif fonts: a drawing has no font to measure.
  double WidthOf(const std::string& text, const Font& font) const;
  /// Height of a line in pixels.
  double HeightOf(const Font& font) const { return font.Size * mPixelsPerPoint * 1.2; }
  double Pixels(double points) const { return points * mPixelsPerPoint; }

  void Draw(const PixelPoint& center, const std::string& text, const Font& font, Color pen, double rotation = 0);
  /// With white around the letters, to be read on any ground.
  void DrawHaloed(const PixelPoint& center, const std::string& text, const Font& font, Color pen, double rotation = 0);

 private:
  Canvas& mCanvas;
  double mPixelsPerPoint;
};

/// A measured value for people: two decimals at most, no trailing zeros, '.' as decimal point.
std::string ValueText(double value);

}  // namespace orx::maplibrary
