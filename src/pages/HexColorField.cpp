#include "pages/HexColorField.h"

#include <charconv>
#include <cstdio>

#include "forms/FieldTexts.h"
#include "forms/TextBox.h"
#include "pages/PageTexts.h"

namespace orx::pages {

std::optional<Message> HexColorField::Take(const std::string& text) {
  const std::string digits = text.substr(!text.empty() && text.front() == '#');
  std::uint32_t parts = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, parts, 16);
  if (digits.size() != 6 || read.ec != std::errc() || read.ptr != end)
    return MakeMessage(fieldtexts::kWrongValue, pagetexts::kNoColor, {FieldName(Box()), text});
  const auto part = [&](int shift) { return static_cast<std::uint8_t>(parts >> shift); };
  Become({part(16), part(8), part(0)});
  return std::nullopt;
}

std::string HexColorField::TextOf(const Color& color) const {
  char text[8];
  std::snprintf(text, sizeof text, "#%02X%02X%02X", color.Red, color.Green, color.Blue);
  return text;
}

}  // namespace orx::pages
