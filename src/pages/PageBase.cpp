#include "pages/PageBase.h"

#include <algorithm>

#include "forms/ComboBox.h"
#include "forms/FieldTexts.h"
#include "hostobjects/ErrorTrap.h"

namespace orx::pages {

PageBase::PageBase(const PageSite& site) : Surface(site.Parent, site.Name, {.Place = site.Place}) {
  Adopt(mSettings);
}

void PageBase::Adopt(Settings& list) {
  list.Translate = [this](const std::string& text) { return Text(text); };
  list.Written = [this](Setting& setting) {
    mIsDirty = mHasWritten = true;
    if (!OwnerForm().IsRetired()) WasWritten(setting);
  };
}

void PageBase::Client(HostObject* value) {
  mClient = value;
  mHasRead = false;
}

void PageBase::Language(ILanguage* value) {
  mLanguage = value;
  for (const TranslatedList& list : mLists)
    for (int i = 0; i < list.Box->ListCount(); ++i) list.Box->List(i, Text(list.Texts[static_cast<std::size_t>(i)]));
}

std::string PageBase::Text(const std::string& text) const {
  std::string translated = text;
  // A language that fails must not keep the page from showing what it has read.
  ErrorTrap().Step([&] { translated = Translated(mLanguage, text); });
  return translated;
}

void PageBase::RefreshContents() {
  if (OwnerForm().IsRetired()) return;
  std::string failure;
  bool isSupported = false;
  try {
    isSupported = IsSupported();
    if (isSupported) ReadClient();
  } catch (...) {
    failure = ErrorText(std::current_exception());
  }
  mHasRead = isSupported && failure.empty();
  if (!mHasRead) ForgetClient();
  mNothing = failure.empty() ? Text(pagetexts::kNothingToEdit) : FillIn(Text(pagetexts::kNotRead), {Reason(failure)});
  TakeBackReasons();
  WhileBusy([this] { ShowValues(); });
  EnableControls();
}

void PageBase::EnableControls() {
  TakeBackReasons();
  for (Control* const control : Surface.All()) {
    const std::string reason = WhyNot(*control);
    control->Enabled(mHasRead && reason.empty() && Offers(*control));
    if (reason.empty()) continue;
    mToolTips[control] = control->ToolTipText();
    control->ToolTipText(reason);
  }
}

void PageBase::TakeBackReasons() {
  for (const auto& [control, toolTip] : mToolTips) control->ToolTipText(toolTip);
  mToolTips.clear();
}

std::string PageBase::WhyNot(const Control& control) const {
  if (!mHasRead) return control.TakesFocus() ? mNothing : std::string();
  const Setting* const locked = LockOf(control);
  return locked ? FillIn(Text(pagetexts::kNotRead), {Reason(*locked->Fault())}) : std::string();
}

const Setting* PageBase::LockOf(const Control& control) const {
  const auto has = [&](const Setting* setting) {
    const std::vector<Control*> controls = setting->IsLocked() ? setting->Controls() : std::vector<Control*>();
    return std::ranges::find(controls, &control) != controls.end();
  };
  const auto own = std::ranges::find_if(Shown().All(), has);
  if (own != Shown().All().end()) return *own;
  for (const auto& [box, followed] : mFollowers) {
    const auto found = std::ranges::find_if(followed, &Setting::IsLocked);
    if (box == &control && found != followed.end()) return *found;
  }
  return nullptr;
}

std::string PageBase::Reason(const std::string& words) const {
  for (const char* const own : {pagetexts::kGone, pagetexts::kNoData, kUnknownError})
    if (words == own) return Text(own);
  return words;
}

void PageBase::SaveChanges() {
  if (WriteChecked()) TellRefused();
}

void PageBase::ApplyChanges() {
  // What was refused stays in the fields.
  if (WriteChecked() && !TellRefused() && mHasWritten) RefreshContents();
}

bool PageBase::WriteChecked() {
  mHasWritten = false;
  if (!mHasRead) return false;
  if (!mSettings.Check() || !CheckTogether()) return false;
  WriteClient();
  return true;
}

std::vector<std::string> PageBase::Refused() const {
  std::vector<std::string> lines;
  for (const Setting* const setting : mSettings.All())
    if (setting->Fault() && !setting->IsLocked()) lines.push_back(Line(setting->Name(), *setting));
  return lines;
}

std::string PageBase::Line(const std::string& name, const Setting& refused) const {
  return name + ": " + Reason(*refused.Fault());
}

bool PageBase::TellRefused() {
  const std::vector<std::string> refused = Refused();
  if (refused.empty() || OwnerForm().IsRetired()) return !refused.empty();
  std::string text = Text(pagetexts::kNotWritten);
  for (const std::string& line : refused) text += "\r\n" + line;
  Tell(text);
  return true;
}

bool PageBase::Ask(const std::function<void()>& question) {
  std::string failure;
  try {
    question();
  } catch (...) {
    failure = ErrorText(std::current_exception());
  }
  if (OwnerForm().IsRetired()) return false;
  if (!failure.empty()) Tell(FillIn(Text(pagetexts::kNotDone), {Reason(failure)}));
  return failure.empty();
}

void PageBase::Tell(const std::string& text) {
  Desktop& desktop = OwnerForm().OwnerDesktop();
  // A save runs under the hourglass.
  desktop.Pointer(Pointer::Default);
  desktop.ShowMessage({text, OwnerForm().Caption(), MessageIcon::Exclamation});
}

void PageBase::FillList(ComboBox& box, std::initializer_list<const char*> texts) {
  TranslatedList list{&box, {texts.begin(), texts.end()}};
  for (const std::string& text : list.Texts) box.AddItem(text, box.ListCount());
  mLists.push_back(std::move(list));
}

}  // namespace orx::pages
