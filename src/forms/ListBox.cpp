#include "forms/ListBox.h"

#include <stdexcept>

#include "forms/Form.h"
#include "forms/RowNavigation.h"

namespace orx {

bool ListBox::Selected(int row) const {
  if (!IsRow(row)) throw std::out_of_range(Name() + ": no list entry " + std::to_string(row));
  return MultiSelect() ? mSelected.contains(row) : row == ListIndex();
}

void ListBox::Selected(int row, bool value) {
  if (Selected(row) == value) return;
  if (!MultiSelect()) return ListIndex(value ? row : -1);
  if (value) {
    mSelected.insert(row);
  } else {
    mSelected.erase(row);
  }
  Select(row);
  Changed(Aspect::Value);
  Click.Raise();
}

std::set<int> ListBox::SelectedRows() const {
  if (MultiSelect()) return mSelected;
  return ListIndex() < 0 ? std::set<int>() : std::set<int>{ListIndex()};
}

void ListBox::Clear() {
  mSelected.clear();
  ListControl::Clear();
}

template <class Act>
void ListBox::UserActOn(int row, Act&& act) {
  OwnerForm().UserAct([&] {
    // A native list may still show entries that are gone by now.
    if (OwnerForm().MoveFocus(*this) && IsRow(row)) act();
  });
}

void ListBox::UserClick(int row) {
  UserActOn(row, [&] { Selected(row, !MultiSelect() || !Selected(row)); });
}

void ListBox::UserDoubleClick(int row) {
  UserActOn(row, [&] {
    // Where several can be selected, the first click may have taken it out of the selection.
    Selected(row, true);
    DblClick.Raise();
  });
}

void ListBox::UserPress(const RowPress& press) {
  press.IsSecond ? UserDoubleClick(press.Position) : UserClick(press.Position);
}

void ListBox::UserSelect(int row, bool value) {
  // Where only one entry can be selected, selecting another one ends its selection.
  if (!value && !MultiSelect()) return;
  UserActOn(row, [&] { Selected(row, value); });
}

void ListBox::UserKeyDown(int keyCode) {
  OwnerForm().UserAct([&] {
    if (const std::optional<int> row = PositionAfterKey(keyCode, {ListCount(), FocusPosition()}, PageRows()))
      ListIndex(*row);
  });
}

void ListBox::UserCharacter(char32_t character) {
  OwnerForm().UserAct([&] {
    const int at = FocusPosition();
    if (character == U' ' && (MultiSelect() || !Typed().IsTyping())) {
      if (IsRow(at)) Selected(at, !MultiSelect() || !Selected(at));
      return;
    }
    const auto textAt = [this](int row) -> const std::string& { return List(row); };
    if (const std::optional<int> row = Typed().Type(character, {ListCount(), at}, textAt)) ListIndex(*row);
  });
}

}  // namespace orx
