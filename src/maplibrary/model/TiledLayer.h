// A layer of the embedded map that is itself a map of tiles, each a layer of its own.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Layer.h"
#include "maplibrary/model/LayerData.h"
#include "maplibrary/model/LayerStack.h"

namespace orx::maplibrary {

/// Its extent surrounds the tiles until a side is set; then all tiles are moved and stretched together with it. Each
/// visible tile marks its own highest point, the layer that of all its visible tiles.
class TiledLayer : public MapLayer, public IMap {
 public:
  TiledLayer(std::string name, std::string source) : MapLayer(std::move(name), std::move(source)) {}

  std::vector<PlacedGrid> Grids() const override;
  std::vector<MarkedPeak> MarkedPeaks() const override;

  std::int32_t LayerCount() override { return mTiles.Count(); }
  std::string LayerName(std::int32_t index) override { return mTiles.At(index).Name(); }
  MapLayer* Layer(std::int32_t index) override { return &mTiles.At(index); }
  /// Reads a further tile.
  MapLayer* AddLayer(const std::string& path, const std::string& options) override;
  bool RemoveLayer(std::int32_t index) override { return mTiles.Remove(index); }
  bool MoveLayerUp(std::int32_t index) override { return mTiles.MoveUp(index); }
  bool MoveLayerDown(std::int32_t index) override { return mTiles.MoveDown(index); }
  IExtent* Extent() override { return this; }

  MapLayer& AddTile(std::unique_ptr<maplibrary::Layer> tile) { return mTiles.Add(std::move(tile)); }
  const LayerStack& Tiles() const { return mTiles; }
  LayerStack& Tiles() { return mTiles; }
  /// Where a point or rectangle in the tiles' own coordinates stands on the map.
  GroundPoint OnMap(const GroundPoint& point) const;
  GroundRect OnMap(const GroundRect& rect) const;
  /// The rectangle, in the tiles' own coordinates, that the layer's extent shows.
  GroundRect Frame() const { return IsPlaced() ? mFrame : mTiles.Bounds(); }

 protected:
  GroundRect Natural() const override { return mTiles.Bounds(); }
  void BeforePlacing() override { mFrame = mTiles.Bounds(); }

 private:
  LayerStack mTiles;
  GroundRect mFrame;
};

/// Cuts a grid into its north-west, north-east, south-west and south-east quarters, a tile each, named so. The grid
/// needs two rows and two columns at least, else RunTimeError.
std::unique_ptr<TiledLayer> MakeQuarters(std::string name, std::string source, const GridData& grid);

}  // namespace orx::maplibrary
