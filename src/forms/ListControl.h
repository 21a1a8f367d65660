// What controls with a list of entries have in common. Every entry carries a number.
#pragma once

#include <cstdint>
#include <vector>

#include "forms/Control.h"

namespace orx {

/// Entries in the order in which they were added, of which at most one is the current one.
class ListControl : public Control {
 public:
  /// As Control; the list is empty at first.
  using Control::Control;

  /// The number of entries.
  int ListCount() const { return static_cast<int>(mItems.size()); }
  /// The text and the number of an entry, by index from 0. An index outside the list throws std::out_of_range.
  const std::string& List(int index) const { return mItems.at(static_cast<std::size_t>(index)).Text; }
  std::int32_t ItemData(int index) const { return mItems.at(static_cast<std::size_t>(index)).Data; }
  /// Replaces the text of an entry; its number and the selection stay.
  void List(int index, const std::string& text);
  /// Adds an entry at the end.
  void AddItem(const std::string& text, std::int32_t data = 0);
  /// Removes all entries and the selection, without an event.
  virtual void Clear();

  /// True for a list whose entries are words of the dialog's own, which a language translates with the form. False, as
  /// at first, for names, numbers and whatever else the entries stand for.
  bool HasWords() const { return mHasWords; }
  void HasWords(bool value) { mHasWords = value; }

  /// The index of the current entry, -1 when none is: the selected one, where not several can be selected.
  int ListIndex() const { return mListIndex; }
  /// Goes to an entry (-1: to none) and raises Click when it was not the current one. Throws std::out_of_range.
  void ListIndex(int index);
  /// Selects the first entry with that number and returns true; without such an entry nothing changes.
  bool SelectData(std::int32_t data);
  /// The number of the selected entry, `otherwise` when none is selected.
  std::int32_t SelectedData(std::int32_t otherwise = 0) const;

  /// How often the user has picked an entry that may have been shown already; 0 for lists that know only of changes.
  virtual int Edits() const { return 0; }

  /// Raised when an entry is selected, by the user or by the program.
  Event<> Click;

 protected:
  /// The index of the first entry with that text, -1 when there is none.
  int IndexOf(const std::string& text) const;
  /// Takes over an index without an event.
  void Select(int index) { mListIndex = index; }
  /// The selection or the text of the selected entry has changed.
  virtual void SelectionChanged() {}

 private:
  struct Item {
    std::string Text;
    std::int32_t Data;
  };

  std::vector<Item> mItems;
  int mListIndex = -1;
  bool mHasWords = false;
};

}  // namespace orx
