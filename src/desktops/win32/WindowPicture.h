// Pictures of windows.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

/// Writes a picture of the window, without its frame, to a PNG file. False when it is not shown or the file cannot be
/// written.
bool SavePicture(HWND window, const std::string& pngPath);

}  // namespace orx::win32
