#include "forms/NumberField.h"

#include "forms/Form.h"
#include "numbers/Numbers.h"

namespace orx {

std::string PlainNumber(const Control& control, double value) {
  return numbers::ShortestText(value, control.OwnerForm().OwnerDesktop().Separators());
}

void NumberField::Show(double value) {
  Show(value, mRule.Format ? mRule.Format(value) : PlainNumber(Box(), value));
}

void NumberField::Show(double value, const std::string& text) {
  mValue = value;
  mEntry.Text(mText = text);
}

void NumberField::Clear() {
  if (mRule.Initially) return Show(*mRule.Initially);
  mValue.reset();
  mEntry.Text(mText = {});
}

std::optional<double> NumberField::Read(const std::string& text) const {
  return numbers::ToDouble(text, Box().OwnerForm().OwnerDesktop().Separators());
}

std::optional<double> NumberField::Value() const {
  return IsEdited() ? Read(mEntry.Text()) : mValue;
}

bool NumberField::IsEdited() const {
  if (mEntry.Text() == mText) return false;
  const std::optional<double> read = Read(mEntry.Text());
  return !read || read != Read(mText);
}

}  // namespace orx
