// Writes a picture of every dialog, without a person and without a screen.
#pragma once

#include <filesystem>

#include "desktops/qt/QtDesktop.h"
#include "examples/maphost/HostWindow.h"

namespace maphost {

/// Writes the pictures as PNG files into the folder, which is made when it is missing: each dialog in each language,
/// and the demo's window. Throws std::runtime_error with the file that cannot be written.
void WriteGallery(orx::qt::QtDesktop& desktop, orx::maplibrary::Map& map, const Languages& languages,
                  const std::filesystem::path& folder);

}  // namespace maphost
