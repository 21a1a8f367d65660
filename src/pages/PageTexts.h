// The texts of the pages' own messages, beside those of the fields in forms/FieldTexts.h.
#pragma once

#include "forms/ErrorText.h"

namespace orx::pages::pagetexts {

inline constexpr const char* kBlankName = "{1}: a blank name is not allowed. Type a name.";
inline constexpr const char* kNoCharacter =
    "{1}: \"{2}\" is not a character. Type one character, or its code such as U+0041 or 65.";
inline constexpr const char* kNoColor = "{1}: \"{2}\" is not a color. Type six hexadecimal digits, such as #FF8000.";

/// What the host's object fails to do; {1} is its reason. A list of settings with their reasons follows the second.
inline constexpr const char* kNotRead = "Cannot be read: {1}";
inline constexpr const char* kNotWritten = "Not everything could be saved:";
inline constexpr const char* kNotDone = "This cannot be done: {1}";
/// Reasons where the object has none of its own.
inline constexpr const char* kNothingToEdit = "There is nothing to edit here.";
inline constexpr const char* kGone = "The object does not answer.";
inline constexpr const char* kNoData = "The file cannot be opened as data.";

/// All of them, for the test of a translation.
inline constexpr const char* kAll[] = {kBlankName, kNoCharacter,   kNoColor, kNotRead, kNotWritten,
                                       kNotDone,   kNothingToEdit, kGone,    kNoData,  kUnknownError};

}  // namespace orx::pages::pagetexts
