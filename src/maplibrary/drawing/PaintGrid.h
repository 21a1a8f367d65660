// Paints grids into images in the colours of their elevations.
#pragma once

#include "forms/Canvas.h"
#include "forms/Geometry.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// How the value between cell centres is found: that of the cell, or blended from the four nearest centres.
enum class Sampling { Nearest, Blended };

/// A wholly transparent image; one without pixels when a side is not more than 0.
Image BlankImage(Size size);

/// Paints a grid over an image whose edges are the sides of `window`. Pixels outside the grid's place and on cells
/// without value stay as they are.
void PaintGrid(Image& image, const GroundRect& window, const PlacedGrid& placed, const ValueRange& range,
               Sampling sampling = Sampling::Blended);

}  // namespace orx::maplibrary
