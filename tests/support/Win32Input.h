// What a user of the Windows desktop does and sees, as far as it concerns single native windows.
#pragma once

#include <windows.h>

#include <string>

namespace orx::test {

/// Its text, as the window tells it.
std::wstring TextOf(HWND window);
/// Of its client area, in pixels.
LONG HeightOf(HWND window);
/// A window has to be active before it takes keys.
void Activate(HWND window);
/// The innermost visible window at a point of `outer` that takes the mouse.
HWND WindowAt(HWND outer, POINT place);
/// False as well for what stands in a disabled window.
bool IsReallyEnabled(HWND window);
/// Presses a key such as VK_SHIFT for what comes, or releases it.
void Hold(int key, bool down);
/// Leaves a text on the clipboard, in the name of that window.
void PutOnClipboard(HWND owner, const std::wstring& text);

}  // namespace orx::test
