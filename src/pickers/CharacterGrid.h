// Where the characters of a font stand in the picker's grid, and how keys go through it. Places are in pixels.
#pragma once

#include <optional>

#include "forms/Geometry.h"

namespace orx {

/// The codes 0 to 255 in rows of 20, drawn up for 96 dots to the inch and grown with the screen's.
class CharacterGrid {
 public:
  static constexpr int kCodes = 256;
  static constexpr int kColumns = 20;

  /// `scale` as Desktop::Scale gives it.
  explicit CharacterGrid(double scale = 1);

  /// The upper left corner of a character.
  Point PlaceOf(int code) const;
  /// The rectangle to fill behind a character that takes that much room.
  Rect CellOf(int code, const Size& character) const;
  /// The code at a pixel; none in the margins above and to the left, and behind the last code. The margin to the right
  /// counts for the row below, where the next code stands.
  std::optional<int> CodeAt(const Point& at) const;

  /// The code that an arrow key (forms/Keys.h) leads to: the one before or behind, around the ends, or that above or
  /// below, none beyond the first or the last row. Other keys lead nowhere else.
  static std::optional<int> Neighbour(int code, int keyCode);

 private:
  int mStep;
  int mMargin;
  int mFrame;
  int mLeastWidth;
  int mNarrowWidth;
};

}  // namespace orx
