// The keyboard inside a hosted control: Tab walks through its child windows, and keys that a child wants stay with it.
#pragma once

#include <windows.h>

namespace orx::com {

/// True when the keyboard focus is below the window; in the window itself nobody would see the keys.
bool HasFocusInside(HWND area);

/// Gives the focus to the first child window with a tab stop, to the last one when going backwards; without any to the
/// first child window.
void FocusInside(HWND area, bool backwards);

/// Handles a key message for a window inside the area. Returns false when the key is for the dialog: Tab at either end,
/// Enter and Escape where the child window has no use for them, and all other keys, which are dispatched as usual.
bool KeepsKey(HWND area, const MSG& message);

}  // namespace orx::com
