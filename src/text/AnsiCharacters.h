// The characters behind single-byte codes where the platform does not know them: those of the code page 1252.
#pragma once

#include <optional>

namespace orx {

/// The Unicode code point of a code from 0 to 255. The five codes without a character stand for the control characters
/// of the same number.
char32_t AnsiCharacter(int code);

/// The code of a code point; none for a character that the code page lacks.
std::optional<int> AnsiCode(char32_t character);

}  // namespace orx
