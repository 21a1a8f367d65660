#include "pickers/frmProgress.h"

namespace orx {

frmProgress::frmProgress(Desktop& desktop)
    : DialogForm(
          desktop,
          {.Name = "frmProgress", .Caption = "Progress", .HelpKey = "_HelpMapProgress", .Client = {5700, 1785}}) {
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  PaceUpdates();
}

void frmProgress::TakeLanguage() {
  AskLanguage();
  DialogForm::TakeLanguage();
}

void frmProgress::Fill() {
  mCancelAction = false;
  cmdCancel.Enabled(true);
}

void frmProgress::Form_Unload() {
  // Whoever takes the window away wants no more of the operation; the host asks for this later.
  mCancelAction = true;
  DialogForm::Form_Unload();
}

bool frmProgress::Form_QueryUnload() {
  // A host that works on must not lose its window. One that waits for the modal form to go would wait for ever.
  if (!mCancelAction) {
    cmdCancel_Click();
  } else if (IsModal()) {
    Hide();
  }
  return false;
}

void frmProgress::cmdCancel_Click() {
  mCancelAction = true;
  cmdCancel.Enabled(false);
}

}  // namespace orx
