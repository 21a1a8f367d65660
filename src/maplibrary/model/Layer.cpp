#include "maplibrary/model/Layer.h"

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridData.h"
#include "maplibrary/model/LayerData.h"

namespace orx::maplibrary {

Layer::Layer(std::string name, std::string source, std::shared_ptr<const GridData> grid)
    : MapLayer(std::move(name), source), mData(std::move(source), std::move(grid)) {
}

std::unique_ptr<Layer> ReadLayer(const std::string& path, std::int64_t mostCells) {
  auto grid = std::make_shared<const GridData>(ReadGridFile(path, mostCells));
  return std::make_unique<Layer>(FileStem(path), path, std::move(grid));
}

}  // namespace orx::maplibrary
