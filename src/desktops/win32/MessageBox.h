// The native message box.
#pragma once

#include <windows.h>

#include <functional>

#include "forms/Message.h"

namespace orx::win32 {

/// Shows a box before `owner` (null: none), runs `running` once the box is up, and returns the answer. What `running`
/// throws closes the box and comes out of here.
MessageAnswer RunMessageBox(const Message& message, HWND owner, const std::function<void()>& running);

}  // namespace orx::win32
