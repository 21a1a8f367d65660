#include "forms/CheckedNumberField.h"

#include "forms/FieldTexts.h"
#include "forms/Form.h"
#include "forms/TextBox.h"

namespace orx {

std::optional<Message> CheckedNumberField::Take(const std::string& text) {
  const auto plain = [this](double value) { return PlainNumber(Box(), value); };
  const std::optional<double> value = numbers::ToDouble(text, Box().OwnerForm().OwnerDesktop().Separators());
  if (!value) {
    const char* const message = mRule.HasRange() ? fieldtexts::kNoNumberInRange : fieldtexts::kNoNumber;
    return MakeMessage(fieldtexts::kInvalidNumber, message,
                       {FieldName(Box()), text, plain(mRule.Minimum), plain(mRule.Maximum)});
  }
  if (!mRule.Allows(*value))
    return MakeMessage(fieldtexts::kWrongValue, fieldtexts::kOutOfRange,
                       {FieldName(Box()), plain(*value), plain(mRule.Minimum), plain(mRule.Maximum)});
  Become(*value);
  return std::nullopt;
}

std::string CheckedNumberField::TextOf(const double& value) const {
  return mRule.Format ? mRule.Format(value) : PlainNumber(Box(), value);
}

NumberSpan::NumberSpan(CheckedNumberField& lower, CheckedNumberField& upper) : mLower(lower), mUpper(upper) {
  for (CheckedNumberField* field : {&mLower, &mUpper})
    field->Accepted = [this] {
      mIsEdited = true;
      Changed.Raise();
    };
  mLower.Left = [this] { FieldLeft(mLower); };
  mUpper.Left = [this] { FieldLeft(mUpper); };
}

void NumberSpan::Show(double lower, double upper) {
  mLower.Show(lower);
  mUpper.Show(upper);
  Restart();
}

void NumberSpan::Restart() {
  mGoodLower = mLower.Value();
  mGoodUpper = mUpper.Value();
  mIsEdited = false;
}

void NumberSpan::FieldLeft(CheckedNumberField& field) {
  const CheckedNumberField& partner = &field == &mLower ? mUpper : mLower;
  if (!partner.Box().HasFocus()) CheckOrder(field);
}

bool NumberSpan::Check() {
  return mLower.Check() && mUpper.Check() && CheckOrder(mLower);
}

bool NumberSpan::CheckOrder(CheckedNumberField& focused) {
  if (mIsEdited && IsWhole() && !IsInOrder()) {
    const Message refusal = mLower.MakeMessage(
        fieldtexts::kInvalidRange, fieldtexts::kWrongOrder,
        {FieldName(mLower.Box()), mLower.Box().Text(), FieldName(mUpper.Box()), mUpper.Box().Text()});
    mLower.Enter(mGoodLower);
    mUpper.Enter(mGoodUpper);
    mIsEdited = false;
    Changed.Raise();
    focused.Refuse(refusal);
    return false;
  }
  mGoodLower = mLower.Value();
  mGoodUpper = mUpper.Value();
  return true;
}

}  // namespace orx
