#include "maplibrary/model/LayerFile.h"

#include <sstream>

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridFile.h"
#include "maplibrary/files/ShapeFile.h"
#include "maplibrary/model/Layer.h"
#include "maplibrary/model/TiledLayer.h"
#include "maplibrary/model/VectorLayer.h"
#include "text/Paths.h"
#include "text/Trimmed.h"

namespace orx::maplibrary {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kMaxListBytes = 1 << 20;

std::unique_ptr<MapLayer> ReadList(const std::string& path) {
  const fs::path list = PathOf(path);
  auto layer = std::make_unique<TiledLayer>(FileStem(path), path);
  std::istringstream lines(ReadText(list, kMaxListBytes));
  for (std::string line; std::getline(lines, line);) {
    const std::string name(Trimmed(line));
    if (!name.empty()) layer->AddTile(ReadLayer(Utf8(list.parent_path() / PathOf(name))));
  }
  if (layer->LayerCount() == 0) FailFile(list, "names no files. Write the path of a grid on each line.");
  return layer;
}

}  // namespace

std::unique_ptr<MapLayer> ReadLayerFile(const std::string& path) {
  const fs::path file = PathOf(path);
  const std::string extension = ExtensionOf(file);
  if (extension == ".SHP") return std::make_unique<VectorLayer>(FileStem(path), path, ReadShapeFile(file));
  if (extension == ".LST") return ReadList(path);
  if (IsGridFile(path)) return ReadLayer(path);
  FailFile(file, "unknown kind of file. Choose one with the extension .bil, .asc, .shp or .lst.");
}

}  // namespace orx::maplibrary
