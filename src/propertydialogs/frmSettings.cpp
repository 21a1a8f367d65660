#include "propertydialogs/frmSettings.h"

#include "hostobjects/RunTimeError.h"

namespace orx {

frmSettings::frmSettings(Desktop& desktop, IPageFactory& pages)
    : PropertyDialog(desktop,
                     {
                         .FormName = "frmSettings",
                         .Caption = "Properties",
                         .HelpKey = "_HelpMapLayerSettings",
                         .TabCaptions = {LayerPages::kTabCaptions.begin(), LayerPages::kTabCaptions.end()},
                     }),
      mFactory(pages) {
}

LayerPages& frmSettings::Pages() {
  Load();
  if (!mPages) throw RunTimeError(kErrorNotLoaded, Caption() + ": a property page is missing.");
  return *mPages;
}

void frmSettings::RegisterClient(HostObject* client, const std::string& registryKey) {
  RegistryKey(registryKey);
  Hold(client);
  Pages().Client(client);
}

void frmSettings::Form_Load() {
  mPages.emplace(mFactory, ssTab, *this);
  Center();
  TakeLanguage();
  mPages->Language(Language());
  Translate();
  if (LanguageActive()) TranslateTabs();
}

void frmSettings::TranslateTabs() {
  // The caption of the first tab is left to the translation of the form.
  for (int tab = 1; tab < ssTab.TabCount(); ++tab) {
    ssTab.Tab(tab);
    ssTab.TabCaption(tab, Language()->TranslateText(LayerPages::kTabCaptions.at(static_cast<std::size_t>(tab))));
  }
  ssTab.Tab(0);
}

void frmSettings::cmdApply_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Pages().Do(&PropertyPage::ApplyChanges);
  if (CallBack()) {
    mLastChange = Pages().IsAnyDirty();
    CallBack()->ApplyNotify(mLastChange);
  }
  IsDirty(false);
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmSettings::cmdOK_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Pages().Do(&PropertyPage::SaveChanges);
  if (CallBack()) {
    mLastChange = Pages().IsAnyDirty();
    CallBack()->OKNotify(mLastChange);
  }
  Close(false);
  OwnerDesktop().Pointer(Pointer::Default);
}

void frmSettings::cmdCancel_Click() {
  Pages().Do(&PropertyPage::DiscardChanges);
  if (CallBack()) {
    mLastChange = Pages().IsAnyDirty();
    CallBack()->CancelNotify(mLastChange);
  }
  Close(true);
}

void frmSettings::Form_Unload() {
  mPages.reset();
  PropertyDialog::Form_Unload();
}

}  // namespace orx
