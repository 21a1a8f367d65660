// A layer of the embedded map that shows one grid.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "maplibrary/files/GridData.h"
#include "maplibrary/files/GridFile.h"
#include "maplibrary/model/LayerData.h"
#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// Its extent is that of the grid until a side is set. Its source is the file of its data.
class Layer : public MapLayer {
 public:
  /// `source` is the file that the grid came from, empty for none. `grid` must not be null.
  Layer(std::string name, std::string source, std::shared_ptr<const GridData> grid);

  const GridData& Grid() const { return *mData.Grid(); }
  std::vector<PlacedGrid> Grids() const override { return {{mData.Grid(), Current(), &mData}}; }
  std::string Source() const override { return mData.File(); }
  LayerData* Data() override { return &mData; }
  const LayerData& Data() const { return mData; }

 protected:
  GroundRect Natural() const override { return Grid().Edges(); }

 private:
  LayerData mData;
};

/// Reads a grid file of at most `mostCells` into a layer that is named after the file. Throws RunTimeError as
/// ReadGridFile does.
std::unique_ptr<Layer> ReadLayer(const std::string& path, std::int64_t mostCells = kMaxGridCells);

}  // namespace orx::maplibrary
