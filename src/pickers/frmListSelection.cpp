#include "pickers/frmListSelection.h"

#include <initializer_list>
#include <utility>

#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"
#include "text/Trimmed.h"

namespace orx {

frmListSelection::frmListSelection(Desktop& desktop)
    : OkCancelForm(desktop, {.Name = "frmListSelection",
                             .Caption = "Select Layer",
                             .HelpKey = "_HelpMapListSelection",
                             .Client = {5400, 4755}}) {
  for (ListBox* const list : {&lstMultiSelect, &lstSingleSelect}) list->DblClick = [this] { PressOK(); };
}

void frmListSelection::Init(TextArray selection, bool multiselect, std::int32_t listIndex, bool askConfirmation,
                            std::string confirmationQuestion, std::string caption) {
  mItems = std::move(selection);
  mMultiselect = multiselect;
  mListIndex = listIndex;
  mAskConfirmation = askConfirmation;
  mConfirmationQuestion = std::move(confirmationQuestion);
  mCaption = std::move(caption);
}

void frmListSelection::LoadStep(const std::function<void()>& step) {
  ErrorTrap trap;
  trap.Step(step);
}

void frmListSelection::Fill() {
  Caption(mCaption);
  lstMultiSelect.Visible(mMultiselect);
  lstSingleSelect.Visible(!mMultiselect);
  LoadStep([this] { FillList(); });
  if (ShownList().ListCount() == 0) {
    for (Control* const control : std::initializer_list<Control*>{&lstMultiSelect, &lstSingleSelect, &cmdOK})
      control->Enabled(false);
  } else {
    SelectFirst();
  }
}

void frmListSelection::Ready() {
  if (!Caption().empty()) ShownList().GivenName(Caption());
}

void frmListSelection::FillList() {
  ListBox& list = ShownList();
  list.Clear();
  std::int64_t index = mItems.LowerBound;
  for (const std::string& item : mItems.Items) {
    const std::string text(Trimmed(item, kSpaces));
    list.AddItem(text.empty() ? std::to_string(index) : text, static_cast<std::int32_t>(index));
    ++index;
  }
}

void frmListSelection::SelectFirst() {
  if (mListIndex <= 0) return;
  ListBox& list = ShownList();
  list.Selected(mListIndex <= list.ListCount() ? mListIndex - 1 : 0, true);
}

bool frmListSelection::Check() {
  // Starts over, since an earlier OK may have been answered with No.
  mSelected.clear();
  for (const int row : ShownList().SelectedRows()) mSelected.push_back(ShownList().ItemData(row));
  const bool asks = mAskConfirmation && !mSelected.empty();
  const Message question{mConfirmationQuestion, Caption(), MessageIcon::Exclamation, MessageButtons::YesNo};
  return !asks || OwnerDesktop().ShowMessage(question) != MessageAnswer::No;
}

void frmListSelection::Form_Unload() {
  // Closing the window chooses nothing, even after an OK that was answered with No.
  mSelected.clear();
  OkCancelForm::Form_Unload();
}

void frmListSelection::GetSelectedItems(std::vector<std::int32_t>& selected, bool& canceled,
                                        std::int32_t& count) const noexcept {
  canceled = Canceled();
  count = 0;
  if (canceled || (mMultiselect && mSelected.empty())) return;
  count = mMultiselect ? static_cast<std::int32_t>(mSelected.size()) : 1;
  ErrorTrap trap;
  trap.Step([&] { selected = mSelected; });
}

}  // namespace orx
