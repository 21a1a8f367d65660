// Layers from files, by the extension of the file.
#pragma once

#include <memory>
#include <string>

#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// Reads a layer that is named after its file: grids (.bil, .asc), shapes (.shp), and lists of grid files (.lst), one
/// path a line, relative to the list, which become the tiles of one layer; extensions in any case, `path` in UTF-8.
/// Throws RunTimeError with the file and the reason.
std::unique_ptr<MapLayer> ReadLayerFile(const std::string& path);

}  // namespace orx::maplibrary
