#include "forms/Fields.h"

#include "forms/CheckBox.h"
#include "forms/ListControl.h"
#include "forms/PictureBox.h"

namespace orx {

void FlagField::Show(bool value) {
  mShown = value;
  mBox.Value(CheckedIf(value));
}

bool FlagField::Value() const {
  return mBox.IsChecked();
}

void ChoiceField::Show(std::int32_t code) {
  mCode = code;
  if (!mList.SelectData(code)) mList.ListIndex(mRule.Otherwise);
  TakeAsShown();
}

void ChoiceField::Clear() {
  mCode.reset();
  mList.ListIndex(mRule.Otherwise);
  TakeAsShown();
}

void ChoiceField::TakeAsShown() {
  mShown = mList.ListIndex();
  mEdits = mList.Edits();
}

std::int32_t ChoiceField::Value() const {
  return mCode && !IsEdited() ? *mCode : mList.SelectedData();
}

bool ChoiceField::IsEdited() const {
  return mList.ListIndex() != mShown || mList.Edits() != mEdits;
}

void ColorField::Show(Color value) {
  mShown = value;
  mBox.BackColor(value);
}

Color ColorField::Value() const {
  return mBox.BackColor();
}

}  // namespace orx
