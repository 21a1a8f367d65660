// Layers from files, by the extension of the file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// The most cells that the grids of a list hold together.
inline constexpr std::int64_t kMaxListCells = 100'000'000;

/// Reads a layer that is named after its file: grids (.bil, .asc), shapes (.shp), and lists of grid files (.lst), one
/// path a line, relative to the list, which become the tiles of one layer; extensions in any case, `path` in UTF-8.
/// A grid that a list names several times is one tile, and a list names no other kind of file, so no lists either.
/// Throws RunTimeError with the file and the reason; a list of more than 1 MB or of more than `mostListCells` is too
/// large.
std::unique_ptr<MapLayer> ReadLayerFile(const std::string& path, std::int64_t mostListCells = kMaxListCells);

}  // namespace orx::maplibrary
