#include "desktops/qt/Characters.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>

#include "desktops/qt/CanvasPainter.h"
#include "forms/TextBox.h"
#include "text/AnsiCharacters.h"
#include "text/CharacterCount.h"

namespace orx::qt {
namespace {

/// Symbol fonts keep their characters in a private range, offset by the code.
constexpr char32_t kSigns = 0xF000;
/// Below this code, other fonts have something else in that range.
constexpr int kFirstSign = 0x20;

}  // namespace

std::optional<char32_t> CharacterFor(int code, const std::function<bool(char32_t)>& isInFont) {
  const char32_t letter = AnsiCharacter(code);
  if (isInFont(letter)) return letter;
  const char32_t sign = kSigns + static_cast<char32_t>(code);
  return code >= kFirstSign && isInFont(sign) ? std::optional(sign) : std::nullopt;
}

CharacterFont::CharacterFont(const Font& face, const QFont& dialogFont)
    : mFace(face),
      mRaw(QRawFont::fromFont(CharacterCount(face.Name) > kLongestFaceName ? dialogFont : FontOf(face, dialogFont))) {
}

quint32 CharacterFont::GlyphOf(int code) const {
  const auto isInFont = [this](char32_t character) { return mRaw.supportsCharacter(static_cast<uint>(character)); };
  const std::optional<char32_t> character = CharacterFor(code, isInFont);
  return character ? mRaw.glyphIndexesForString(QString::fromUcs4(&*character, 1)).value(0) : 0;
}

CharacterCodes CharacterFont::Codes() const {
  CharacterCodes codes;
  for (int code = 0; code < kCharacterCodes; ++code) codes.set(static_cast<std::size_t>(code), GlyphOf(code) != 0);
  return codes;
}

void CharacterFont::Draw(QPainter& painter, const QRectF& cell, int code) const {
  const quint32 glyph = GlyphOf(code);
  const QRectF ink = mRaw.boundingRect(glyph);
  const QRectF room = cell.adjusted(1, 1, -1, -1);
  const QPointF middle = room.center();
  QPointF start(middle.x() - ink.center().x(), middle.y() + (mRaw.ascent() - mRaw.descent()) / 2);
  start = start.toPoint();
  // A shrunk outline is smoothed by up to half a pixel at each side.
  const double shrunk = std::min({1.0, (room.width() - 1) / ink.width(), (room.height() - 1) / ink.height()});
  if (!ink.isEmpty() && !room.contains(ink.translated(start))) start = middle - shrunk * ink.center();
  painter.translate(start);
  painter.scale(shrunk, shrunk);
  QGlyphRun run;
  run.setRawFont(mRaw);
  run.setGlyphIndexes({glyph});
  run.setPositions({QPointF()});
  painter.drawGlyphRun(QPointF(), run);
}

}  // namespace orx::qt
