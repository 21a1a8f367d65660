// The single-byte codes of characters in a font.
#pragma once

#include <bitset>

namespace orx {

/// The codes run from 0 up to this.
inline constexpr int kCharacterCodes = 256;

/// A set of codes.
using CharacterCodes = std::bitset<kCharacterCodes>;

}  // namespace orx
