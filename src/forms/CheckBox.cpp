#include "forms/CheckBox.h"

#include "forms/ControlVisitor.h"
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
    if (OwnerForm().MoveFocus(*this)) Value(CheckedIf(mValue == CheckState::Unchecked));
  });
  // A dropped click leaves the native box ticked; this puts it right.
  Changed(Aspect::Value);
}

void CheckBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
