// A text field for a name, which must not be blank.
#pragma once

#include "forms/CheckedField.h"

namespace orx::pages {

class NameField final : public ValueField<std::string> {
 public:
  using ValueField::ValueField;

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const std::string& name) const override { return name; }
};

}  // namespace orx::pages
