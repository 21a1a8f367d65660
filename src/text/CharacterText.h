// Characters by their Unicode code point, for the symbols that mark points.
#pragma once

#include <cstdint>
#include <string>

namespace orx {

/// True for a code that a font can draw: controls, halves of surrogate pairs and codes beyond Unicode are no
/// characters.
bool IsCharacter(std::int32_t code);

/// The character in UTF-8; empty for a code that is none.
std::string CharacterText(std::int32_t code);

/// The code, from 0 to 255, under which a font has the character: that of the code page 1252, or that of a sign in the
/// private range of sign fonts. The last code stands for all others.
std::int32_t FontCode(std::int32_t character);

/// The character behind such a code that was chosen in place of the character `before`. The code of `before` is that
/// character still, also when it only stands for it, and a code that no character has leaves it, too; a sign of the
/// private range gives way to another sign there.
std::int32_t CharacterOf(std::int32_t fontCode, std::int32_t before);

}  // namespace orx
