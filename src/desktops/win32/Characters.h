// Draws single characters of a font by their codes in the code page of the process, for CharacterMark.
#pragma once

#include <string>
#include <vector>

#include "desktops/win32/Handles.h"
#include "forms/Canvas.h"

namespace orx::win32 {

/// The font for a device. None when the name is too long for a font; the device keeps its own then.
GdiObject<HFONT> MakeCharacterFont(HDC context, const Font& face);

/// Fills the cell and draws the character on it. The caller saves and restores the context.
void DrawCharacter(HDC context, const CharacterMark& mark, HFONT font);

/// The width and height of a character on the screen. For use within a GuestScope.
Size CharacterSize(const Font& face, int code);

/// The face names of the fonts of the screen, each once, in the system's order.
std::vector<std::string> ScreenFontNames();

}  // namespace orx::win32
