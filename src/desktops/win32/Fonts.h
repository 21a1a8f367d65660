// The fonts of dialogs and drawings.
#pragma once

#include "desktops/win32/Handles.h"
#include "forms/Appearance.h"

namespace orx::win32 {

/// The user's font for messages, at 9 points or more, in the system's dpi. For use within a GuestScope.
GdiObject<HFONT> MakeDialogFont();
/// Its size in points; at least 9.
double DialogFontPoints();
/// A font of drawings; an empty name stands for the dialog font's. Its lines run at the angle, in degrees
/// counterclockwise.
GdiObject<HFONT> MakeFont(const Font& face, double rotation = 0);

}  // namespace orx::win32
