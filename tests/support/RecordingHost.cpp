#include "tests/support/RecordingHost.h"

#include "forms/Form.h"

namespace orx::test {

RecordingPage::RecordingPage(CallLog& log, const PageSite& site, std::string name,
                             std::function<std::string(HostObject*)> nameOf)
    : mLog(log),
      mName(std::move(name)),
      mNameOf(std::move(nameOf)),
      mPanel(site.Parent, site.Name, {.Place = site.Place}),
      txtValue(mPanel, "txtValue", {.Place = {120, 120, 2400, 330}, .AccessibleName = "Value"}) {
}

void RecordingPage::Client(HostObject* value) {
  const std::string object = value && mNameOf ? mNameOf(value) : "object";
  Call("Client(" + (value ? object : "none") + ")");
  mClient = value;
}

void RecordingPage::Language(ILanguage* value) {
  Call(value ? "Language(object)" : "Language(none)");
  mLanguage = value;
}

bool RecordingPage::IsDirty() const {
  Call("IsDirty");
  return mDirty;
}

void RecordingPage::IsDirty(bool value) {
  Call(value ? "IsDirty(True)" : "IsDirty(False)");
  mDirty = value;
}

std::int32_t RecordingPage::StartUpIndex() const {
  Call("StartUpIndex");
  return PropertyPage::StartUpIndex();
}

void RecordingPage::StartUpIndex(std::int32_t value) {
  Call("StartUpIndex(" + std::to_string(value) + ")");
  PropertyPage::StartUpIndex(value);
}

void RecordingPage::Write(const std::string& call) {
  Call(call);
  mDirty = mDirty || mWritten != txtValue.Text();
  mWritten = txtValue.Text();
}

std::unique_ptr<PropertyPage> RecordingPages::CreatePage(PageKind kind, const PageSite& site) {
  mLog.Call(std::string("Pages.CreatePage(") + PageKindName(kind) + ", " + site.Name + ")");
  if (Created) Created(site.Parent);
  auto page = std::make_unique<RecordingPage>(mLog, site, NamesPages ? PageKindName(kind) : "Page", NameOf);
  Made[kind] = page.get();
  return page;
}

std::string RecordingLanguage::TranslateText(const std::string& key) {
  mLog.Call("Language.TranslateText(" + key + ")");
  if (const auto found = Texts.find(key); found != Texts.end()) return found->second;
  return key.starts_with('_') ? std::string() : "<" + key + ">";
}

void RecordingLanguage::TranslateForm(Form& form) {
  mLog.Call("Language.TranslateForm(" + form.Name() + ")");
  for (Control* control : form.All())
    if (!control->Caption().empty()) control->Caption("<" + control->Caption() + ">");
}

}  // namespace orx::test
