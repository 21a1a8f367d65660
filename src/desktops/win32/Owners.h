// The windows that dialogs stand before.
#pragma once

#include <windows.h>

#include <cstdint>

namespace orx::win32 {

/// The whole window that a host means by a handle, which may be that of a control in it. Null when the handle is none.
HWND NamedOwner(std::uintptr_t handle);

/// The window of this thread that is in front of the others, also while the program is in the background: what is modal
/// and has no owner would be lost behind it. Never `except`; null when the thread shows no window.
HWND ForemostWindow(HWND except = nullptr);

/// The window that a dialog of the platform stands before: the one that the host means, or the foremost.
HWND ModalOwner(std::uintptr_t handle);

}  // namespace orx::win32
