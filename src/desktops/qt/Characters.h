// Draws single characters of a font by their codes, for CharacterMark.
#pragma once

#include <QFont>
#include <QRawFont>
#include <functional>
#include <optional>

#include "forms/Canvas.h"

class QPainter;

namespace orx::qt {

/// The character that a font has for a code: the letter, else the symbol in the private range; none when it has
/// neither.
std::optional<char32_t> CharacterFor(int code, const std::function<bool(char32_t)>& isInFont);

/// A font whose characters are found by single-byte codes. A character that it lacks is not taken from another font:
/// its own sign for missing characters is drawn.
class CharacterFont {
 public:
  /// `dialogFont` stands in for a font whose name is too long to be one.
  CharacterFont(const Font& face, const QFont& dialogFont);

  const Font& Face() const { return mFace; }
  Size Measure(int code) const;
  /// Draws the character with the painter's pen.
  void Draw(QPainter& painter, const Point& place, int code) const;

 private:
  quint32 GlyphOf(int code) const;

  Font mFace;
  QRawFont mRaw;
};

}  // namespace orx::qt
