// The smallest host: opens a grid file as a map and edits its first layer.
#include <cstdio>

#include <orx/CCommonMapDialogs.h>
#include <orx/PageFactory.h>
#include <orx/QtDesktop.h>
#include <orx/SampleMap.h>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: minimal GRID.bil|GRID.asc\n", stderr);
    return 2;
  }
  try {
    orx::qt::QtDesktop desktop;
    orx::pages::PageFactory pages;
    const auto map = orx::maplibrary::MakeSampleMap(argv[1]);

    orx::CCommonMapDialogs dialogs(desktop, pages);
    const bool changed = dialogs.ShowProperties(map->Layer(1)) != 0;
    std::printf("%s: %s\n", map->LayerName(1).c_str(), changed ? "changed" : "not changed");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "minimal: %s\n", error.what());
    return 1;
  }
}
