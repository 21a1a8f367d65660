// Draws single characters of a font by their codes in the code page of the process, for CharacterMark.
#pragma once

#include <string>
#include <vector>

#include "desktops/win32/Handles.h"
#include "forms/Canvas.h"

namespace orx::win32 {

/// The font for a device. None when the name is too long for a font; the device keeps its own then.
GdiObject<HFONT> MakeCharacterFont(HDC context, const Font& face);

/// Draws the character in the middle of its cell: its ink across, its line down, so that the characters of a row stand
/// on one line. One that would touch the edge is drawn smaller. `font` is what MakeCharacterFont has made of the mark's
/// face. The caller saves and restores the context.
void DrawCharacter(HDC context, const CharacterMark& mark, HFONT font);

/// The codes for which a font has characters on the screen. For use within a GuestScope.
CharacterCodes CodesOf(const Font& face);

/// The face names of the fonts of the screen, each once, in the system's order.
std::vector<std::string> ScreenFontNames();

}  // namespace orx::win32
