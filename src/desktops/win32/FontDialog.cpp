#include "desktops/win32/FontDialog.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <cmath>

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Owners.h"
#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/Text.h"
#include "forms/Requests.h"

namespace orx::win32 {
namespace {

constexpr double kDotsPerPoint = 1 / 72.0;
/// The platform gives the size of the chosen font in tenths of a point.
constexpr double kTenths = 10;

LOGFONTW ToNative(const Font& face) {
  LOGFONTW font = {};
  font.lfHeight = -static_cast<LONG>(std::lround(face.Size * SystemDpi() * kDotsPerPoint));
  font.lfWeight = face.Bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = face.Italic;
  font.lfUnderline = face.Underline;
  font.lfStrikeOut = face.Strikethrough;
  font.lfCharSet = DEFAULT_CHARSET;
  const std::wstring name = Widened(face.Name);
  std::copy_n(name.begin(), std::min(name.size(), std::size_t{LF_FACESIZE - 1}), font.lfFaceName);
  return font;
}

}  // namespace

bool RunFontDialog(FontRequest& request, const std::function<void()>& running) {
  LOGFONTW font = ToNative(request.Chosen.Face);
  const LOGFONTW given = font;
  const orx::Color color = request.Chosen.Color;
  CHOOSEFONTW native = {};
  native.lStructSize = sizeof(native);
  native.hwndOwner = ModalOwner(request.OwnerHandle);
  native.lpLogFont = &font;
  native.rgbColors = RGB(color.Red, color.Green, color.Blue);
  // Printers no longer have fonts of their own, and asking for these requires a printer.
  native.Flags = (request.Flags & CF_SCREENFONTS) | CF_INITTOLOGFONTSTRUCT | CF_EFFECTS;
  bool chosen = false;
  RunPlatformDialog(native.hwndOwner, running, IDCANCEL, [&] { chosen = ChooseFontW(&native) != FALSE; });
  if (!chosen) return false;
  Font& face = request.Chosen.Face;
  // When the dialog does not list the font that it was given, none is selected until the user picks one.
  if (font.lfFaceName[0] != L'\0') face.Name = Narrowed(font.lfFaceName);
  // The height is in whole pixels; a size that was not changed keeps its fraction.
  if (font.lfHeight != given.lfHeight) face.Size = native.iPointSize / kTenths;
  face.Bold = font.lfWeight >= FW_SEMIBOLD;
  face.Italic = font.lfItalic != 0;
  face.Underline = font.lfUnderline != 0;
  face.Strikethrough = font.lfStrikeOut != 0;
  request.Chosen.Color = {GetRValue(native.rgbColors), GetGValue(native.rgbColors), GetBValue(native.rgbColors)};
  return true;
}

}  // namespace orx::win32
