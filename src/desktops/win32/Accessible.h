// Names and descriptions for assistive software, for windows where the platform finds none by itself.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

enum class Spoken { Name, Description };

/// Gives a window a name or a description; an empty one removes it. False where the system has no such service, and for
/// an empty one.
bool SetAccessible(HWND window, Spoken what, const std::string& text);
/// Removes name and description; the platform would keep them beyond the life of the window.
void ForgetAccessible(HWND window);

}  // namespace orx::win32
