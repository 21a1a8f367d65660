// The length of a text as its user counts it.
#pragma once

#include <string_view>

namespace orx {

/// The number of characters (code points) in a UTF-8 text.
int CharacterCount(std::string_view text);

}  // namespace orx
