// Unicode code points as text.
#pragma once

#include <cstdint>
#include <string>

namespace orx::maplibrary {

/// A Unicode code point as UTF-8; empty for control characters, which have no picture, and for what is none.
std::string CharacterText(std::int32_t code);

}  // namespace orx::maplibrary
