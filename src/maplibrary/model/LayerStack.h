// The ordered layers of a map or of a tiled layer, numbered from 1.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "maplibrary/model/MapLayer.h"

namespace orx::maplibrary {

/// Owns the layers. A removed layer stays alive, because an open dialog may still hold it, until ReleaseRemoved or the
/// end of the stack. An index outside the layers throws RunTimeError with number kErrorSubscript.
class LayerStack {
 public:
  std::int32_t Count() const { return static_cast<std::int32_t>(mLayers.size()); }
  MapLayer& At(std::int32_t index) const;
  /// Puts a layer behind the last one, where it is drawn on top.
  MapLayer& Add(std::unique_ptr<MapLayer> layer);
  bool Remove(std::int32_t index);
  /// Changes places with the layer before it; False for the first.
  bool MoveUp(std::int32_t index);
  /// Changes places with the layer behind it; False for the last.
  bool MoveDown(std::int32_t index);
  void ReleaseRemoved() { mRemoved.clear(); }

  const std::vector<std::unique_ptr<MapLayer>>& All() const { return mLayers; }
  /// Around all layers, the invisible ones too; empty when there is none.
  GroundRect Bounds() const;

 private:
  std::vector<std::unique_ptr<MapLayer>> mLayers;
  std::vector<std::unique_ptr<MapLayer>> mRemoved;
};

}  // namespace orx::maplibrary
