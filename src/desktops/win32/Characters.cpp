#include "desktops/win32/Characters.h"

#include <algorithm>
#include <cmath>

#include "desktops/win32/CodePage.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

constexpr int kDotsPerPoint = 72;

COLORREF NativeColor(Color color) {
  return RGB(color.Red, color.Green, color.Blue);
}

void FillCell(HDC context, const Rect& cell, Color ground) {
  const GdiObject<HPEN> pen(CreatePen(PS_INSIDEFRAME, 1, NativeColor(ground)));
  const GdiObject<HBRUSH> brush(CreateSolidBrush(NativeColor(ground)));
  const Selection framed(context, pen.get());
  const Selection filled(context, brush.get());
  Rectangle(context, cell.Left, cell.Top, cell.Right(), cell.Bottom());
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
  font.lfHeight = -MulDiv(static_cast<int>(std::lround(face.Size)), GetDeviceCaps(context, LOGPIXELSY), kDotsPerPoint);
  font.lfWeight = face.Bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = face.Italic;
  font.lfUnderline = face.Underline;
  font.lfStrikeOut = face.Strikethrough;
  font.lfCharSet = DEFAULT_CHARSET;
  name.copy(font.lfFaceName, kLongestFaceName);
  return GdiObject<HFONT>(CreateFontIndirectA(&font));
}

void DrawCharacter(HDC context, const CharacterMark& mark, HFONT font) {
  if (mark.Cell.Width > 0) FillCell(context, mark.Cell, mark.Ground);
  const Selection selection(context, font ? font : GetCurrentObject(context, OBJ_FONT));
  const auto code = static_cast<char>(mark.Code);
  SetTextAlign(context, TA_LEFT | TA_TOP);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, NativeColor(mark.Ink));
  TextOutA(context, mark.Place.X, mark.Place.Y, &code, 1);
}

Size CharacterSize(const Font& face, int code) {
  const WindowContext screen(nullptr);
  const GdiObject<HFONT> font = MakeCharacterFont(screen.Get(), face);
  const Selection selection(screen.Get(), font ? font.get() : GetCurrentObject(screen.Get(), OBJ_FONT));
  const auto character = static_cast<char>(code);
  SIZE size = {};
  GetTextExtentPoint32A(screen.Get(), &character, 1, &size);
  return {size.cx, size.cy};
}

std::vector<std::string> ScreenFontNames() {
  const WindowContext screen(nullptr);
  std::vector<std::string> names;
  EnumFontFamiliesW(screen.Get(), nullptr, AddFont, reinterpret_cast<LPARAM>(&names));
  return names;
}

}  // namespace orx::win32
