#include "forms/ListControl.h"

#include <algorithm>
#include <stdexcept>

namespace orx {

void ListControl::List(int index, const std::string& text) {
  mItems.at(static_cast<std::size_t>(index)).Text = text;
  if (index == mListIndex) SelectionChanged();
  Changed(Aspect::Items);
}

void ListControl::AddItem(const std::string& text, std::int32_t data) {
  mItems.push_back({text, data});
  Changed(Aspect::Items);
}

void ListControl::Clear() {
  mItems.clear();
  mListIndex = -1;
  SelectionChanged();
  Changed(Aspect::Items);
}

void ListControl::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw std::out_of_range(Name() + ": no list entry " + std::to_string(index));
  if (index == mListIndex) return;
  mListIndex = index;
  SelectionChanged();
  Changed(Aspect::Value);
  Click.Raise();
}

bool ListControl::SelectData(std::int32_t data) {
  const auto found = std::ranges::find(mItems, data, &Item::Data);
  if (found == mItems.end()) return false;
  ListIndex(static_cast<int>(found - mItems.begin()));
  return true;
}

std::int32_t ListControl::SelectedData(std::int32_t otherwise) const {
  return mListIndex < 0 ? otherwise : ItemData(mListIndex);
}

int ListControl::IndexOf(const std::string& text) const {
  const auto found = std::ranges::find(mItems, text, &Item::Text);
  return found == mItems.end() ? -1 : static_cast<int>(found - mItems.begin());
}

}  // namespace orx
