// Names for assistive software where the platform finds none by itself.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

/// Gives a window a name. Does nothing for an empty name, and where the system has no such service.
void SetAccessibleName(HWND window, const std::string& name);

}  // namespace orx::win32
