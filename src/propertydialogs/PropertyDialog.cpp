#include "propertydialogs/PropertyDialog.h"

namespace orx {
namespace {

Design ButtonDesign(const char* caption, int left, int top) {
  return {.Caption = caption, .Place = {left, top, 1275, 375}, .Pinned = true};
}

}  // namespace

PropertyDialog::PropertyDialog(Desktop& desktop, const PropertyDesign& design)
    : DialogForm(desktop, design.FormName,
                 {.Caption = design.Caption, .Client = design.Layout.Client, .Border = design.Border}),
      mHelpKey(design.HelpKey),
      ssTab(*this, "ssTab", {.Place = design.Layout.Tab, .AccessibleName = "Pages"}, design.TabCaptions),
      cmdHelp(*this, "cmdHelp", ButtonDesign("&Help", design.Layout.HelpLeft, design.Layout.ButtonTop)),
      cmdOK(*this, "cmdOK", ButtonDesign("&OK", design.Layout.OKLeft, design.Layout.ButtonTop), ButtonRole::Default),
      cmdCancel(*this, "cmdCancel", ButtonDesign("&Cancel", design.Layout.CancelLeft, design.Layout.ButtonTop),
                ButtonRole::Cancel),
      cmdApply(*this, "cmdApply", ButtonDesign("&Apply", design.Layout.ApplyLeft, design.Layout.ButtonTop)) {
  cmdHelp.Click = [this] { ShowHelp(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
  cmdApply.Click = [this] { cmdApply_Click(); };
}

void PropertyDialog::RegisterCallBack(IDialogCallBack* callBack) {
  mCallBack = callBack;
  Hold(callBack);
  if (mCallBack) mCallBack->RegisterNotify();
}

void PropertyDialog::TakeLanguage() {
  AskLanguage();
  TakeHelpNumber(mHelpKey);
}

void PropertyDialog::Close(bool canceled) {
  mCanceled = canceled;
  Hide();
}

void PropertyDialog::CloseUpButtons() {
  if (mCallBack || !cmdApply.Visible()) return;
  cmdApply.Visible(false);
  cmdOK.Left(cmdCancel.Left());
  cmdCancel.Left(cmdApply.Left());
}

void PropertyDialog::Form_Unload() {
  mCallBack = nullptr;
  DialogForm::Form_Unload();
}

}  // namespace orx
