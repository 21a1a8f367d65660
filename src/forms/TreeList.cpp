#include "forms/TreeList.h"

#include <stdexcept>
#include <utility>

#include "forms/Form.h"
#include "forms/RowMeasures.h"
#include "forms/RowNavigation.h"

namespace orx {

void TreeList::RowsChanged() {
  mShownIsKnown = false;
  Tell(Aspect::Items);
}

void TreeList::Tell(Aspect aspect) {
  if (mRedraw) Changed(aspect);
}

void TreeList::Text(int row, const std::string& value) {
  std::string& text = mRows.at(static_cast<std::size_t>(row)).Text;
  if (text == value) return;
  text = value;
  Tell(Aspect::Text);
}

void TreeList::AddRow(TreeRow row) {
  int parent = ListCount() - 1;
  while (parent >= 0 && mRows[static_cast<std::size_t>(parent)].Level >= row.Level) parent = ParentOf(parent);
  mParents.push_back(parent);
  mRows.push_back(std::move(row));
  RowsChanged();
}

void TreeList::Clear() {
  mRows.clear();
  mParents.clear();
  mListIndex = -1;
  RowsChanged();
}

void TreeList::Redraw(bool value) {
  if (mRedraw == value) return;
  mRedraw = value;
  Tell(Aspect::Items);
  Tell(Aspect::Value);
}

bool TreeList::HasChildren(int row) const {
  return row + 1 < ListCount() && Row(row + 1).Level > Row(row).Level;
}

void TreeList::Expand(int row, bool expanded) {
  TreeRow& changed = mRows.at(static_cast<std::size_t>(row));
  if (changed.Expanded == expanded) return;
  changed.Expanded = expanded;
  RowsChanged();
  if (mListIndex >= 0 && PositionOf(mListIndex) < 0) ListIndex(row);
}

void TreeList::Select(int row) {
  mListIndex = row;
  bool hasUnfolded = false;
  for (int above = row < 0 ? -1 : ParentOf(row); above >= 0; above = ParentOf(above))
    hasUnfolded = !std::exchange(mRows[static_cast<std::size_t>(above)].Expanded, true) || hasUnfolded;
  if (hasUnfolded) RowsChanged();
  Tell(Aspect::Value);
}

void TreeList::ListIndex(int row) {
  if (row < -1 || row >= ListCount()) throw std::out_of_range(Name() + ": no row " + std::to_string(row));
  if (row == mListIndex) return;
  Select(row);
  Click.Raise();
}

void TreeList::FindShown() const {
  if (std::exchange(mShownIsKnown, true)) return;
  mShown.clear();
  mPositions.assign(mRows.size(), -1);
  // Rows below a folded one are skipped until one comes that is not deeper.
  int foldedLevel = -1;
  for (int row = 0; row < ListCount(); ++row) {
    const TreeRow& each = mRows[static_cast<std::size_t>(row)];
    if (foldedLevel >= 0 && each.Level > foldedLevel) continue;
    foldedLevel = each.Expanded ? -1 : each.Level;
    mPositions[static_cast<std::size_t>(row)] = static_cast<int>(mShown.size());
    mShown.push_back(row);
  }
}

int TreeList::ShownCount() const {
  FindShown();
  return static_cast<int>(mShown.size());
}

int TreeList::ShownRow(int position) const {
  FindShown();
  return mShown.at(static_cast<std::size_t>(position));
}

int TreeList::PositionOf(int row) const {
  FindShown();
  return mPositions.at(static_cast<std::size_t>(row));
}

FoldMark TreeList::MarkAt(int position) const {
  const int row = ShownRow(position);
  if (!HasChildren(row)) return FoldMark::None;
  return Row(row).Expanded ? FoldMark::Unfolded : FoldMark::Folded;
}

void TreeList::UserClick(int row) {
  OwnerForm().UserAct([&] {
    // A native list may still show rows that are gone by now.
    if (!OwnerForm().MoveFocus(*this) || !IsRow(row)) return;
    if (row != mListIndex) Select(row);
    Click.Raise();
  });
}

void TreeList::UserFold(int row) {
  OwnerForm().UserAct([&] {
    if (OwnerForm().MoveFocus(*this) && IsRow(row) && HasChildren(row)) Expand(row, !Row(row).Expanded);
  });
}

void TreeList::UserPress(const RowPress& press) {
  // A native list may still show rows that are gone by now.
  if (!IsPosition(press.Position)) return;
  const RowMeasures measures(OwnerForm().OwnerDesktop().Scale());
  const bool isOnMark = measures.MarkAt(LevelsAt(press.Position)).Holds(press.X);
  const bool folds = MarkAt(press.Position) != FoldMark::None && (isOnMark || press.IsSecond);
  const int row = ShownRow(press.Position);
  folds ? UserFold(row) : UserClick(row);
}

void TreeList::UserSelect(int position, bool value) {
  if (value && IsPosition(position)) UserClick(ShownRow(position));
}

void TreeList::UserKeyDown(int keyCode) {
  OwnerForm().UserAct([&] {
    Navigate(keyCode);
    KeyDown.Raise(keyCode);
  });
}

void TreeList::SelectPosition(int position) {
  const int row = ShownRow(position);
  if (row != mListIndex) Select(row);
}

void TreeList::GoLeft() {
  if (mListIndex < 0) return;
  if (HasChildren(mListIndex) && Row(mListIndex).Expanded) return Expand(mListIndex, false);
  if (const int above = ParentOf(mListIndex); above >= 0) Select(above);
}

void TreeList::GoRight() {
  if (mListIndex < 0 || !HasChildren(mListIndex)) return;
  if (!Row(mListIndex).Expanded) return Expand(mListIndex, true);
  Select(mListIndex + 1);
}

void TreeList::Navigate(int keyCode) {
  if (const std::optional<int> position = PositionAfterKey(keyCode, Shown(), PageRows()))
    return SelectPosition(*position);
  switch (keyCode) {
    case kKeyCodeLeft:
      return GoLeft();
    case kKeyCodeRight:
      return GoRight();
    case kKeyCodePlus:
    case kKeyCodeMinus:
      if (mListIndex >= 0 && HasChildren(mListIndex)) Expand(mListIndex, keyCode == kKeyCodePlus);
      return;
    default:
      return;
  }
}

void TreeList::UserCharacter(char32_t character) {
  OwnerForm().UserAct([&] {
    const auto textAt = [this](int position) -> const std::string& { return ShownText(position); };
    const std::optional<int> found = Typed().Type(character, Shown(), textAt);
    if (!found || ShownRow(*found) == mListIndex) return;
    SelectPosition(*found);
    KeyDown.Raise(0);
  });
}

RowSpan TreeList::Shown() const {
  return {ShownCount(), FocusPosition()};
}

}  // namespace orx
