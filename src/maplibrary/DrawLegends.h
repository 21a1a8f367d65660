// Draws the legends of a map into its corners.
#pragma once

#include <optional>

#include "forms/Canvas.h"
#include "maplibrary/GridData.h"
#include "maplibrary/Map.h"
#include "maplibrary/MapLettering.h"

namespace orx::maplibrary {

/// Draws the visible legends; those of one corner stand one after the other towards the middle. A legend that has
/// nothing to explain (no visible layer, no range) is left out.
void DrawLegends(const Map& map, const std::optional<ValueRange>& range, Canvas& canvas, Size size,
                 Lettering& lettering);

}  // namespace orx::maplibrary
