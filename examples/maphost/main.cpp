// The demo host: opens a grid file as a map, with every dialog one click away.
#include <cstring>
#include <iostream>
#include <optional>

#include "examples/maphost/Gallery.h"
#include "maplibrary/SampleMap.h"

namespace {

struct Options {
  std::string Grid;
  std::optional<std::string> Gallery;
};

std::optional<Options> ReadOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--gallery") == 0) {
      if (++i == argc) return std::nullopt;
      options.Gallery = argv[i];
    } else if (options.Grid.empty() && argv[i][0] != '-') {
      options.Grid = argv[i];
    } else {
      return std::nullopt;
    }
  }
  if (options.Grid.empty()) return std::nullopt;
  return options;
}

void Run(const Options& options) {
  maphost::NativeDesktop desktop;
  const auto map = orx::maplibrary::MakeSampleMap(options.Grid);
  const maphost::Languages languages(std::filesystem::path(options.Grid).parent_path() / "languages");
  if (options.Gallery) return maphost::WriteGallery(desktop, *map, languages, *options.Gallery);
  maphost::RunWindow(*std::make_shared<maphost::HostWindow>(desktop, *map, languages));
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<Options> options = ReadOptions(argc, argv);
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
