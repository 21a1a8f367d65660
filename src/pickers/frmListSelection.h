// The dialog in which the user chooses one or several entries of a list, such as layers, with an optional confirmation.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dialogframe/OkCancelForm.h"
#include "forms/ListBox.h"
#include "hostobjects/TextArray.h"

namespace orx {

/// Shows one of two lists. OK or a double click chooses the selected entries, which are reported by their indexes in
/// the host's array. Cancel chooses nothing, and neither does the close box, which does not count as Cancel. A step of
/// loading that fails is skipped.
class frmListSelection final : public OkCancelForm {
 public:
  explicit frmListSelection(Desktop& desktop);

  /// Sets the dialog up, before it is loaded: the entries, whether several can be chosen, which entry is selected at
  /// first (from 1; 0 and below for none; past the last one, the first), whether to ask for a confirmation and with
  /// which question, and the title.
  void Init(TextArray selection, bool multiselect, std::int32_t listIndex, bool askConfirmation,
            std::string confirmationQuestion, std::string caption);

  /// What was chosen, once the dialog has closed: whether the user cancelled, the indexes and their number. After
  /// Cancel, and if none of several was chosen, `selected` is left alone and `count` is 0. Where only one can be
  /// chosen, `count` is 1 otherwise, even if none was and `selected` comes back empty.
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
  /// The place of both lists, only one of which is shown.
  static constexpr Rect kList{120, 120, 5160, 4020};
  /// For assistive software, if there is no title.
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
  /// The indexes that the last OK gathered.
  std::vector<std::int32_t> mSelected;
};

}  // namespace orx
