// The fonts of dialogs and drawings.
#pragma once

#include "desktops/win32/Handles.h"
#include "forms/Appearance.h"

namespace orx::win32 {

/// The user's font for messages, at 9 points or more, in the system's dpi. For use within a GuestScope.
GdiObject<HFONT> MakeDialogFont();
/// Its size in points; at least 9.
double DialogFontPoints();
/// A font of drawings, turned by no angle; an empty name stands for the dialog font's.
GdiObject<HFONT> MakeFont(const Font& face);

}  // namespace orx::win32
