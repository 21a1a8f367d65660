// Single characters of a font by their codes, as CharacterMark has them.
#pragma once

#include <QFont>
#include <QRawFont>

#include "forms/Canvas.h"

class QPainter;

namespace orx::qt {

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
