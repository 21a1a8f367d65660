// Lengths and places. Forms measure in twips, drawings and native windows in pixels; the desktop knows the scale
// between them.
#pragma once

namespace orx {

/// Twips in one pixel of a screen with 96 dots per inch (1440 twips to the inch).
inline constexpr int kTwipsPerPixel = 15;

/// A point, counted to the right and down. The unit is that of the member that uses it.
struct Point {
  int X = 0;
  int Y = 0;
  bool operator==(const Point&) const = default;
};

/// Width and height. The unit is that of the member that uses it.
struct Size {
  int Width = 0;
  int Height = 0;
  bool operator==(const Size&) const = default;
};

/// A place: left and top edge, width and height. The unit is that of the member that uses it.
struct Rect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  /// The edges just outside the place.
  int Right() const { return Left + Width; }
  int Bottom() const { return Top + Height; }
  bool operator==(const Rect&) const = default;
};

}  // namespace orx
