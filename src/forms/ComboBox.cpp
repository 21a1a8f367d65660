#include "forms/ComboBox.h"

#include <algorithm>
#include <stdexcept>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"

namespace orx {

void ComboBox::List(int index, const std::string& text) {
  mItems.at(static_cast<std::size_t>(index)).Text = text;
  if (index == mListIndex) mText = text;
  Changed(Aspect::Items);
}

void ComboBox::AddItem(const std::string& text, std::int32_t data) {
  mItems.push_back({text, data});
  Changed(Aspect::Items);
}

void ComboBox::Clear() {
  mItems.clear();
  mListIndex = -1;
  mText.clear();
  Changed(Aspect::Items);
}

void ComboBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw std::out_of_range(Name() + ": no list entry " + std::to_string(index));
  if (index == mListIndex) return;
  mListIndex = index;
  mText = index < 0 ? std::string() : List(index);
  Changed(Aspect::Value);
  Click.Raise();
}

bool ComboBox::SelectData(std::int32_t data) {
  const auto found = std::find_if(mItems.begin(), mItems.end(), [&](const Item& item) { return item.Data == data; });
  if (found == mItems.end()) return false;
  ListIndex(static_cast<int>(found - mItems.begin()));
  return true;
}

std::int32_t ComboBox::SelectedData(std::int32_t otherwise) const {
  return mListIndex < 0 ? otherwise : ItemData(mListIndex);
}

int ComboBox::IndexOf(const std::string& text) const {
  const auto found = std::find_if(mItems.begin(), mItems.end(), [&](const Item& item) { return item.Text == text; });
  return found == mItems.end() ? -1 : static_cast<int>(found - mItems.begin());
}

void ComboBox::Text(const std::string& value) {
  if (mText == value) return;
  const int index = IndexOf(value);
  if (mStyle == ComboStyle::DropDownList) {
    if (index < 0) throw std::invalid_argument(Name() + ": no list entry \"" + value + "\"");
    return ListIndex(index);
  }
  mText = value;
  mListIndex = index;
  Changed(Aspect::Value);
  Change.Raise();
}

void ComboBox::UserPick(int index) {
  OwnerForm().UserAct([&] {
    // The native box shows the entry already; it waits for what becomes of the choice.
    Changed(Aspect::Value);
    if (OwnerForm().MoveFocus(*this)) ListIndex(index);
  });
}

void ComboBox::UserText(const std::string& text) {
  if (mStyle != ComboStyle::Editable || text == mText) return;
  OwnerForm().UserAct([&] {
    mText = text;
    mListIndex = IndexOf(text);
    Change.Raise();
  });
}

void ComboBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
