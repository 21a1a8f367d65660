// Pictures of windows.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

/// Writes the window without its frame as PNG file. False when it is not shown or the file cannot be written.
bool SavePicture(HWND window, const std::string& pngPath);

}  // namespace orx::win32
