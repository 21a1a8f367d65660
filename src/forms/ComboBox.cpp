#include "forms/ComboBox.h"

#include <stdexcept>

#include "forms/ControlVisitor.h"
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

void ComboBox::UserText(const std::string& text) {
  if (mStyle != ComboStyle::Editable || text == mText) return;
  OwnerForm().UserAct([&] {
    mText = text;
    Select(IndexOf(text));
    Change.Raise();
  });
}

void ComboBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
