// The native message box.
#pragma once

#include <windows.h>

#include <functional>

#include "forms/Message.h"

namespace orx::win32 {

/// Shows a box in front of `owner` (null: none), runs `running` once the box is up, and returns the answer. An
/// exception from `running` closes the box and is passed on.
MessageAnswer RunMessageBox(const Message& message, HWND owner, const std::function<void()>& running);

}  // namespace orx::win32
