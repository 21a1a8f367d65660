// A text field for a name, which must not be blank.
#pragma once

#include "forms/CheckedField.h"

namespace orx::pages {

class NameField : public CheckedField<std::string> {
 public:
  /// As CheckedField.
  using CheckedField::CheckedField;

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const std::string& name) const override { return name; }
};

}  // namespace orx::pages
