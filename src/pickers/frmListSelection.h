// The dialog that has the user choose one or several entries of a list, such as layers, and asks once more if wanted.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dialogframe/OkCancelForm.h"
#include "forms/ListBox.h"
#include "hostobjects/TextArray.h"

namespace orx {

/// Shows one of two lists. Entries are chosen by OK and by a double click, and told by their indexes in the host's
/// array. Cancel chooses nothing, and neither does the close box, which does not count as Cancel.
class frmListSelection final : public OkCancelForm {
 public:
  explicit frmListSelection(Desktop& desktop);

  /// What the dialog is about, before it is loaded: the entries, whether several can be chosen, the place in the list
  /// of the entry that is selected at first (from 1; 0 and below: none; behind the last: the first), whether to ask for
  /// a confirmation and by which question, and the title.
  void Init(TextArray selection, bool multiselect, std::int32_t listIndex, bool askConfirmation,
            std::string confirmationQuestion, std::string caption);

  /// What was chosen, once the dialog has closed: whether the user has cancelled, the indexes and their number. After
  /// Cancel, and among several when none was chosen, `selected` stays as it is and `count` is 0. Where one can be
  /// chosen, `count` is 1 otherwise, also when none was and `selected` is empty.
  void GetSelectedItems(std::vector<std::int32_t>& selected, bool& canceled, std::int32_t& count) const noexcept;

  ListBox lstMultiSelect{
      *this, "lstMultiSelect", {.Place = kList, .AccessibleName = kListName}, ListSelection::Several};
  ListBox lstSingleSelect{*this, "lstSingleSelect", {.Place = kList, .AccessibleName = kListName}};
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 protected:
  void LoadStep(const std::function<void()>& step) override;
  void Fill() override;
  void Ready() override;
  bool Check() override;
  void Discard() override { mSelected.clear(); }
  void Form_Unload() override;

 private:
  /// Both lists stand here, of which one is shown.
  static constexpr Rect kList{120, 120, 5160, 4020};
  /// For assistive software, while there is no title.
  static constexpr const char* kListName = "Entries";

  ListBox& ShownList() { return mMultiselect ? lstMultiSelect : lstSingleSelect; }
  void FillList();
  void SelectFirst();

  TextArray mItems;
  std::string mCaption;
  std::string mConfirmationQuestion;
  bool mMultiselect = false;
  bool mAskConfirmation = false;
  std::int32_t mListIndex = 0;
  /// The indexes that the last OK has gathered.
  std::vector<std::int32_t> mSelected;
};

}  // namespace orx
