#include "propertydialogs/PageHostForm.h"

#include "hostobjects/RunTimeError.h"

namespace orx {
namespace {

Design ButtonDesign(const char* caption, int left, int top) {
  return {.Caption = caption, .Place = {left, top, 1275, 375}, .Pinned = true};
}

}  // namespace

PageHostForm::PageHostForm(Desktop& desktop, IPageFactory& pages, const PageHostDesign& design)
    : DialogForm(desktop, design.FormName, {.Caption = design.Caption, .Client = design.Layout.Client}),
      mHostDesign(design),
      mPages(pages),
      ssTab(*this, "ssTab", {.Place = design.Layout.Tab}, {design.TabCaption}),
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

void PageHostForm::RegisterCallBack(IDialogCallBack* callBack) {
  mCallBack = callBack;
  Hold(callBack);
  if (mCallBack) mCallBack->RegisterNotify();
}

void PageHostForm::RegisterClient(HostObject* client, const std::string& registryKey) {
  mRegistryKey = registryKey;
  Hold(client);
  Page().Client(client);
}

PropertyPage& PageHostForm::Page() {
  Load();
  if (!mPage) throw RunTimeError(kErrorNotLoaded, std::string(mHostDesign.Caption) + ": the property page is missing.");
  return *mPage;
}

void PageHostForm::Form_Load() {
  const Size size = ssTab.PageSize();
  mPage = RequirePage(mPages, mHostDesign.Page, {ssTab.Page(0), mHostDesign.PageName, {0, 0, size.Width, size.Height}});
  Center();
  AskLanguage();
  TakeHelpNumber(mHostDesign.HelpKey);
  mPage->Language(Language());
  Translate();
}

void PageHostForm::CloseUpButtons() {
  if (mCallBack || !cmdApply.Visible()) return;
  cmdApply.Visible(false);
  cmdOK.Left(cmdCancel.Left());
  cmdCancel.Left(cmdApply.Left());
}

void PageHostForm::cmdApply_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Page().ApplyChanges();
  if (mCallBack) mCallBack->ApplyNotify(IsDirty());
  OwnerDesktop().Pointer(Pointer::Default);
}

void PageHostForm::cmdOK_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Page().SaveChanges();
  if (mCallBack) mCallBack->OKNotify(IsDirty());
  mCanceled = false;
  Hide();
  OwnerDesktop().Pointer(Pointer::Default);
}

void PageHostForm::cmdCancel_Click() {
  Page().DiscardChanges();
  if (mCallBack) mCallBack->CancelNotify(IsDirty());
  mCanceled = true;
  Hide();
}

void PageHostForm::Form_Unload() {
  mCallBack = nullptr;
  mPage.reset();
  DialogForm::Form_Unload();
}

}  // namespace orx
