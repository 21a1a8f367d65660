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
  // Taking the window away cancels the operation. The host asks for it later.
  mCancelAction = true;
  DialogForm::Form_Unload();
}

bool frmProgress::Form_QueryUnload() {
  // A host that is still working must not lose its window, but one that waits for a modal form would wait forever.
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
