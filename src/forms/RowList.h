// What a desktop needs to know of a list whose rows stay in its control: rows by position, and what mouse and keys do
// with them. RowMeasures.h tells how rows are laid out.
#pragma once

#include <memory>
#include <string>

namespace orx {

class TypeAhead;

/// The mark before a row that holds others: whether these are folded away or can be seen.
enum class FoldMark { None, Folded, Unfolded };

/// A press of the left mouse button on a row.
struct RowPress {
  int Position = 0;
  /// Pixels from the left edge of the row.
  int X = 0;
  /// True for the second press right after the first.
  bool IsSecond = false;
};

/// The rows that can be seen, by their position from 0. A position outside throws std::out_of_range.
class RowList {
 public:
  RowList();
  virtual ~RowList();

  /// The number of rows, and the text of one of them.
  virtual int ShownCount() const = 0;
  virtual const std::string& ShownText(int position) const = 0;
  /// Whether a row is selected.
  virtual bool IsSelectedAt(int position) const = 0;
  /// The row that carries the focus mark, -1 for none.
  virtual int FocusPosition() const = 0;
  /// How many levels the text of a row stands in by, and the mark before it.
  virtual int LevelsAt(int) const { return 0; }
  virtual FoldMark MarkAt(int) const { return FoldMark::None; }
  /// Whether a row that has no room is reached by scrolling, also by the keys Left and Right; else its end is left out.
  virtual bool ScrollsAcross() const { return false; }

  /// For desktops: the user presses the mouse on a row, presses a key while the focus is here, or types a character.
  virtual void UserPress(const RowPress& press) = 0;
  virtual void UserKeyDown(int keyCode) = 0;
  virtual void UserCharacter(char32_t character) = 0;
  /// Assistive software selects a row or takes it out of the selection.
  virtual void UserSelect(int position, bool value) = 0;
  /// How many rows the native list has room for; 10 unless told.
  int PageRows() const { return mPageRows; }
  void PageRows(int value) { mPageRows = value > 1 ? value : 1; }

 protected:
  /// The letters that the user has typed here to find a row.
  TypeAhead& Typed() { return *mTyped; }

 private:
  int mPageRows = 10;
  std::unique_ptr<TypeAhead> mTyped;
};

}  // namespace orx
