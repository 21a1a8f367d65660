#include "forms/NumberField.h"

#include "forms/FieldTexts.h"
#include "forms/Form.h"
#include "forms/TextBox.h"

namespace orx {

std::optional<Message> NumberField::Take(const std::string& text) {
  const bool hasRange =
      mRule.Minimum > std::numeric_limits<double>::lowest() || mRule.Maximum < std::numeric_limits<double>::max();
  const std::optional<double> value = numbers::ToDouble(text, Box().OwnerForm().OwnerDesktop().Separators());
  if (!value) {
    const char* const message = hasRange ? fieldtexts::kNoNumberInRange : fieldtexts::kNoNumber;
    return MakeMessage(fieldtexts::kInvalidNumber, message,
                       {Name(), text, PlainText(mRule.Minimum), PlainText(mRule.Maximum)});
  }
  // Written so that NaN, which compares with nothing, is refused as well.
  if (!(*value >= mRule.Minimum && *value <= mRule.Maximum))
    return MakeMessage(fieldtexts::kWrongValue, fieldtexts::kOutOfRange,
                       {Name(), PlainText(*value), PlainText(mRule.Minimum), PlainText(mRule.Maximum)});
  Become(*value);
  return std::nullopt;
}

std::string NumberField::TextOf(const double& value) const {
  return mRule.Format ? mRule.Format(value) : PlainText(value);
}

std::string NumberField::PlainText(double value) const {
  return numbers::ShortestText(value, Box().OwnerForm().OwnerDesktop().Separators());
}

NumberSpan::NumberSpan(NumberField& lower, NumberField& upper) : mLower(lower), mUpper(upper) {
  for (NumberField* field : {&mLower, &mUpper})
    field->Accepted = [this] {
      mIsEdited = true;
      Changed.Raise();
    };
  mLower.Left = [this] { FieldLeft(mLower); };
  mUpper.Left = [this] { FieldLeft(mUpper); };
}

void NumberSpan::Values(double lower, double upper) {
  mLower.Value(mGoodLower = lower);
  mUpper.Value(mGoodUpper = upper);
  mIsEdited = false;
}

void NumberSpan::FieldLeft(NumberField& field) {
  const NumberField& partner = &field == &mLower ? mUpper : mLower;
  if (!partner.Box().HasFocus()) CheckOrder(field);
}

bool NumberSpan::Check() {
  return mLower.Check() && mUpper.Check() && CheckOrder(mLower);
}

bool NumberSpan::CheckOrder(NumberField& focused) {
  if (mIsEdited && !IsInOrder()) {
    const Message refusal =
        mLower.MakeMessage(fieldtexts::kInvalidRange, fieldtexts::kWrongOrder,
                           {mLower.Name(), mLower.Box().Text(), mUpper.Name(), mUpper.Box().Text()});
    Values(mGoodLower, mGoodUpper);
    Changed.Raise();
    focused.Refuse(refusal);
    return false;
  }
  mGoodLower = mLower.Value();
  mGoodUpper = mUpper.Value();
  return true;
}

}  // namespace orx
