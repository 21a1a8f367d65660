// The readers of the single file formats; ReadGridFile chooses between them and says what they have in common.
#pragma once

#include <cstdint>
#include <filesystem>

#include "maplibrary/files/GridData.h"

namespace orx::maplibrary {

/// ESRI .bil with its header of the same name beside it. Sizes and places that the header leaves out have the format's
/// own defaults; unknown fields are ignored. Throws RunTimeError.
GridData ReadBil(const std::filesystem::path& path, std::int64_t mostCells);

/// ESRI ASCII grid. Without NODATA_VALUE, -9999 stands for no value. Throws RunTimeError.
GridData ReadAsc(const std::filesystem::path& path, std::int64_t mostCells);

}  // namespace orx::maplibrary
