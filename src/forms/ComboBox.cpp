#include "forms/ComboBox.h"

#include <stdexcept>

#include "forms/Form.h"

namespace orx {

void ComboBox::Text(const std::string& value) {
  if (mText == value) return;
  const int index = IndexOf(value);
  if (mStyle == ComboStyle::DropDownList) {
    if (index < 0) throw std::invalid_argument(Name() + ": no list entry \"" + value + "\"");
    return ListIndex(index);
  }
  mText = value;
  Select(index);
  Changed(Aspect::Value);
  Change.Raise();
}

void ComboBox::UserPick(int index) {
  OwnerForm().UserAct([&] {
    // The native list already shows the entry; it must show the one that the control ends up with.
    Changed(Aspect::Value);
    if (!OwnerForm().MoveFocus(*this)) return;
    ++mEdits;
    if (index == ListIndex()) return Click.Raise();
    ListIndex(index);
  });
}

void ComboBox::UserText(const std::string& text) {
  if (mStyle != ComboStyle::Editable) return;
  ++mEdits;
  if (text == mText) return;
  OwnerForm().UserAct([&] {
    mText = text;
    Select(IndexOf(text));
    Change.Raise();
  });
}

}  // namespace orx
