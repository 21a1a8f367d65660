#include "pickers/CharacterGrid.h"

#include "forms/Keys.h"
#include "numbers/Numbers.h"

namespace orx {

CharacterGrid::CharacterGrid(double scale)
    : mStep(numbers::RoundToLong(19 * scale)),
      mMargin(numbers::RoundToLong(9 * scale)),
      mFrame(numbers::RoundToLong(1 * scale)),
      mLeastWidth(numbers::RoundToLong(11 * scale)),
      mNarrowWidth(numbers::RoundToLong(9 * scale)) {
}

Point CharacterGrid::PlaceOf(int code) const {
  return {code % kColumns * mStep + mMargin, code / kColumns * mStep + mMargin};
}

Rect CharacterGrid::CellOf(int code, const Size& character) const {
  const Point place = PlaceOf(code);
  const int left = place.X - mFrame;
  int right = place.X + character.Width + mFrame;
  if (right - left < mLeastWidth) right = place.X + mNarrowWidth;
  return {left, place.Y, right - left, character.Height};
}

std::optional<int> CharacterGrid::CodeAt(const Point& at) const {
  if (at.X < mMargin || at.Y < mMargin) return std::nullopt;
  const int code = (at.Y - mMargin) / mStep * kColumns + (at.X - mMargin) / mStep;
  return code < kCodes ? std::optional(code) : std::nullopt;
}

std::optional<int> CharacterGrid::Neighbour(int code, int keyCode) {
  switch (keyCode) {
    case kKeyCodeLeft:
      return code == 0 ? kCodes - 1 : code - 1;
    case kKeyCodeRight:
      return code == kCodes - 1 ? 0 : code + 1;
    case kKeyCodeUp:
      return code < kColumns ? std::nullopt : std::optional(code - kColumns);
    case kKeyCodeDown:
      return code + kColumns < kCodes ? std::optional(code + kColumns) : std::nullopt;
    default:
      return code;
  }
}

}  // namespace orx
