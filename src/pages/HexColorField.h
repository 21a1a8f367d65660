// A text field for a colour in hexadecimal: "#FF8000".
#pragma once

#include "forms/Appearance.h"
#include "forms/CheckedField.h"

namespace orx::pages {

/// Accepts six hexadecimal digits for red, green and blue, with or without "#" in front.
class HexColorField : public CheckedField<Color> {
 public:
  /// As CheckedField.
  using CheckedField::CheckedField;

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const Color& color) const override;
};

}  // namespace orx::pages
