#include "pages/CharacterField.h"

#include <charconv>
#include <cstdio>

#include "forms/FieldTexts.h"
#include "forms/TextBox.h"
#include "pages/PageTexts.h"
#include "text/CharacterCount.h"
#include "text/CharacterText.h"
#include "text/Trimmed.h"

namespace orx::pages {
namespace {

/// False for what shows nothing, or only in a font of its own: blanks and the private use areas.
bool IsPlain(std::int32_t code) {
  const bool isBlank = code == 0x20 || code == 0xA0;
  const bool isPrivate = (code >= 0xE000 && code <= 0xF8FF) || code >= 0xF0000;
  return IsCharacter(code) && !isBlank && !isPrivate;
}

std::string CodeText(std::int32_t code) {
  char text[16];
  std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(code));
  return text;
}

std::optional<std::int32_t> WholeNumber(std::string_view digits, int base) {
  std::int32_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, value, base);
  const bool isNumber = read.ec == std::errc() && read.ptr == end && digits.front() != '-';
  return isNumber ? std::optional(value) : std::nullopt;
}

/// The code point of a text of one character.
std::int32_t Decoded(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  std::int32_t code = lead < 0x80 ? lead : lead < 0xE0 ? lead & 0x1F : lead < 0xF0 ? lead & 0x0F : lead & 0x07;
  for (const char c : text.substr(1)) code = (code << 6) | (static_cast<unsigned char>(c) & 0x3F);
  return code;
}

}  // namespace

std::optional<std::int32_t> CharacterField::Parse(std::string_view text) const {
  if (CharacterCount(text) == 1) return Decoded(text);
  text = Trimmed(text);
  if (CharacterCount(text) == 1) return Decoded(text);
  if (text.empty()) return std::nullopt;
  if (text.front() >= '0' && text.front() <= '9') return WholeNumber(text, 10);
  if (text.size() > 2 && (text.front() == 'U' || text.front() == 'u') && text[1] == '+')
    return WholeNumber(text.substr(2), 16);
  const auto bracket = text.find(" (");
  if (bracket == std::string_view::npos || text.back() != ')' || CharacterCount(text.substr(0, bracket)) != 1)
    return std::nullopt;
  // Of the two parts, the one that was edited counts.
  const std::int32_t character = Decoded(text.substr(0, bracket));
  return character != Value() ? character : Parse(text.substr(bracket + 2, text.size() - bracket - 3));
}

std::optional<Message> CharacterField::Take(const std::string& text) {
  const std::optional<std::int32_t> code = Parse(text);
  if (!code || !IsCharacter(*code))
    return MakeMessage(fieldtexts::kWrongValue, pagetexts::kNoCharacter, {FieldName(Box()), text});
  Become(*code);
  return std::nullopt;
}

std::string CharacterField::TextOf(const std::int32_t& code) const {
  return IsPlain(code) ? CharacterText(code) + " (" + CodeText(code) + ")" : CodeText(code);
}

}  // namespace orx::pages
