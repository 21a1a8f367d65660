#include "maplibrary/model/SampleMap.h"

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/files/GridFile.h"
#include "maplibrary/model/Layer.h"
#include "maplibrary/model/LayerData.h"
#include "maplibrary/model/TiledLayer.h"

namespace orx::maplibrary {

std::unique_ptr<Map> MakeSampleMap(const std::string& path) {
  const auto grid = std::make_shared<const GridData>(ReadGridFile(path));
  auto map = std::make_unique<Map>(FileStem(path));
  map->Legend(0).Title("Elevation (m)");
  // The label of the whole terrain keeps clear of the tile labels, which stand on the right.
  map->AddLayer(std::make_unique<Layer>("Terrain", path, grid)).Position(LabelPosition::Left);
  auto quarters = MakeQuarters("Quarters", path, *grid);
  // The tiles name their own peaks; a larger symbol without a label shows which of them is the highest.
  for (const auto& tile : quarters->Tiles().All()) tile->Content(LabelContent::NameAndValue);
  quarters->ShowLabels(false);
  quarters->SymbolSize(16);
  quarters->Visible(false);
  map->AddLayer(std::move(quarters));
  return map;
}

}  // namespace orx::maplibrary
