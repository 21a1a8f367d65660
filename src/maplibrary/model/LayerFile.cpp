#include "maplibrary/model/LayerFile.h"

#include <set>
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

/// The same for all paths that lead to one file, as far as the system tells.
fs::path Identity(const fs::path& file) {
  std::error_code error;
  const fs::path resolved = fs::weakly_canonical(file, error);
  return error ? file : resolved;
}

/// The grids that a list has named so far, and how many cells it may still name.
class ListedGrids {
 public:
  ListedGrids(const fs::path& list, std::int64_t mostCells) : mFolder(list.parent_path()), mCellsLeft(mostCells) {}

  /// The tile that a line stands for; null for a blank line, and for a grid that is a tile already.
  std::unique_ptr<Layer> TileOf(std::string_view line) {
    const std::string name(Trimmed(line));
    // A name that was given before need not be looked up, which takes long in a list of thousands.
    if (name.empty() || !mNames.insert(name).second) return nullptr;
    const fs::path file = mFolder / PathOf(name);
    if (!mFiles.insert(Identity(file)).second) return nullptr;
    auto tile = ReadLayer(Utf8(file), mCellsLeft);
    mCellsLeft -= static_cast<std::int64_t>(tile->Grid().Values.size());
    return tile;
  }

 private:
  fs::path mFolder;
  std::set<std::string> mNames;
  std::set<fs::path> mFiles;
  std::int64_t mCellsLeft;
};

std::unique_ptr<MapLayer> ReadList(const std::string& path, std::int64_t mostCells) {
  const fs::path list = PathOf(path);
  auto layer = std::make_unique<TiledLayer>(FileStem(path), path);
  ListedGrids grids(list, mostCells);
  std::istringstream lines(ReadText(list, kMaxListBytes));
  for (std::string line; std::getline(lines, line);)
    if (auto tile = grids.TileOf(line)) layer->AddTile(std::move(tile));
  if (layer->LayerCount() == 0) FailFile(list, "names no files. Write the path of a grid on each line.");
  return layer;
}

}  // namespace

std::unique_ptr<MapLayer> ReadLayerFile(const std::string& path, std::int64_t mostListCells) {
  const fs::path file = PathOf(path);
  const std::string extension = ExtensionOf(file);
  if (extension == ".SHP") return std::make_unique<VectorLayer>(FileStem(path), path, ReadShapeFile(file));
  if (extension == ".LST") return ReadList(path, mostListCells);
  if (IsGridFile(path)) return ReadLayer(path);
  FailFile(file, "unknown kind of file. Choose one with the extension .bil, .asc, .shp or .lst.");
}

}  // namespace orx::maplibrary
