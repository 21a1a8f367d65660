// The contour lines of grids on a map, with their labels.
#pragma once

#include "maplibrary/drawing/MapLettering.h"
#include "maplibrary/drawing/MapView.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Layer.h"

namespace orx::maplibrary {

/// The values at which a layer has contour lines: every n-th limit between its classes, n being the range step. With a
/// very large number of classes the step grows until there are 256 values at most.
std::vector<double> IsolineLevels(const LayerData& data);

/// Draws lines and labels as the layer's settings say; `canvas` is what the lettering draws on.
void DrawIsolines(const PlacedGrid& placed, const MapView& view, Canvas& canvas, Lettering& lettering);

}  // namespace orx::maplibrary
