#include "propertydialogs/PropertyDialog.h"

#include "hostobjects/RunTimeError.h"

namespace orx {
namespace {

Design ButtonDesign(const char* caption, int left, int top) {
  return {.Caption = caption, .Place = {left, top, 1275, 375}, .Pinned = true};
}

std::vector<std::string> TabCaptions(const std::vector<PageDesign>& pages) {
  std::vector<std::string> captions;
  for (const PageDesign& page : pages) captions.emplace_back(page.TabCaption);
  return captions;
}

}  // namespace

PropertyDialog::PropertyDialog(Desktop& desktop, IPageFactory& factory, const PropertyDesign& design)
    : OkCancelForm(desktop, {design.Name, design.Caption, design.HelpKey, design.Layout.Client, design.Border}),
      mFactory(factory),
      mPageDesigns(design.Pages),
      ssTab(*this, "ssTab", {.Place = design.Layout.Tab, .AccessibleName = "Pages"}, TabCaptions(design.Pages)),
      cmdHelp(*this, "cmdHelp", ButtonDesign("&Help", design.Layout.HelpLeft, design.Layout.ButtonTop)),
      cmdOK(*this, *this, ButtonDesign("&OK", design.Layout.OKLeft, design.Layout.ButtonTop)),
      cmdCancel(*this, *this, ButtonDesign("&Cancel", design.Layout.CancelLeft, design.Layout.ButtonTop)),
      cmdApply(*this, "cmdApply", ButtonDesign("&Apply", design.Layout.ApplyLeft, design.Layout.ButtonTop)) {
  cmdHelp.Click = [this] { ShowHelp(); };
  cmdApply.Click = [this] { OneAtATime([this] { cmdApply_Click(); }); };
}

void PropertyDialog::Take(const PropertyTask& task, ErrorTrap& trap) {
  trap.Step([&] { RegisterClient(task.Client, task.RegistryKey); });
  trap.Step([&] { RegisterCallBack(task.CallBack); });
}

void PropertyDialog::RegisterCallBack(IDialogCallBack* callBack) {
  mCallBack = callBack;
  Hold(callBack);
  if (mCallBack) mCallBack->RegisterNotify();
}

PropertyPages& PropertyDialog::Pages() {
  Load();
  if (mPages) return *mPages;
  const char* const missing =
      mPageDesigns.size() == 1 ? ": the property page is missing." : ": a property page is missing.";
  throw RunTimeError(kErrorNotLoaded, Caption() + missing);
}

void PropertyDialog::Form_Load() {
  mPages.emplace(mFactory, mPageDesigns, ssTab, *this);
  OkCancelForm::Form_Load();
}

void PropertyDialog::TakeLanguage() {
  AskLanguage();
  OkCancelForm::TakeLanguage();
}

void PropertyDialog::Fill() {
  // Even a language without entries.
  mPages->Language(Language());
}

void PropertyDialog::Do(Act act) {
  Pages().ForEach([&](PropertyPage& page) { ButtonStep([&] { (page.*act)(); }); });
}

void PropertyDialog::Tell(Notification notify) {
  if (!mCallBack) return;
  ButtonStep([this] { mLastChange = IsAnyDirty(); });
  // Asking the pages may have cost the form its window, and with it the call-back.
  ButtonStep([&] {
    if (mCallBack) (mCallBack->*notify)(mLastChange);
  });
}

void PropertyDialog::Relay(Act act, Notification notify) {
  Do(act);
  Tell(notify);
}

void PropertyDialog::Apply() {
  Relay(&PropertyPage::ApplyChanges, &IDialogCallBack::ApplyNotify);
}

void PropertyDialog::cmdApply_Click() {
  UnderHourglass([this] { Apply(); });
}

void PropertyDialog::Accept() {
  UnderHourglass([this] {
    Relay(&PropertyPage::SaveChanges, &IDialogCallBack::OKNotify);
    Close(Outcome::Confirmed);
  });
}

void PropertyDialog::UnderHourglass(const std::function<void()>& work) {
  // Where no page could be made, the error comes before the hourglass.
  Pages();
  OwnerDesktop().Pointer(Pointer::Hourglass);
  work();
  OwnerDesktop().Pointer(Pointer::Default);
}

void PropertyDialog::Discard() {
  Relay(&PropertyPage::DiscardChanges, &IDialogCallBack::CancelNotify);
}

void PropertyDialog::CloseUpButtons() {
  if (mCallBack || !cmdApply.Visible()) return;
  cmdApply.Visible(false);
  cmdOK.Left(cmdCancel.Left());
  cmdCancel.Left(cmdApply.Left());
}

void PropertyDialog::Form_Unload() {
  mCallBack = nullptr;
  OkCancelForm::Form_Unload();
}

void PropertyDialog::Form_Release() {
  mPages.reset();
  OkCancelForm::Form_Release();
}

}  // namespace orx
