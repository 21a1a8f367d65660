#include "pickers/CharacterGrid.h"

#include "forms/Appearance.h"
#include "forms/Keys.h"
#include "numbers/Numbers.h"

namespace orx {

CharacterGrid::CharacterGrid(double scale)
    : mStep(numbers::RoundToLong(19 * scale)), mMargin(numbers::RoundToLong(9 * scale)) {
}

Rect CharacterGrid::CellOf(int code) const {
  return {code % kColumns * mStep + mMargin, code / kColumns * mStep + mMargin, mStep, mStep};
}

std::optional<int> CharacterGrid::CodeAt(const Point& at) const {
  if (at.X < mMargin || at.Y < mMargin) return std::nullopt;
  const int code = (at.Y - mMargin) / mStep * kColumns + (at.X - mMargin) / mStep;
  return code < kCharacterCodes ? std::optional(code) : std::nullopt;
}

std::optional<int> CharacterGrid::Neighbour(int code, int keyCode) {
  switch (keyCode) {
    case kKeyCodeLeft:
      return code == 0 ? kCharacterCodes - 1 : code - 1;
    case kKeyCodeRight:
      return code == kCharacterCodes - 1 ? 0 : code + 1;
    case kKeyCodeUp:
      return code < kColumns ? std::nullopt : std::optional(code - kColumns);
    case kKeyCodeDown:
      return code + kColumns < kCharacterCodes ? std::optional(code + kColumns) : std::nullopt;
    default:
      return code;
  }
}

}  // namespace orx
