// The characters of single-byte codes, for platforms that have no such conversion: code page 1252.
#pragma once

#include <optional>

namespace orx {

/// The Unicode code point of a code from 0 to 255. The five codes that have no character stand for the control
/// characters with the same number.
char32_t AnsiCharacter(int code);

/// The code of a code point; none for a character that is not in the code page.
std::optional<int> AnsiCode(char32_t character);

}  // namespace orx
