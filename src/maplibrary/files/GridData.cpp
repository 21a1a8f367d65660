#include "maplibrary/files/GridData.h"

#include <algorithm>
#include <cmath>

namespace orx::maplibrary {

GroundRect GridData::Edges() const {
  const double left = UpperLeft.X - CellWidth / 2;
  const double top = UpperLeft.Y + CellHeight / 2;
  return {left, left + CellWidth * Columns, top - CellHeight * Rows, top};
}

GroundPoint GridData::CenterOf(const GridCell& cell) const {
  return {UpperLeft.X + cell.Column * CellWidth, UpperLeft.Y - cell.Row * CellHeight};
}

std::optional<ValueRange> RangeOf(const GridData& grid) {
  std::optional<ValueRange> range;
  for (const double value : grid.Values) {
    if (std::isnan(value)) continue;
    if (!range) range = ValueRange{value, value};
    range->Low = std::min(range->Low, value);
    range->High = std::max(range->High, value);
  }
  return range;
}

std::optional<GridCell> HighestCell(const GridData& grid) {
  std::optional<std::size_t> best;
  for (std::size_t i = 0; i < grid.Values.size(); ++i) {
    if (std::isnan(grid.Values[i])) continue;
    if (!best || grid.Values[i] > grid.Values[*best]) best = i;
  }
  if (!best) return std::nullopt;
  const auto columns = static_cast<std::size_t>(grid.Columns);
  return GridCell{static_cast<std::int32_t>(*best / columns), static_cast<std::int32_t>(*best % columns)};
}

GridData PartOf(const GridData& grid, const GridCell& first, std::int32_t rows, std::int32_t columns) {
  GridData part = {rows, columns, grid.CellWidth, grid.CellHeight, grid.CenterOf(first), grid.NoData, {}};
  part.Values.reserve(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
  for (std::int32_t row = first.Row; row < first.Row + rows; ++row) {
    const double* from = grid.Values.data() + static_cast<std::ptrdiff_t>(row) * grid.Columns + first.Column;
    part.Values.insert(part.Values.end(), from, from + columns);
  }
  return part;
}

}  // namespace orx::maplibrary
