// A combo box: a drop-down list, or a text field with a list beside it. Every entry carries a number.
#pragma once

#include <cstdint>
#include <vector>

#include "forms/Control.h"

namespace orx {

/// Whether a user picks one of the entries, or may type any text as well.
enum class ComboStyle { DropDownList, Editable };

/// A list that drops down. Entries keep the order in which they were added.
class ComboBox final : public Control {
 public:
  /// As Control; the list is empty at first and the style is fixed.
  ComboBox(Container& parent, std::string name, Design design, ComboStyle style = ComboStyle::DropDownList)
      : Control(parent, std::move(name), std::move(design)), mStyle(style) {}

  /// The style that was given when the box was made.
  ComboStyle Style() const { return mStyle; }

  /// The number of entries.
  int ListCount() const { return static_cast<int>(mItems.size()); }
  /// The text and the number of an entry, by index from 0. An index outside the list throws std::out_of_range.
  const std::string& List(int index) const { return mItems.at(static_cast<std::size_t>(index)).Text; }
  std::int32_t ItemData(int index) const { return mItems.at(static_cast<std::size_t>(index)).Data; }
  /// Replaces the text of an entry; its number and the selection stay.
  void List(int index, const std::string& text);
  /// Adds an entry at the end.
  void AddItem(const std::string& text, std::int32_t data = 0);
  /// Removes all entries, the selection and the text, without an event.
  void Clear();

  /// The index of the selected entry, -1 when none is.
  int ListIndex() const { return mListIndex; }
  /// Selects an entry (-1: none) and raises Click when it was not selected. Throws std::out_of_range.
  void ListIndex(int index);
  /// Selects the first entry with that number and returns true; without such an entry nothing changes.
  bool SelectData(std::int32_t data);
  /// The number of the selected entry, `otherwise` when none is selected.
  std::int32_t SelectedData(std::int32_t otherwise = 0) const;

  /// The text: of the selected entry, or as typed in an editable box.
  const std::string& Text() const { return mText; }
  /// Sets the text. An editable box raises Change when it differs; a drop-down list selects the entry with that text,
  /// or throws std::invalid_argument when there is none.
  void Text(const std::string& value);

  /// Raised when an entry is selected, by the user or by the program.
  Event<> Click;
  /// Raised when the text of an editable box is typed or set.
  Event<> Change;

  /// For desktops and test users: the user picks an entry, or types into an editable box.
  void UserPick(int index);
  void UserText(const std::string& text);
  void Accept(ControlVisitor& visitor) override;

 private:
  struct Item {
    std::string Text;
    std::int32_t Data;
  };

  int IndexOf(const std::string& text) const;

  ComboStyle mStyle;
  std::vector<Item> mItems;
  int mListIndex = -1;
  std::string mText;
};

}  // namespace orx
