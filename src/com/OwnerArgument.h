// The window that a host names as the owner of a dialog.
#pragma once

#include "com/Handles.h"
#include "forms/FormWindow.h"

namespace orx::com {

/// A number is a window handle, an object has it in its property hWnd. A missing argument, Empty, Null, Nothing and 0
/// mean no owner. Throws RunTimeError for anything else. `owner` may be null.
OwnerWindow OwnerOf(const VARIANT* owner);

}  // namespace orx::com
