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

/// A font whose characters are found by single-byte codes. A character that it lacks is not taken from another font.
class CharacterFont {
 public:
  /// `dialogFont` stands in for a font whose name is too long to be one.
  CharacterFont(const Font& face, const QFont& dialogFont);

  const Font& Face() const { return mFace; }
  /// The codes for which it has characters.
  CharacterCodes Codes() const;
  /// Draws the character with the painter's pen in the middle of a cell: its ink across, its line down, so that the
  /// characters of a row stand on one line. One that would touch the edge is drawn smaller. The painter is moved.
  void Draw(QPainter& painter, const QRectF& cell, int code) const;

 private:
  quint32 GlyphOf(int code) const;

  Font mFace;
  QRawFont mRaw;
};

}  // namespace orx::qt
