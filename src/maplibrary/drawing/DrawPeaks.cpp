#include "maplibrary/drawing/DrawPeaks.h"

#include <cmath>
#include <numbers>

#include "text/CharacterText.h"

namespace orx::maplibrary {

namespace {

constexpr double kGap = 2;

/// Half the width and height of the upright rectangle around a turned text.
PixelPoint HalfExtent(double width, double height, double rotation) {
  const double angle = std::remainder(rotation, 360.0) * std::numbers::pi / 180;
  const double cosine = std::abs(std::cos(angle));
  const double sine = std::abs(std::sin(angle));
  return {(width * cosine + height * sine) / 2, (width * sine + height * cosine) / 2};
}

PixelPoint LabelCenter(const PixelPoint& symbol, double symbolSize, const PixelPoint& half, LabelPosition position) {
  const double x = symbolSize / 2 + kGap + half.X;
  const double y = symbolSize / 2 + half.Y;
  switch (position) {
    case LabelPosition::Above:
      return {symbol.X, symbol.Y - y};
    case LabelPosition::Below:
      return {symbol.X, symbol.Y + y};
    case LabelPosition::Left:
      return {symbol.X - x, symbol.Y};
    case LabelPosition::Right:
      return {symbol.X + x, symbol.Y};
    case LabelPosition::Center:
      break;
  }
  return symbol;
}

void DrawLabel(const MapLayer& layer, double value, const PixelPoint& symbol, Lettering& lettering) {
  const std::string text = LabelText(layer, value);
  const Font font = layer.LabelFont();
  if (text.empty() || font.Size <= 0) return;
  const PixelPoint half = HalfExtent(lettering.WidthOf(text, font), lettering.HeightOf(font), layer.LabelRotation());
  const PixelPoint center = LabelCenter(symbol, lettering.Pixels(layer.SymbolSize()), half, layer.Position());
  lettering.DrawHaloed(center, text, font, layer.LabelColor(), layer.LabelRotation());
}

}  // namespace

std::string LabelText(const MapLayer& layer, double value) {
  switch (layer.Content()) {
    case LabelContent::Name:
      return layer.Name();
    case LabelContent::NameAndValue:
      return layer.Name() + (layer.Name().empty() ? "" : " ") + ValueText(value);
    case LabelContent::Value:
      break;
  }
  return ValueText(value);
}

void DrawPeaks(const MapLayer& layer, const MapView& view, Lettering& lettering) {
  for (const MarkedPeak& peak : layer.MarkedPeaks()) {
    if (!view.Contains(peak.At.Place)) continue;
    const MapLayer& marker = *peak.Marker;
    const PixelPoint place = view.ToPixel(peak.At.Place);
    const std::string symbol = CharacterText(marker.SymbolCharacter());
    if (marker.SymbolSize() > 0 && !symbol.empty()) {
      const Font font = {.Name = marker.SymbolFont(), .Size = marker.SymbolSize()};
      lettering.DrawHaloed(place, symbol, font, kSymbolColor, marker.SymbolRotation());
    }
    if (marker.ShowLabels()) DrawLabel(marker, peak.At.Value, place, lettering);
  }
}

}  // namespace orx::maplibrary
