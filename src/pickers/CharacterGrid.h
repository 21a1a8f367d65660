// The layout of the character picker's grid, and how keys move through it. Places are in pixels.
#pragma once

#include <optional>

#include "forms/Geometry.h"

namespace orx {

/// The codes 0 to 255 in rows of 20, designed for 96 dpi and scaled to the screen.
class CharacterGrid {
 public:
  static constexpr int kColumns = 20;

  /// `scale` is what Desktop::Scale returns.
  explicit CharacterGrid(double scale = 1);

  /// The cell of a character. Cells meet, and every pixel of one is its code.
  Rect CellOf(int code) const;
  /// The code at a pixel; none in the top and left margins and past the last code. The right margin counts as the start
  /// of the row below, where the next code is.
  std::optional<int> CodeAt(const Point& at) const;

  /// The code that an arrow key (forms/Keys.h) leads to. Left and Right wrap around at the ends; Up and Down give none
  /// past the first and the last row. Other keys stay at the code.
  static std::optional<int> Neighbour(int code, int keyCode);

 private:
  int mStep;
  int mMargin;
};

}  // namespace orx
