// A grid of measured values, such as elevations, and where it stands on the ground.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "maplibrary/files/GroundRect.h"

namespace orx::maplibrary {

/// The smallest and the largest value of a grid.
struct ValueRange {
  double Low = 0;
  double High = 0;
  bool operator==(const ValueRange&) const = default;
};

/// A cell of a grid by row and column, counted from 0 at the upper left.
struct GridCell {
  std::int32_t Row = 0;
  std::int32_t Column = 0;
  bool operator==(const GridCell&) const = default;
};

/// Rows of cells from the north, each from the west. Lengths are in the unit of the ground (degrees for the elevation
/// data that comes with the library), values in the unit of what was measured (metres).
struct GridData {
  std::int32_t Rows = 0;
  std::int32_t Columns = 0;
  /// Width and height of a cell, more than 0.
  double CellWidth = 1;
  double CellHeight = 1;
  /// The centre of the upper left cell, not its corner.
  GroundPoint UpperLeft;
  /// The value that stood for "no value" in the file, kept for display. The cells themselves hold NaN instead of it.
  std::optional<double> NoData;
  /// Rows * Columns values.
  std::vector<double> Values;

  double At(std::int32_t row, std::int32_t column) const {
    return Values[static_cast<std::size_t>(row) * static_cast<std::size_t>(Columns) + static_cast<std::size_t>(column)];
  }
  /// The outer edges of the outermost cells.
  GroundRect Edges() const;
  GroundPoint CenterOf(const GridCell& cell) const;
};

/// The limits of a grid's values; none when no cell has a value.
std::optional<ValueRange> RangeOf(const GridData& grid);

/// The cell with the largest value, the first one of several; none when no cell has a value.
std::optional<GridCell> HighestCell(const GridData& grid);

/// A part of a grid: `rows` x `columns` cells from `first` on, which must lie in the grid.
GridData PartOf(const GridData& grid, const GridCell& first, std::int32_t rows, std::int32_t columns);

}  // namespace orx::maplibrary
