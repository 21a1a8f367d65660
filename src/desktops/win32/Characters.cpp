#include "desktops/win32/Characters.h"

#include <algorithm>
#include <cmath>

#include "desktops/win32/CodePage.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

constexpr double kDotsPerPoint = 72;

COLORREF NativeColor(Color color) {
  return RGB(color.Red, color.Green, color.Blue);
}

/// Where the ink of a character is, from the start of its base line, in pixels.
Rect InkOf(HDC context, char code) {
  constexpr FIXED kOne = {0, 1};
  constexpr FIXED kNone = {0, 0};
  const MAT2 upright = {kOne, kNone, kNone, kOne};
  GLYPHMETRICS glyph = {};
  if (GetGlyphOutlineA(context, static_cast<unsigned char>(code), GGO_METRICS, &glyph, 0, nullptr, &upright) !=
      GDI_ERROR)
    return {glyph.gmptGlyphOrigin.x, -glyph.gmptGlyphOrigin.y, static_cast<int>(glyph.gmBlackBoxX),
            static_cast<int>(glyph.gmBlackBoxY)};
  // Fonts of pixels have no outlines.
  SIZE size = {};
  TEXTMETRICW font = {};
  GetTextExtentPoint32A(context, &code, 1, &size);
  GetTextMetricsW(context, &font);
  return {0, -font.tmAscent, size.cx, size.cy};
}

/// How the line of a font stands in the middle of a cell: the base line below the middle.
int BaseLine(HDC context) {
  TEXTMETRICW font = {};
  GetTextMetricsW(context, &font);
  return (font.tmAscent - font.tmDescent) / 2;
}

bool Fits(const Rect& ink, const Rect& room) {
  return ink.Left >= room.Left && ink.Top >= room.Top && ink.Right() <= room.Right() && ink.Bottom() <= room.Bottom();
}

int CALLBACK AddFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) {
  auto& list = *reinterpret_cast<std::vector<std::string>*>(names);
  const std::string name = Narrowed(font->lfFaceName);
  // A font is reported once for each of its scripts.
  if (std::ranges::find(list, name) == list.end()) list.push_back(name);
  return TRUE;
}

}  // namespace

GdiObject<HFONT> MakeCharacterFont(HDC context, const Font& face) {
  const std::string name = ToCodePage(Widened(face.Name));
  if (name.size() > kLongestFaceName) return nullptr;
  LOGFONTA font = {};
  font.lfHeight = -std::max(1L, std::lround(face.Size * GetDeviceCaps(context, LOGPIXELSY) / kDotsPerPoint));
  font.lfWeight = face.Bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = face.Italic;
  font.lfUnderline = face.Underline;
  font.lfStrikeOut = face.Strikethrough;
  font.lfCharSet = DEFAULT_CHARSET;
  name.copy(font.lfFaceName, kLongestFaceName);
  return GdiObject<HFONT>(CreateFontIndirectA(&font));
}

void DrawCharacter(HDC context, const CharacterMark& mark, HFONT font) {
  const Selection selection(context, font ? font : GetCurrentObject(context, OBJ_FONT));
  const auto code = static_cast<char>(mark.Code);
  const Rect room{mark.Cell.Left + 1, mark.Cell.Top + 1, mark.Cell.Width - 2, mark.Cell.Height - 2};
  const Point middle{room.Left + room.Width / 2, room.Top + room.Height / 2};
  Rect ink = InkOf(context, code);
  Point start{middle.X - ink.Left - ink.Width / 2, middle.Y + BaseLine(context)};
  GdiObject<HFONT> smaller;
  if (!Fits({start.X + ink.Left, start.Y + ink.Top, ink.Width, ink.Height}, room)) {
    const double shrunk = std::min({1.0, static_cast<double>(room.Width) / std::max(ink.Width, 1),
                                    static_cast<double>(room.Height) / std::max(ink.Height, 1)});
    Font face = mark.Face;
    face.Size *= shrunk;
    smaller = MakeCharacterFont(context, face);
    if (smaller) SelectObject(context, smaller.get());
    ink = InkOf(context, code);
    start = {middle.X - ink.Left - ink.Width / 2, middle.Y - ink.Top - ink.Height / 2};
  }
  SetTextAlign(context, TA_LEFT | TA_BASELINE);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, NativeColor(mark.Ink));
  TextOutA(context, start.X, start.Y, &code, 1);
}

CharacterCodes CodesOf(const Font& face) {
  const WindowContext screen(nullptr);
  const GdiObject<HFONT> font = MakeCharacterFont(screen.Get(), face);
  const Selection selection(screen.Get(), font ? font.get() : GetCurrentObject(screen.Get(), OBJ_FONT));
  CharacterCodes codes;
  for (int code = 0; code < kCharacterCodes; ++code) {
    const auto character = static_cast<char>(code);
    WORD glyph = 0;
    constexpr WORD kNoGlyph = 0xFFFF;
    const DWORD found = GetGlyphIndicesA(screen.Get(), &character, 1, &glyph, GGI_MARK_NONEXISTING_GLYPHS);
    codes.set(static_cast<std::size_t>(code), found != GDI_ERROR && glyph != kNoGlyph);
  }
  return codes;
}

std::vector<std::string> ScreenFontNames() {
  const WindowContext screen(nullptr);
  std::vector<std::string> names;
  EnumFontFamiliesW(screen.Get(), nullptr, AddFont, reinterpret_cast<LPARAM>(&names));
  return names;
}

}  // namespace orx::win32
