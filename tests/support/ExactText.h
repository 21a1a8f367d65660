// Values as texts that are equal only when the values are, to the last bit.
#pragma once

#include <string>

#include "forms/Appearance.h"

namespace orx::test {

/// Hexadecimal.
std::string Text(double value);
/// Between quotes; quotes and line ends in it are escaped, so that no text can look like another line.
std::string Text(const std::string& value);
std::string Text(const Font& font);
std::string Text(const Color& color);

}  // namespace orx::test
