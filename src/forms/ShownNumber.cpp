#include "forms/ShownNumber.h"

#include "forms/Form.h"
#include "forms/TextBox.h"
#include "numbers/Numbers.h"

namespace orx {

void ShownNumber::Show(double value, const std::string& text) {
  mValue = value;
  mText = text;
  mBox.Text(text);
}

void ShownNumber::Show(double value) {
  Show(value, numbers::ShortestText(value, mBox.OwnerForm().OwnerDesktop().Separators()));
}

std::optional<double> ShownNumber::Read(const std::string& text) const {
  return numbers::ToDouble(text, mBox.OwnerForm().OwnerDesktop().Separators());
}

std::optional<double> ShownNumber::Value() const {
  return IsEdited() ? Read(mBox.Text()) : mValue;
}

bool ShownNumber::IsEdited() const {
  if (mBox.Text() == mText) return false;
  const std::optional<double> read = Read(mBox.Text());
  return !read || read != Read(mText);
}

}  // namespace orx
