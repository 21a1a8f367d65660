// The parts of lines that a picture shows, so that what lies far beside it costs nothing and is drawn nowhere.
#pragma once

#include <vector>

#include "maplibrary/drawing/MapView.h"

namespace orx::maplibrary {

/// The pieces of a line from point to point that lie in the frame, in order; a line wholly inside is one piece.
std::vector<std::vector<PixelPoint>> ClippedLine(const std::vector<PixelPoint>& line, const Rect& frame);

}  // namespace orx::maplibrary
