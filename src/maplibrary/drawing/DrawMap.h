// Draws a map as marks on a canvas.
#pragma once

#include <optional>

#include "forms/Canvas.h"
#include "forms/Geometry.h"
#include "maplibrary/model/Map.h"

namespace orx::maplibrary {

struct ValueRange;

/// Clears the canvas and draws the map into `size` pixels: background, visible layers from the first to the last with
/// one image each, then symbols, labels and legends. `pixelsPerPoint` is the scale of fonts, 96/72 at 96 dots per inch.
void DrawMap(const Map& map, Canvas& canvas, Size size, double pixelsPerPoint = 96.0 / 72.0);

/// The range of values over all visible layers, which the colours reach over; none when nothing is visible.
std::optional<ValueRange> VisibleRange(const Map& map);

}  // namespace orx::maplibrary
