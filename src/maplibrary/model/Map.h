// The embedded map: layers in memory with an extent and legends, for hosts that have no map library of their own.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/Event.h"
#include "hostobjects/HostObject.h"
#include "hostobjects/IMap.h"
#include "maplibrary/model/LayerStack.h"
#include "maplibrary/model/Legend.h"
#include "maplibrary/model/PlacedExtent.h"

namespace orx::maplibrary {

/// The extent of a map is the window on the ground that is shown: around all layers until a side is set.
class Map : public HostObject, public IMap, public ILegends, private PlacedExtent {
 public:
  /// A map without layers, with an elevation legend (bottom right) and a layer legend (top left).
  explicit Map(std::string name = {});

  /// The map is an extent too, but for dialogs only: for others its members are those of a map.
  HostInterface* ViewFor(const std::type_info& wanted) override;

  std::int32_t LayerCount() override { return mLayers.Count(); }
  std::string LayerName(std::int32_t index) override { return mLayers.At(index).Name(); }
  MapLayer* Layer(std::int32_t index) override { return &mLayers.At(index); }
  /// Reads a file as ReadLayerFile does.
  MapLayer* AddLayer(const std::string& path, const std::string& options) override;
  bool RemoveLayer(std::int32_t index) override { return Told(mLayers.Remove(index)); }
  bool MoveLayerUp(std::int32_t index) override { return Told(mLayers.MoveUp(index)); }
  bool MoveLayerDown(std::int32_t index) override { return Told(mLayers.MoveDown(index)); }
  PlacedExtent* Extent() override { return this; }

  std::int32_t LegendCount() override { return static_cast<std::int32_t>(mLegends.size()); }
  maplibrary::Legend& Legend(std::int32_t index) override;
  maplibrary::Legend& AddLegend(LegendKind kind, const std::string& title, LegendCorner corner);

  /// Raised when a layer was added from a file, removed or moved, so that who shows the map can draw it anew.
  Event<> Changed;

  std::string Name() const { return mName; }
  void Name(const std::string& value) { mName = value; }
  MapLayer& AddLayer(std::unique_ptr<MapLayer> layer) { return mLayers.Add(std::move(layer)); }
  const LayerStack& Stack() const { return mLayers; }
  LayerStack& Stack() { return mLayers; }
  const PlacedExtent& Window() const { return *this; }
  const std::vector<std::unique_ptr<maplibrary::Legend>>& Legends() const { return mLegends; }

 protected:
  GroundRect Natural() const override { return mLayers.Bounds(); }

 private:
  bool Told(bool isDone) const {
    if (isDone) Changed.Raise();
    return isDone;
  }

  std::string mName;
  LayerStack mLayers;
  std::vector<std::unique_ptr<maplibrary::Legend>> mLegends;
};

/// The layers of a map as an object of their own, named like the map.
class Layers : public HostObject, public ILayers {
 public:
  /// The map must outlive the collection.
  explicit Layers(maplibrary::Map& map) : mMap(map) {}

  std::string Name() override { return mMap.Name(); }
  maplibrary::Map* Map() override { return &mMap; }

 private:
  maplibrary::Map& mMap;
};

}  // namespace orx::maplibrary
