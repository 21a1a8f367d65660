#include "maplibrary/drawing/DrawMap.h"

#include <algorithm>
#include <memory>

#include "maplibrary/drawing/DrawIsolines.h"
#include "maplibrary/drawing/DrawLegends.h"
#include "maplibrary/drawing/DrawPeaks.h"
#include "maplibrary/drawing/DrawShapes.h"
#include "maplibrary/drawing/MapView.h"
#include "maplibrary/drawing/PaintGrid.h"

namespace orx::maplibrary {

namespace {

constexpr Color kBackground = {232, 238, 241};

void DrawLayer(const MapLayer& layer, const MapView& view, const ValueRange& range, Canvas& canvas,
               Lettering& lettering) {
  auto image = std::make_shared<Image>(BlankImage({view.Pixels().Width, view.Pixels().Height}));
  for (const PlacedGrid& placed : layer.Grids()) PaintGrid(*image, view.Window(), placed, range);
  canvas.Draw(ImageMark{view.Pixels(), std::move(image)});
  for (const PlacedGrid& placed : layer.Grids()) DrawIsolines(placed, view, canvas, lettering);
}

}  // namespace

std::optional<ValueRange> VisibleRange(const Map& map) {
  std::optional<ValueRange> all;
  for (const auto& layer : map.Stack().All()) {
    if (!layer->Visible()) continue;
    for (const PlacedGrid& placed : layer->Grids()) {
      const std::optional<ValueRange> range = RangeOf(*placed.Grid);
      if (!range) continue;
      all = all ? ValueRange{std::min(all->Low, range->Low), std::max(all->High, range->High)} : *range;
    }
  }
  return all;
}

void DrawMap(const Map& map, Canvas& canvas, Size size, double pixelsPerPoint) {
  canvas.Clear();
  canvas.Draw(FillMark{{0, 0, size.Width, size.Height}, kBackground});
  const MapView view = ViewOf(map, size);
  const std::optional<ValueRange> range = VisibleRange(map);
  Lettering lettering(canvas, pixelsPerPoint);
  const auto& layers = map.Stack().All();
  if (!view.IsEmpty()) {
    for (const auto& layer : layers) {
      if (!layer->Visible()) continue;
      if (const auto* const shapes = dynamic_cast<const VectorLayer*>(layer.get())) {
        DrawShapes(*shapes, view, canvas, pixelsPerPoint);
      } else {
        DrawLayer(*layer, view, range.value_or(ValueRange()), canvas, lettering);
      }
    }
    for (const auto& layer : layers) {
      if (layer->Visible()) DrawPeaks(*layer, view, lettering);
    }
  }
  DrawLegends(map, range, canvas, size, lettering);
}

}  // namespace orx::maplibrary
