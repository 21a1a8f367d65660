// The window that a host names as the owner of a dialog.
#pragma once

#include "com/Handles.h"
#include "forms/FormWindow.h"

namespace orx::com {

/// A missing argument, Empty, Null, Nothing and 0 stand for none; a number is a window handle, an object tells it in
/// its property hWnd. Throws RunTimeError for anything else. `owner` may be null.
OwnerWindow OwnerOf(const VARIANT* owner);

}  // namespace orx::com
