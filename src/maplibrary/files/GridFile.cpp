#include "maplibrary/files/GridFile.h"

#include <algorithm>

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridReaders.h"
#include "text/Paths.h"

namespace orx::maplibrary {

bool IsGridFile(const std::string& path) {
  const std::string extension = ExtensionOf(PathOf(path));
  return extension == ".BIL" || extension == ".ASC";
}

GridData ReadGridFile(const std::string& path, std::int64_t mostCells) {
  const std::filesystem::path file = PathOf(path);
  const std::string extension = ExtensionOf(file);
  if (extension == ".BIL") return ReadBil(file, std::min(mostCells, kMaxGridCells));
  if (extension == ".ASC") return ReadAsc(file, std::min(mostCells, kMaxGridCells));
  FailFile(file, "unknown kind of file. Choose a grid with the extension .bil or .asc.");
}

}  // namespace orx::maplibrary
