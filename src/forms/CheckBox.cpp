#include "forms/CheckBox.h"

#include "forms/Form.h"

namespace orx {

void CheckBox::Value(CheckState value) {
  if (mValue == value) return;
  mValue = value;
  Changed(Aspect::Value);
  Click.Raise();
}

void CheckBox::UserToggle() {
  OwnerForm().UserAct([this] {
    // The native box has already changed its mark; it must show the state that the control ends up with.
    Changed(Aspect::Value);
    if (OwnerForm().MoveFocus(*this)) Value(CheckedIf(mValue == CheckState::Unchecked));
  });
}

}  // namespace orx
