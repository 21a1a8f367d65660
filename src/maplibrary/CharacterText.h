// Characters by their Unicode code point, for the symbols that mark points.
#pragma once

#include <cstdint>
#include <string>

namespace orx::maplibrary {

/// True for a code that a font can draw: controls, halves of surrogate pairs and codes beyond Unicode are no
/// characters.
bool IsCharacter(std::int32_t code);

/// The character in UTF-8; empty for a code that is none.
std::string CharacterText(std::int32_t code);

}  // namespace orx::maplibrary
