// The demo host: opens a grid file as a map, with every dialog one click away.
#include <iostream>
#include <optional>
#include <vector>

#include "examples/maphost/Gallery.h"
#include "maplibrary/files/FileAccess.h"
#include "maplibrary/model/SampleMap.h"
#include "text/Paths.h"

namespace {

using Path = std::filesystem::path;

struct Options {
  Path Grid;
  std::optional<Path> Gallery;
};

std::optional<Options> ReadOptions(const std::vector<Path>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--gallery") {
      if (++i == arguments.size()) return std::nullopt;
      options.Gallery = arguments[i];
    } else if (options.Grid.empty() && !arguments[i].empty() && arguments[i].native().front() != '-') {
      options.Grid = arguments[i];
    } else {
      return std::nullopt;
    }
  }
  if (options.Grid.empty()) return std::nullopt;
  return options;
}

void Run(const Options& options) {
  maphost::NativeDesktop desktop;
  const auto map = orx::maplibrary::MakeSampleMap(orx::Utf8(options.Grid));
  const maphost::Languages languages(options.Grid.parent_path() / "languages");
  if (options.Gallery) return maphost::WriteGallery(desktop, *map, languages, *options.Gallery);
  maphost::RunWindow(*std::make_shared<maphost::HostWindow>(desktop, *map, languages));
}

}  // namespace

// On Windows file names are more than the code page of a narrow command line can tell.
#ifdef _WIN32
int wmain(int argc, wchar_t** argv) {
#else
int main(int argc, char** argv) {
#endif
  const std::optional<Options> options = ReadOptions({argv + 1, argv + argc});
  if (!options) {
    std::cerr << "Usage: maphost GRID.bil|GRID.asc [--gallery FOLDER]\n";
    return 2;
  }
  try {
    Run(*options);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "maphost: " << error.what() << '\n';
    return 1;
  }
}
