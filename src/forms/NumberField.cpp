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
  mEdits = mEntry.Edits();
}

void NumberField::Clear() {
  if (mRule.Initially) return Show(*mRule.Initially);
  mValue.reset();
  mEntry.Text(mText = {});
  mEdits = mEntry.Edits();
}

std::optional<double> NumberField::Read(const std::string& text) const {
  return numbers::ToDouble(text, Box().OwnerForm().OwnerDesktop().Separators());
}

std::optional<double> NumberField::Value() const {
  return IsEdited() ? Read(mEntry.Text()) : mValue;
}

bool NumberField::IsEdited() const {
  return mEntry.Edits() != mEdits || mEntry.Text() != mText;
}

}  // namespace orx
