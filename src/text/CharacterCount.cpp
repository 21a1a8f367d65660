#include "text/CharacterCount.h"

#include <algorithm>

namespace orx {

int CharacterCount(std::string_view text) {
  const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  return static_cast<int>(std::count_if(text.begin(), text.end(), startsCharacter));
}

}  // namespace orx
