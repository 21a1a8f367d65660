#include "maplibrary/model/LayerStack.h"

#include <utility>

#include "maplibrary/model/Errors.h"

namespace orx::maplibrary {

MapLayer& LayerStack::At(std::int32_t index) const {
  RequireIndex("layer", index, 1, Count());
  return *mLayers[static_cast<std::size_t>(index - 1)];
}

MapLayer& LayerStack::Add(std::unique_ptr<MapLayer> layer) {
  mLayers.push_back(std::move(layer));
  return *mLayers.back();
}

bool LayerStack::Remove(std::int32_t index) {
  RequireIndex("layer", index, 1, Count());
  const auto removed = mLayers.begin() + (index - 1);
  mRemoved.push_back(std::move(*removed));
  mLayers.erase(removed);
  return true;
}

bool LayerStack::MoveUp(std::int32_t index) {
  RequireIndex("layer", index, 1, Count());
  if (index == 1) return false;
  std::swap(mLayers[static_cast<std::size_t>(index - 1)], mLayers[static_cast<std::size_t>(index - 2)]);
  return true;
}

bool LayerStack::MoveDown(std::int32_t index) {
  RequireIndex("layer", index, 1, Count());
  return index < Count() && MoveUp(index + 1);
}

GroundRect LayerStack::Bounds() const {
  GroundRect bounds;
  for (const auto& layer : mLayers) bounds = Union(bounds, layer->Current());
  return bounds;
}

}  // namespace orx::maplibrary
