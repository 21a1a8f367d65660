#include "forms/CheckedField.h"

#include "forms/FieldTexts.h"
#include "forms/Form.h"
#include "forms/TextBox.h"
#include "text/CharacterCount.h"

namespace orx {

std::string FieldName(const Control& control) {
  std::string name = control.AccessibleName();
  if (!name.empty() && name.back() == ':') name.pop_back();
  return name;
}

CheckedEntry::CheckedEntry(TextBox& box) : mBox(box), mShown(box.Text()) {
  mBox.GotFocus = [this] { SelectAll(); };
  mBox.LostFocus = [this] {
    if (Check()) Left.Raise();
  };
}

bool CheckedEntry::IsPending() const {
  return mBox.Text() != mShown;
}

bool CheckedEntry::Check() {
  if (!IsPending()) return true;
  if (const std::optional<Message> refusal = Take(mBox.Text())) {
    mBox.Text(mShown);
    Refuse(*refusal);
    return false;
  }
  ShowValue(true);
  Accepted.Raise();
  return true;
}

void CheckedEntry::Refuse(const Message& message) {
  mBox.OwnerForm().OwnerDesktop().ShowMessage(message);
  mBox.SetFocus();
  SelectAll();
}

void CheckedEntry::ShowValue(bool isEdited) {
  mIsEdited = isEdited;
  mShown = ValueText();
  mBox.Text(mShown);
}

Message CheckedEntry::MakeMessage(const char* title, const char* text,
                                  std::initializer_list<std::string_view> values) const {
  return {FillIn(Translated(text), values), Translated(title), MessageIcon::Exclamation};
}

void CheckedEntry::SelectAll() {
  mBox.SelStart(0);
  mBox.SelLength(CharacterCount(mBox.Text()));
}

}  // namespace orx
