#include "text/CharacterText.h"

#include "text/AnsiCharacters.h"

namespace orx {
namespace {

constexpr std::int32_t kLastFontCode = 0xFF;
/// Where fonts of signs have the sign with the code 0 in Unicode.
constexpr std::int32_t kSigns = 0xF000;

bool IsSign(std::int32_t character) {
  return character >= kSigns && character <= kSigns + kLastFontCode;
}

}  // namespace

bool IsCharacter(std::int32_t code) {
  const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
  const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
  return !isControl && !isSurrogate && code <= 0x10FFFF;
}

std::string CharacterText(std::int32_t code) {
  if (!IsCharacter(code)) return {};
  const auto c = static_cast<std::uint32_t>(code);
  const auto byte = [](std::uint32_t value) { return static_cast<char>(value); };
  const auto tail = [&](int shift) { return byte(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) return {byte(c)};
  if (c < 0x800) return {byte(0xC0 | c >> 6), tail(0)};
  if (c < 0x10000) return {byte(0xE0 | c >> 12), tail(6), tail(0)};
  return {byte(0xF0 | c >> 18), tail(12), tail(6), tail(0)};
}

std::int32_t FontCode(std::int32_t character) {
  if (IsSign(character)) return character - kSigns;
  return AnsiCode(static_cast<char32_t>(character)).value_or(kLastFontCode);
}

std::int32_t CharacterOf(std::int32_t fontCode, std::int32_t before) {
  if (fontCode == FontCode(before) || fontCode < 0 || fontCode > kLastFontCode) return before;
  const auto chosen = static_cast<std::int32_t>(AnsiCharacter(fontCode));
  const std::int32_t character = IsSign(before) ? kSigns + fontCode : chosen;
  return IsCharacter(character) ? character : before;
}

}  // namespace orx
