// Draws the legends of a map into its corners.
#pragma once

#include <optional>

#include "forms/Canvas.h"
#include "maplibrary/drawing/MapLettering.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Map.h"

namespace orx::maplibrary {

/// Draws the visible legends; those of one corner stand one after the other towards the middle. A legend that has
/// nothing to explain (no visible layer, no range) is left out.
void DrawLegends(const Map& map, const std::optional<ValueRange>& range, Canvas& canvas, Size size,
                 Lettering& lettering);

}  // namespace orx::maplibrary
