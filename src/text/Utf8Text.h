// Characters of UTF-8 texts, as far as mnemonics and the search for what a user types need them.
#pragma once

#include <string>
#include <string_view>

namespace orx {

/// The character at the start of a UTF-8 text, 0 when it is empty.
char32_t FirstCharacter(std::string_view text);

/// Lower case of the alphabets that dialog texts are written in: Latin, Greek, Cyrillic.
char32_t LowerCase(char32_t character);

/// The same for all characters of a UTF-8 text.
std::string LowerCase(std::string_view text);

/// True when the UTF-8 text begins with those characters, in whatever case.
bool BeginsWith(std::string_view text, std::u32string_view start);

/// True when two UTF-8 texts differ at most by the case of letters.
bool EqualInAnyCase(std::string_view one, std::string_view other);

}  // namespace orx
