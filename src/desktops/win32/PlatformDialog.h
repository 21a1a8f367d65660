// The dialogs that the platform brings: message box, file dialog.
#pragma once

#include <windows.h>

#include <functional>

namespace orx::win32 {

/// Runs `show`, which opens a dialog of the platform before `owner` (null: none) and returns when it has closed.
/// `running` is called in its modal loop once it is up; what that throws presses the button with the id `closing` and
/// travels.
void RunPlatformDialog(HWND owner, const std::function<void()>& running, int closing,
                       const std::function<void()>& show);

/// The dialog of the platform that waits for its answer on this thread, null when there is none.
HWND OpenPlatformDialog();

}  // namespace orx::win32
