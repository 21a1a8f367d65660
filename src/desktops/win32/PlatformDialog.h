// The platform's own dialogs: message boxes, and those for choosing files, a colour or a font.
#pragma once

#include <windows.h>

#include <functional>

namespace orx::win32 {

/// Runs `show`, which opens a dialog of the platform in front of `owner` (null: none) and returns when it has closed.
/// `running` is called in its modal loop once it is up; an exception from it presses the button with the id `closing`
/// and is passed on.
void RunPlatformDialog(HWND owner, const std::function<void()>& running, int closing,
                       const std::function<void()>& show);

/// The platform's dialog that is open on this thread, null when there is none.
HWND OpenPlatformDialog();

}  // namespace orx::win32
