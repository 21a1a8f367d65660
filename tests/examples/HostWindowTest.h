// The demo host with its user, on the demo's own data.
#pragma once

#include "examples/maphost/HostWindow.h"
#include "forms/TreeList.h"
#include "maplibrary/model/SampleMap.h"
#include "tests/files/FilesTest.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {

class ExamplesHost : public DesktopTest {
 protected:
  ExamplesHost() {
    modDialog::ResetRememberedChoices();
    window->Show(ShowMode::Modeless);
  }
  ~ExamplesHost() override { desktop().CloseOpenForms(); }

  template <class Kind>
  static Kind& Get(Form& form, const std::string& name) {
    return dynamic_cast<Kind&>(*form.Find(name));
  }
  static void Press(User& person, Form& form, const std::string& name) { person.Click(Get<Button>(form, name)); }
  std::string LastLine() const {
    const std::string& text = window->txtLog.Text();
    return text.substr(text.rfind('\n') + 1);
  }
  const std::vector<Mark>& Drawn() const { return window->pctMap.Drawing().Marks(); }

  std::unique_ptr<maplibrary::Map> map = maplibrary::MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  maphost::Languages languages{std::filesystem::path(ORX_DATA_DIR "/languages")};
  std::shared_ptr<maphost::HostWindow> window = std::make_shared<maphost::HostWindow>(desktop(), *map, languages);
};

}  // namespace orx::test
