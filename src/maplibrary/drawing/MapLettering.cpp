#include "maplibrary/drawing/MapLettering.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace orx::maplibrary {

namespace {

/// Widths of the characters from ' ' to '~' in thousandths of the font size, in a narrow font.
constexpr std::array<std::int16_t, 95> kWidths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int kOtherWidth = 600;
/// Fonts that stand in for one that is not installed run wider. A label is better a little far from its symbol than on
/// top of it.
constexpr double kWideFactor = 1.13;
constexpr double kBoldFactor = 1.1;

int WidthAt(unsigned char byte) {
  const bool isContinued = (byte & 0xC0) == 0x80;
  if (isContinued) return 0;
  return byte >= ' ' && byte <= '~' ? kWidths[static_cast<std::size_t>(byte - ' ')] : kOtherWidth;
}

/// Marks hold whole pixels; what lies far outside any picture is brought near it.
int PixelOf(double value) {
  constexpr double kFar = 1e6;
  return static_cast<int>(std::lround(std::clamp(value, -kFar, kFar)));
}

}  // namespace

double Lettering::WidthOf(const std::string& text, const Font& font) const {
  double width = 0;
  for (const char c : text) width += WidthAt(static_cast<unsigned char>(c));
  return width / 1000 * Pixels(font.Size) * kWideFactor * (font.Bold ? kBoldFactor : 1.0);
}

void Lettering::Draw(const PixelPoint& center, const std::string& text, const Font& font, Color pen, double rotation) {
  mCanvas.Draw(TextMark{{PixelOf(center.X), PixelOf(center.Y)}, text, font, pen, rotation});
}

void Lettering::DrawHaloed(const PixelPoint& center, const std::string& text, const Font& font, Color pen,
                           double rotation) {
  constexpr Color kHalo = {255, 255, 255};
  for (int y = -1; y <= 1; ++y) {
    for (int x = -1; x <= 1; ++x) {
      if (x != 0 || y != 0) Draw({center.X + x, center.Y + y}, text, font, kHalo, rotation);
    }
  }
  Draw(center, text, font, pen, rotation);
}

std::string ValueText(double value) {
  const double hundreds = std::round(value * 100) / 100;
  const double shown = std::isfinite(hundreds) ? hundreds : value;
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, shown == 0 ? 0.0 : shown).ptr;
  return std::string(digits, end);
}

}  // namespace orx::maplibrary
