#include "maplibrary/model/Map.h"

#include "maplibrary/model/Errors.h"
#include "maplibrary/model/LayerFile.h"

namespace orx::maplibrary {

Map::Map(std::string name) : mName(std::move(name)) {
  AddLegend(LegendKind::Elevation, "Elevation", LegendCorner::BottomRight);
  AddLegend(LegendKind::Layers, "Layers", LegendCorner::TopLeft);
}

HostInterface* Map::ViewFor(const std::type_info& wanted) {
  return wanted == typeid(IExtent) ? Extent() : nullptr;
}

MapLayer* Map::AddLayer(const std::string& path, const std::string&) {
  MapLayer& added = AddLayer(ReadLayerFile(path));
  Changed.Raise();
  return &added;
}

maplibrary::Legend& Map::Legend(std::int32_t index) {
  RequireIndex("legend", index, 0, LegendCount() - 1);
  return *mLegends[static_cast<std::size_t>(index)];
}

maplibrary::Legend& Map::AddLegend(LegendKind kind, const std::string& title, LegendCorner corner) {
  mLegends.push_back(std::make_unique<maplibrary::Legend>(kind, title, corner));
  return *mLegends.back();
}

}  // namespace orx::maplibrary
