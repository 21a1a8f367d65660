#include "desktops/qt/Characters.h"

#include <QGlyphRun>
#include <QPainter>

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

Size CharacterFont::Measure(int code) const {
  const QList<QPointF> advances = mRaw.advancesForGlyphIndexes({GlyphOf(code)});
  return {qRound(advances.value(0).x()), qRound(mRaw.ascent() + mRaw.descent())};
}

void CharacterFont::Draw(QPainter& painter, const Point& place, int code) const {
  QGlyphRun run;
  run.setRawFont(mRaw);
  run.setGlyphIndexes({GlyphOf(code)});
  run.setPositions({QPointF(0, mRaw.ascent())});
  painter.drawGlyphRun(QPointF(place.X, place.Y), run);
}

}  // namespace orx::qt
