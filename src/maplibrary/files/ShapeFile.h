// Reads vector data from ESRI shape files (.shp).
#pragma once

#include <filesystem>
#include <vector>

#include "maplibrary/files/Shape.h"

namespace orx::maplibrary {

/// The shapes of a file in their order, empty ones left out; heights and measures are passed over. Throws RunTimeError
/// with the file and the reason: no such file, not readable, no shape file, a record that does not fit.
std::vector<Shape> ReadShapeFile(const std::filesystem::path& path);

}  // namespace orx::maplibrary
