// Reads grids from files: ESRI band interleaved by line with its header file, and ESRI ASCII.
#pragma once

#include <cstdint>
#include <string>

#include "maplibrary/files/GridData.h"

namespace orx::maplibrary {

/// The largest grid that is read: rows or columns, and cells in all.
inline constexpr std::int32_t kMaxGridSide = 100000;
inline constexpr std::int64_t kMaxGridCells = 50'000'000;

/// Reads a grid by the extension of its file, .bil (with a .hdr beside it) or .asc, in any case. `path` is UTF-8.
/// Throws RunTimeError with the file, the field and the reason: no such file, not readable, not a grid, larger than
/// `mostCells`. Memory is taken for no more than the file is long enough for.
GridData ReadGridFile(const std::string& path, std::int64_t mostCells = kMaxGridCells);

/// Whether the file's extension is one that ReadGridFile knows. The file need not exist.
bool IsGridFile(const std::string& path);

}  // namespace orx::maplibrary
