#include "maplibrary/drawing/DrawLegends.h"

#include <algorithm>
#include <map>
#include <memory>

#include "maplibrary/drawing/DrawPeaks.h"
#include "maplibrary/drawing/LegendDrawing.h"
#include "maplibrary/drawing/ValueLegend.h"
#include "maplibrary/model/Layer.h"
#include "text/CharacterText.h"

namespace orx::maplibrary {

namespace {

constexpr int kMargin = 10;

/// The layer whose colours are explained: the topmost visible one that has data.
const Layer* TopmostData(const Map& map) {
  const Layer* topmost = nullptr;
  for (const auto& layer : map.Stack().All())
    if (const auto* const data = dynamic_cast<const Layer*>(layer.get()); data && layer->Visible()) topmost = data;
  return topmost;
}

/// The names of the visible layers, each behind its symbol.
class LayersDrawing : public LegendDrawing {
 public:
  LayersDrawing(const Legend& legend, const Map& map, Canvas& canvas, Lettering& lettering)
      : LegendDrawing(legend, canvas, lettering) {
    for (const auto& layer : map.Stack().All()) {
      if (layer->Visible()) mLayers.push_back(layer.get());
    }
  }

  bool IsEmpty() const override { return mLayers.empty(); }

 protected:
  Size MeasureBody() const override {
    double widest = 0;
    for (const MapLayer* layer : mLayers) widest = std::max(widest, mLettering.WidthOf(layer->Name(), mFont));
    return {mRow + kLegendSpace + Ceiled(widest), mRow * static_cast<int>(mLayers.size())};
  }
  void DrawBody(const Point& start) override {
    Point row = start;
    for (const MapLayer* layer : mLayers) {
      DrawSymbol({row.X + mRow / 2.0, row.Y + mRow / 2.0}, *layer);
      if (!layer->Name().empty()) DrawText({row.X + mRow + kLegendSpace, row.Y}, layer->Name(), mFont);
      row.Y += mRow;
    }
  }

 private:
  /// As on the map, but no larger than its row.
  void DrawSymbol(const PixelPoint& center, const MapLayer& layer) {
    const std::string text = CharacterText(layer.SymbolCharacter());
    if (text.empty() || layer.SymbolSize() <= 0) return;
    const Font font = {.Name = layer.SymbolFont(), .Size = std::min(layer.SymbolSize(), mLegend.TextSize() * 1.2)};
    DrawCentered(center, text, font, kSymbolColor, layer.SymbolRotation());
  }

  std::vector<const MapLayer*> mLayers;
};

std::unique_ptr<LegendDrawing> DrawingOf(const Legend& legend, const Map& map, const std::optional<ValueRange>& range,
                                         Canvas& canvas, Lettering& lettering) {
  if (legend.Explains() == LegendKind::Elevation) {
    return MakeValueLegend(legend, TopmostData(map), range, canvas, lettering);
  }
  return std::make_unique<LayersDrawing>(legend, map, canvas, lettering);
}

/// The place of a legend in its corner, `used` pixels of which are taken already.
Rect PlaceIn(LegendCorner corner, Size legend, Size picture, int used) {
  const bool right = corner == LegendCorner::TopRight || corner == LegendCorner::BottomRight;
  const bool bottom = corner == LegendCorner::BottomLeft || corner == LegendCorner::BottomRight;
  const int left = right ? picture.Width - kMargin - legend.Width : kMargin;
  const int top = bottom ? picture.Height - kMargin - used - legend.Height : kMargin + used;
  return {left, top, legend.Width, legend.Height};
}

}  // namespace

void DrawLegends(const Map& map, const std::optional<ValueRange>& range, Canvas& canvas, Size size,
                 Lettering& lettering) {
  std::map<LegendCorner, int> used;
  for (const auto& legend : map.Legends()) {
    if (!legend->Visible() || legend->TextSize() <= 0) continue;
    const auto drawing = DrawingOf(*legend, map, range, canvas, lettering);
    if (drawing->IsEmpty()) continue;
    const Size measured = drawing->Measure();
    drawing->Draw(PlaceIn(legend->Corner(), measured, size, used[legend->Corner()]));
    used[legend->Corner()] += measured.Height + kMargin;
  }
}

}  // namespace orx::maplibrary
