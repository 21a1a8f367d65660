// Draws the symbols and labels that mark the highest points of layers.
#pragma once

#include "maplibrary/drawing/MapLettering.h"
#include "maplibrary/drawing/MapView.h"
#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// The colour of all symbols.
inline constexpr Color kSymbolColor = {152, 28, 28};

/// What the label of a layer says about a value: name, value, or both.
std::string LabelText(const MapLayer& layer, double value);

/// Draws the peaks of a layer that lie in the view.
void DrawPeaks(const MapLayer& layer, const MapView& view, Lettering& lettering);

}  // namespace orx::maplibrary
