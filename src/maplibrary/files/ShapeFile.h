// Reads vector data from ESRI shape files (.shp).
#pragma once

#include <filesystem>
#include <vector>

#include "maplibrary/files/Shape.h"

namespace orx::maplibrary {

/// The shapes of a file in their order, empty ones and parts without points left out; heights and measures are ignored.
/// Throws RunTimeError with the file and the reason: no such file, not readable, more than 512 MB, no shape file, a
/// record that does not fit. Memory is taken for no more than stands in the file.
std::vector<Shape> ReadShapeFile(const std::filesystem::path& path);

}  // namespace orx::maplibrary
