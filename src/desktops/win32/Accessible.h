// Names for assistive software, for windows where the platform finds none by itself.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

/// Gives a window a name. Does nothing and returns false for an empty name, and where the system has no such service.
bool SetAccessibleName(HWND window, const std::string& name);
/// Removes the name; the platform would keep it beyond the life of the window.
void ForgetAccessibleName(HWND window);

}  // namespace orx::win32
