// Small grids and maps for tests, made in memory.
#pragma once

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Layer.h"
#include "maplibrary/model/Map.h"
#include "maplibrary/model/TiledLayer.h"

namespace orx::maplibrary {

inline constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// Cells of one unit, the lower left corner at 0, 0.
inline GridData SmallGrid(std::int32_t rows, std::int32_t columns, std::vector<double> values) {
  return {rows, columns, 1, 1, {0.5, rows - 0.5}, {}, std::move(values)};
}

inline std::unique_ptr<Layer> SmallLayer(const std::string& name, GridData grid) {
  return std::make_unique<Layer>(name, "", std::make_shared<const GridData>(std::move(grid)));
}

/// Layers "A" (2 x 2 cells with the values 1 to 4), "B" (one cell, value 9) and "Tiles", four tiles of 1 x 1 cell.
inline std::unique_ptr<Map> SmallMap() {
  auto map = std::make_unique<Map>("Small");
  map->AddLayer(SmallLayer("A", SmallGrid(2, 2, {1, 2, 3, 4})));
  map->AddLayer(SmallLayer("B", SmallGrid(1, 1, {9})));
  map->AddLayer(MakeQuarters("Tiles", "", SmallGrid(2, 2, {10, 20, 40, 30})));
  return map;
}

}  // namespace orx::maplibrary
