// Writes a picture of every dialog, with neither a user nor a screen.
#pragma once

#include <filesystem>

#include "examples/maphost/HostWindow.h"
#include "examples/maphost/NativeDesktop.h"

namespace maphost {

/// Writes the pictures as PNG files into the folder, which is made when it is missing: each dialog in each language,
/// and the demo's window. Throws std::runtime_error with the file that cannot be written.
void WriteGallery(NativeDesktop& desktop, orx::maplibrary::Map& map, const Languages& languages,
                  const std::filesystem::path& folder);

}  // namespace maphost
