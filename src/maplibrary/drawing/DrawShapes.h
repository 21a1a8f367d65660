// Draws the shapes of vector layers: points as small squares, lines and the edges of areas.
#pragma once

#include "forms/Canvas.h"
#include "maplibrary/drawing/MapView.h"
#include "maplibrary/model/VectorLayer.h"

namespace orx::maplibrary {

/// What stands outside of the view is left out. `pixelsPerPoint` is the scale of the lines.
void DrawShapes(const VectorLayer& layer, const MapView& view, Canvas& canvas, double pixelsPerPoint);

}  // namespace orx::maplibrary
