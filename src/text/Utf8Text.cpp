#include "text/Utf8Text.h"

#include <algorithm>

#include "text/CharacterText.h"

namespace orx {
namespace {

/// The length in bytes of the character at the start of a text.
std::size_t LengthOf(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0xC0) return 1;
  if (lead < 0xE0) return 2;
  return lead < 0xF0 ? 3 : 4;
}

}  // namespace

char32_t FirstCharacter(std::string_view text) {
  if (text.empty()) return 0;
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  if (byte(0) < 0x80) return byte(0);
  if (byte(0) < 0xE0) return ((byte(0) & 0x1FU) << 6) | (byte(1) & 0x3FU);
  if (byte(0) < 0xF0) return ((byte(0) & 0x0FU) << 12) | ((byte(1) & 0x3FU) << 6) | (byte(2) & 0x3FU);
  return ((byte(0) & 0x07U) << 18) | ((byte(1) & 0x3FU) << 12) | ((byte(2) & 0x3FU) << 6) | (byte(3) & 0x3FU);
}

char32_t LowerCase(char32_t character) {
  const char32_t c = character;
  const bool plain = (c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
  const bool greekOrCyrillic = (c >= 0x391 && c <= 0x3A9) || (c >= 0x410 && c <= 0x42F);
  if (plain || greekOrCyrillic) return c + 32;
  return c >= 0x400 && c <= 0x40F ? c + 80 : c;
}

std::string LowerCase(std::string_view text) {
  std::string lower;
  while (!text.empty()) {
    const std::size_t length = std::min(LengthOf(text), text.size());
    const char32_t character = FirstCharacter(text);
    const char32_t small = LowerCase(character);
    // What has no small letter stays as it is, also what is no character.
    if (small == character) {
      lower += text.substr(0, length);
    } else {
      lower += CharacterText(static_cast<std::int32_t>(small));
    }
    text.remove_prefix(length);
  }
  return lower;
}

bool BeginsWith(std::string_view text, std::u32string_view start) {
  for (const char32_t character : start) {
    if (text.empty() || LowerCase(FirstCharacter(text)) != LowerCase(character)) return false;
    text.remove_prefix(std::min(LengthOf(text), text.size()));
  }
  return true;
}

bool EqualInAnyCase(std::string_view one, std::string_view other) {
  while (!one.empty() && !other.empty()) {
    if (LowerCase(FirstCharacter(one)) != LowerCase(FirstCharacter(other))) return false;
    one.remove_prefix(std::min(LengthOf(one), one.size()));
    other.remove_prefix(std::min(LengthOf(other), other.size()));
  }
  return one.empty() && other.empty();
}

}  // namespace orx
