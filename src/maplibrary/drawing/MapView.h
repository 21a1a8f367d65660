// Where ground and pixels meet while a map is shown: places of the one in the other.
#pragma once

#include "forms/Geometry.h"
#include "maplibrary/files/GroundRect.h"
#include "maplibrary/model/Map.h"

namespace orx::maplibrary {

/// A position between pixels: pixel x reaches from x to x + 1.
struct PixelPoint {
  double X = 0;
  double Y = 0;
};

/// A window on the ground fitted into a picture with one scale for x and y, centred.
class MapView {
 public:
  /// The ground is an upright rectangle (see Normalised); `size` in pixels.
  MapView(const GroundRect& window, Size size);

  /// Nothing can be shown: the window or the picture is empty.
  bool IsEmpty() const { return mPixels.Width <= 0 || mPixels.Height <= 0; }
  const GroundRect& Window() const { return mWindow; }
  /// The pixels that the window fills.
  Rect Pixels() const { return mPixels; }
  PixelPoint ToPixel(const GroundPoint& point) const;
  bool Contains(const GroundPoint& point) const;

 private:
  GroundRect mWindow;
  Rect mPixels;
};

/// The view of a map in a picture of that size.
MapView ViewOf(const Map& map, Size size);

}  // namespace orx::maplibrary
