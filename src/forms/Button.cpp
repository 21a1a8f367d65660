#include "forms/Button.h"

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace orx {

void Button::UserPress() {
  OwnerForm().UserAct([this] {
    if (OwnerForm().MoveFocus(*this)) Click.Raise();
  });
}

void Button::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
