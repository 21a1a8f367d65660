#include "forms/TextEntry.h"

#include "forms/ComboBox.h"
#include "forms/TextBox.h"

namespace orx {

Control& TextEntry::Box() const {
  return std::visit([](auto* box) -> Control& { return *box; }, mBox);
}

const std::string& TextEntry::Text() const {
  return std::visit([](auto* box) -> const std::string& { return box->Text(); }, mBox);
}

void TextEntry::Text(const std::string& value) const {
  std::visit([&](auto* box) { box->Text(value); }, mBox);
}

int TextEntry::Edits() const {
  return std::visit([](auto* box) { return box->Edits(); }, mBox);
}

}  // namespace orx
