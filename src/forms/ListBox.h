// A list that stands open, of which one entry or several can be selected.
#pragma once

#include <cstdint>
#include <set>

#include "forms/ListControl.h"
#include "forms/RowList.h"

namespace orx {

/// How many entries of a list can be selected at a time.
enum class ListSelection { Single, Several };

/// Entries live here alone: a native list asks for those that it paints, so that a list of any length costs what its
/// entries cost. It scrolls when its entries need more room, also sideways. Fill a long one before its form is shown:
/// an entry that is added later is brought to the screen at once.
///
/// Single: a click, the arrow keys, Home, End, Page Up, Page Down and typed letters select an entry, and the one before
/// is no longer selected. ListIndex is the selected entry.
///
/// Several: a click and the space bar select an entry or take it out of the selection; no other key is held for it. The
/// keys and typed letters move the focus row alone, which is ListIndex; until the user or the program has gone to one,
/// it is the first.
class ListBox final : public ListControl, public RowList {
 public:
  /// As Control; the list is empty at first and the kind of selection is fixed.
  ListBox(Container& parent, std::string name, Design design, ListSelection selection = ListSelection::Single)
      : ListControl(parent, std::move(name), std::move(design)), mSelection(selection) {}

  /// True when several entries can be selected.
  bool MultiSelect() const { return mSelection == ListSelection::Several; }

  /// Whether an entry is selected, by index from 0. An index outside the list throws std::out_of_range.
  bool Selected(int row) const;
  /// Selects an entry or takes it out of the selection, and raises Click when that changes anything. Where one entry
  /// can be selected at most, this sets ListIndex; among several the entry also becomes the focus row.
  void Selected(int row, bool value);
  /// The selected entries.
  std::set<int> SelectedRows() const;
  void Clear() override;

  int ShownCount() const override { return ListCount(); }
  const std::string& ShownText(int position) const override { return List(position); }
  bool IsSelectedAt(int position) const override { return Selected(position); }
  /// The entry that keys start from, -1 when there is none.
  int FocusPosition() const override { return MultiSelect() && ListIndex() < 0 && ListCount() > 0 ? 0 : ListIndex(); }
  bool ScrollsAcross() const override { return true; }

  /// Raised when the user clicks twice on an entry, which is selected then.
  Event<> DblClick;

  /// For desktops and test users: the user clicks on an entry, or a second time right after that.
  void UserClick(int row);
  void UserDoubleClick(int row);
  void UserPress(const RowPress& press) override;
  void UserKeyDown(int keyCode) override;
  void UserCharacter(char32_t character) override;
  void UserSelect(int row, bool value) override;

  void Accept(ControlVisitor& visitor) override;

 private:
  bool IsRow(int row) const { return row >= 0 && row < ListCount(); }
  /// Runs what the user does with a row, unless the field that has the focus keeps it.
  template <class Act>
  void UserActOn(int row, Act&& act);

  ListSelection mSelection;
  /// Where several can be selected.
  std::set<int> mSelected;
};

}  // namespace orx
