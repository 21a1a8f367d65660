// A list of rows in levels, where a row can hide those below it: layers with their tiles.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/RowList.h"

namespace orx {

struct RowSpan;

/// One row. It holds the rows of a greater level that follow it.
struct TreeRow {
  std::string Text;
  int Level = 0;
  /// A number and a text for the form's own use.
  std::int32_t Data = 0;
  std::string Tag = {};
  /// Whether the rows below it can be seen.
  bool Expanded = false;
};

/// Rows live here alone: a native list asks for those that it paints, so that a list of any length costs what its rows
/// cost. Rows are numbered from 0 through all levels, folded ones too; of those that can be seen the position counts.
/// Mouse and keys: a click selects, a click on the mark before a row or a double click folds it; Up, Down, Home, End,
/// Page Up and Page Down go through what can be seen; Left and Right fold, or go to the row above or below in level;
/// letters that are typed in a row go to the next row which begins with them.
class TreeList final : public Control, public RowList {
 public:
  /// As Control; the list is empty at first.
  using Control::Control;

  /// The number of rows of all levels.
  int ListCount() const { return static_cast<int>(mRows.size()); }
  /// A row, by index from 0. An index outside the list throws std::out_of_range, here and below.
  const TreeRow& Row(int row) const { return mRows.at(static_cast<std::size_t>(row)); }
  /// Replaces the text of a row.
  void Text(int row, const std::string& value);
  /// Adds a row at the end.
  void AddRow(TreeRow row);
  /// Removes all rows and the selection, without an event.
  void Clear();

  /// While false, nothing of what changes reaches the screen; true brings all of it there at once.
  bool Redraw() const { return mRedraw; }
  void Redraw(bool value);

  /// True when rows of a greater level follow.
  bool HasChildren(int row) const;
  /// The row that holds this one, -1 for the rows of the least level.
  int ParentOf(int row) const { return mParents.at(static_cast<std::size_t>(row)); }
  /// Shows or folds what the row holds. When the selected row is folded away, the row that was folded is selected.
  void Expand(int row, bool expanded);

  /// The index of the selected row, -1 when none is.
  int ListIndex() const { return mListIndex; }
  /// Selects a row (-1: none), unfolds what it stands in, brings it into view, and raises Click when it was not
  /// selected.
  void ListIndex(int row);

  /// The row at a position, and the position of a row, -1 while it is folded away.
  int ShownRow(int position) const;
  int PositionOf(int row) const;

  int ShownCount() const override;
  const std::string& ShownText(int position) const override { return Row(ShownRow(position)).Text; }
  bool IsSelectedAt(int position) const override { return ShownRow(position) == mListIndex; }
  int FocusPosition() const override { return mListIndex < 0 ? -1 : PositionOf(mListIndex); }
  /// One for each level above the row, and one for the mark.
  int LevelsAt(int position) const override { return Row(ShownRow(position)).Level + 1; }
  FoldMark MarkAt(int position) const override;

  /// The topic that F1 opens, when the form does that; 0 for none of its own.
  std::int32_t HelpContextId() const { return mHelpContextId; }
  void HelpContextId(std::int32_t value) { mHelpContextId = value; }

  /// Raised when another row is selected by mouse or by the program, and when the user clicks on the selected one.
  Event<> Click;
  /// Raised with its code when a key was pressed here, after the list has done its part: the selected row may be
  /// another one, without a Click. Keys that belong to the dialog (Tab, Enter, Escape, all with Alt) do not come here;
  /// typed characters that have found a row come with the code 0.
  Event<int> KeyDown;
  bool HandlesKeys() const override { return KeyDown.HasHandler(); }

  /// For desktops and test users: the user clicks on a row, or folds one by mouse.
  void UserClick(int row);
  void UserFold(int row);
  void UserPress(const RowPress& press) override;
  void UserKeyDown(int keyCode) override;
  void UserCharacter(char32_t character) override;
  void UserSelect(int position, bool value) override;

  void Accept(ControlVisitor& visitor) override;

 private:
  bool IsRow(int row) const { return row >= 0 && row < ListCount(); }
  bool IsPosition(int position) const { return position >= 0 && position < ShownCount(); }
  void RowsChanged();
  void Tell(Aspect aspect);
  void FindShown() const;
  /// Selects without an event.
  void Select(int row);
  void SelectPosition(int position);
  /// The rows that can be seen, and the selected one among them.
  RowSpan Shown() const;
  void GoLeft();
  void GoRight();
  void Navigate(int keyCode);

  std::vector<TreeRow> mRows;
  /// The row that holds each row.
  std::vector<int> mParents;
  int mListIndex = -1;
  bool mRedraw = true;
  std::int32_t mHelpContextId = 0;
  /// Worked out when somebody asks.
  mutable std::vector<int> mShown;
  mutable std::vector<int> mPositions;
  mutable bool mShownIsKnown = false;
};

}  // namespace orx
