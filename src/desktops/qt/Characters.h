// Single characters of a font by their codes, as CharacterMark has them.
#pragma once

#include <QFont>
#include <QRawFont>
#include <functional>
#include <optional>

#include "forms/Canvas.h"

class QPainter;

namespace orx::qt {

/// The character that a font has under a code: the letter, else the sign in the private range; none without both.
std::optional<char32_t> CharacterFor(int code, const std::function<bool(char32_t)>& isInFont);

/// A font with its characters under single-byte codes. No other font lends it a character that it lacks: its sign for
/// missing ones stands in.
class CharacterFont {
 public:
  /// `dialogFont` stands in for a font whose name is too long to be one.
  CharacterFont(const Font& face, const QFont& dialogFont);

  const Font& Face() const { return mFace; }
  Size Measure(int code) const;
  /// Draws the character in the painter's pen.
  void Draw(QPainter& painter, const Point& place, int code) const;

 private:
  quint32 GlyphOf(int code) const;

  Font mFace;
  QRawFont mRaw;
};

}  // namespace orx::qt
