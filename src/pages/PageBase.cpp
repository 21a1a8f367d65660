#include "pages/PageBase.h"

#include "forms/ComboBox.h"

namespace orx::pages {

PageBase::PageBase(const PageSite& site) : Surface(site.Parent, site.Name, {.Place = site.Place}) {
  Adopt(mSettings);
}

void PageBase::Adopt(Settings& list) {
  list.Translate = [this](const std::string& text) { return Translated(mLanguage, text); };
  list.Written = [this](Setting& setting) {
    mIsDirty = mHasWritten = true;
    WasWritten(setting);
  };
}

void PageBase::Client(HostObject* value) {
  mClient = value;
  mHasRead = false;
}

void PageBase::Language(ILanguage* value) {
  mLanguage = value;
  for (const TranslatedList& list : mLists)
    for (int i = 0; i < list.Box->ListCount(); ++i)
      list.Box->List(i, Translated(mLanguage, list.Texts[static_cast<std::size_t>(i)]));
}

void PageBase::RefreshContents() {
  // Until the client could be read there is nothing to edit, also when reading throws.
  if (!mHasRead) ShowNothing();
  if (!IsSupported()) return ShowNothing();
  ReadClient();
  mHasRead = true;
  WhileBusy([this] { ShowValues(); });
  EnableAll(true);
  EnableDependent();
}

void PageBase::ShowNothing() {
  mHasRead = false;
  ForgetClient();
  WhileBusy([this] { ShowValues(); });
  EnableAll(false);
}

void PageBase::EnableAll(bool enabled) {
  for (Control* const control : Surface.All()) control->Enabled(enabled);
}

void PageBase::SaveChanges() {
  WriteChecked();
}

void PageBase::ApplyChanges() {
  if (WriteChecked() && mHasWritten) RefreshContents();
}

bool PageBase::WriteChecked() {
  mHasWritten = false;
  if (!mHasRead) return false;
  if (!mSettings.Check() || !CheckTogether()) return false;
  WriteClient();
  return true;
}

void PageBase::FillList(ComboBox& box, std::initializer_list<const char*> texts) {
  TranslatedList list{&box, {texts.begin(), texts.end()}};
  for (const std::string& text : list.Texts) box.AddItem(text, box.ListCount());
  mLists.push_back(std::move(list));
}

}  // namespace orx::pages
