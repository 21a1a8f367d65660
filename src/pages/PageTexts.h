// The texts with which the pages refuse an entry, beside those of the fields in forms/FieldTexts.h.
#pragma once

namespace orx::pages::pagetexts {

inline constexpr const char* kBlankName = "{1}: a blank name is not allowed. Type a name.";
inline constexpr const char* kNoCharacter =
    "{1}: \"{2}\" is not a character. Type one character, or its code such as U+0041 or 65.";
inline constexpr const char* kNoColor = "{1}: \"{2}\" is not a color. Type six hexadecimal digits, such as #FF8000.";

/// All of them, for the test of a translation.
inline constexpr const char* kAll[] = {kBlankName, kNoCharacter, kNoColor};

}  // namespace orx::pages::pagetexts
