#include "tests/com/support/MapDialogsTest.h"

#include "desktops/headless/HeadlessDesktop.h"

namespace orx::com::test {

MapDialogsTest::MapDialogsTest() {
  ThreadContext::DesktopMaker([this] {
    auto made = std::make_unique<headless::HeadlessDesktop>();
    made->Hook(this);
    return made;
  });
  dialogs = Create();
}

MapDialogsTest::~MapDialogsTest() {
  dialogs.Reset();
  ThreadContext::DesktopMaker({});
}

void MapDialogsTest::ModalRunning(const Modal& modal) {
  if (modal.ShownFiles && answerFiles) answerFiles(*modal.ShownFiles);
  if (!modal.ShownForm) return;
  shown.push_back(modal.ShownForm->Name() + ": " + modal.ShownForm->Caption());
  if (answer) answer(*modal.ShownForm);
  if (modal.ShownForm->Visible()) modal.ShownForm->UserClose();
}

std::vector<std::string> MapDialogsTest::ShownNames() const {
  std::vector<std::string> names;
  for (const std::string& each : shown) names.push_back(each.substr(0, each.find(':')));
  return names;
}

HRESULT MapDialogsTest::ShowProperties(IDispatch* object, VARIANT* owner) {
  return dialogs->ShowProperties(&object, nullptr, nullptr, owner, &result);
}

ComPtr<ScriptObject> LanguageOf(std::int32_t entries, const char* text) {
  std::map<std::string, Variant> fields;
  fields.emplace("EntryCount", Variant(entries));
  fields.emplace("TranslateText", Variant(text));
  fields.emplace("TranslateForm", Variant());
  return MakeCounted<ScriptObject>(std::move(fields));
}

std::string TakenErrorText() {
  ComPtr<IErrorInfo> info;
  Bstr text;
  if (GetErrorInfo(0, info.Out()) == S_OK) info->GetDescription(text.Out());
  return text.Text();
}

}  // namespace orx::com::test
