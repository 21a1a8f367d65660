#include "examples/maphost/LargeContours.h"

#include <cmath>
#include <optional>

#include "maplibrary/drawing/Contours.h"

namespace maphost {
namespace {

using orx::maplibrary::GridData;

/// Where a cell of the area comes from; every other grid runs backwards.
std::int32_t Mirrored(std::int32_t at, std::int32_t size) {
  const std::int32_t inside = at % size;
  return at / size % 2 == 0 ? inside : size - 1 - inside;
}

GridData LaidOut(const GridData& grid, std::int32_t across) {
  GridData area = grid;
  area.Rows *= across;
  area.Columns *= across;
  area.Values.clear();
  area.Values.reserve(static_cast<std::size_t>(area.Rows) * static_cast<std::size_t>(area.Columns));
  for (std::int32_t row = 0; row < area.Rows; ++row)
    for (std::int32_t column = 0; column < area.Columns; ++column)
      area.Values.push_back(grid.At(Mirrored(row, grid.Rows), Mirrored(column, grid.Columns)));
  return area;
}

}  // namespace

LargeContours::LargeContours(const GridData& grid, std::int32_t across, double interval)
    : mArea(LaidOut(grid, across)), mInterval(interval) {
  const std::optional<orx::maplibrary::ValueRange> range = RangeOf(grid);
  if (!range) return;
  mLowest = std::ceil(range->Low / interval) * interval;
  mLevels = static_cast<std::int32_t>(std::floor((range->High - mLowest) / interval)) + 1;
}

void LargeContours::Next() {
  for (const orx::maplibrary::Contour& line : ContoursOf(mArea, NextLevel())) {
    ++mLines;
    mPoints += line.Points.size();
  }
  ++mDone;
}

}  // namespace maphost
