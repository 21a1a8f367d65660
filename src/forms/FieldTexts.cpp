#include "forms/FieldTexts.h"

namespace orx {

std::string FillIn(std::string_view text, std::initializer_list<std::string_view> values) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace = text[i] == '{' && i + 2 < text.size() && text[i + 2] == '}';
    const auto number = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : values.size();
    if (number < values.size()) {
      filled += values.begin()[number];
      i += 2;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace orx
