#include "forms/CheckedField.h"

#include "forms/CharacterCount.h"
#include "forms/FieldTexts.h"
#include "forms/Form.h"
#include "forms/TextBox.h"

namespace orx {

CheckedField::CheckedField(TextBox& box) : mBox(box), mShown(box.Text()) {
  mBox.GotFocus = [this] { SelectAll(); };
  mBox.LostFocus = [this] {
    if (Check()) Left.Raise();
  };
}

std::string CheckedField::Name() const {
  std::string name = mBox.AccessibleName();
  if (!name.empty() && name.back() == ':') name.pop_back();
  return name;
}

bool CheckedField::IsPending() const {
  return mBox.Text() != mShown;
}

bool CheckedField::Check() {
  if (!IsPending()) return true;
  if (const std::optional<Message> refusal = Take(mBox.Text())) {
    mBox.Text(mShown);
    Refuse(*refusal);
    return false;
  }
  ShowValue();
  Accepted.Raise();
  return true;
}

void CheckedField::Refuse(const Message& message) {
  mBox.OwnerForm().OwnerDesktop().ShowMessage(message);
  mBox.SetFocus();
  SelectAll();
}

void CheckedField::ShowValue() {
  mShown = ValueText();
  mBox.Text(mShown);
}

Message CheckedField::MakeMessage(const char* title, const char* text,
                                  std::initializer_list<std::string_view> values) const {
  return {FillIn(Translated(text), values), Translated(title), MessageIcon::Exclamation};
}

void CheckedField::SelectAll() {
  mBox.SelStart(0);
  mBox.SelLength(CharacterCount(mBox.Text()));
}

}  // namespace orx
