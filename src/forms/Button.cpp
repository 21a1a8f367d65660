#include "forms/Button.h"

#include "forms/Form.h"

namespace orx {

void Button::UserPress() {
  OwnerForm().UserAct([this] {
    if (OwnerForm().MoveFocus(*this)) Click.Raise();
  });
}

}  // namespace orx
