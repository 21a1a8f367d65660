// A text field for one character of a font, shown with its code: "A (U+0041)".
#pragma once

#include <cstdint>
#include <string_view>

#include "forms/CheckedField.h"

namespace orx::pages {

/// Accepts a character, its code in hexadecimal ("U+41") or with two or more digits in decimal ("65"), and the shown
/// form with either part replaced. The value is the Unicode code point; controls are refused.
class CharacterField : public CheckedField<std::int32_t> {
 public:
  /// As CheckedField.
  using CheckedField::CheckedField;

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const std::int32_t& code) const override;

 private:
  std::optional<std::int32_t> Parse(std::string_view text) const;
};

}  // namespace orx::pages
