// The native mouse pointers.
#pragma once

#include <windows.h>

#include "forms/Appearance.h"

namespace orx::win32 {

/// The system's pointer of that kind; null for Default, where each window shows its own.
HCURSOR CursorOf(Pointer pointer);

/// Shows the pointer at once. Default lets the window under the mouse choose, when it is one of this thread.
void ShowPointer(Pointer pointer);

}  // namespace orx::win32
