#include "desktops/win32/Fonts.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

constexpr double kLeastPoints = 9;
constexpr double kPointsPerInch = 72;

LOGFONTW MessageFont() {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  return metrics.lfMessageFont;
}

/// The height that CreateFont takes for a size in points: that of the letters, without the space above them.
LONG HeightOf(double points) {
  return -std::lround(points * SystemDpi() / kPointsPerInch);
}

double PointsOf(const LOGFONTW& font) {
  return std::abs(static_cast<double>(font.lfHeight)) * kPointsPerInch / SystemDpi();
}

}  // namespace

GdiObject<HFONT> MakeDialogFont() {
  LOGFONTW font = MessageFont();
  font.lfHeight = std::min(font.lfHeight < 0 ? font.lfHeight : -font.lfHeight, HeightOf(kLeastPoints));
  return GdiObject<HFONT>(CreateFontIndirectW(&font));
}

double DialogFontPoints() {
  return std::max(kLeastPoints, PointsOf(MessageFont()));
}

GdiObject<HFONT> MakeFont(const Font& face, double rotation) {
  LOGFONTW font = MessageFont();
  if (!face.Name.empty()) {
    font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    Widened(face.Name).copy(font.lfFaceName, LF_FACESIZE - 1);
  }
  font.lfHeight = HeightOf(face.Size);
  font.lfWidth = 0;
  font.lfEscapement = font.lfOrientation = std::lround(rotation * 10);
  font.lfWeight = face.Bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = face.Italic;
  font.lfUnderline = face.Underline;
  font.lfStrikeOut = face.Strikethrough;
  return GdiObject<HFONT>(CreateFontIndirectW(&font));
}

}  // namespace orx::win32
