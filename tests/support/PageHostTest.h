// The fixture for the page-host dialogs: the service with a host that records.
#pragma once

#include "service/CCommonMapDialogs.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {

class PageHostTest : public DesktopTest {
 protected:
  PageHostTest() { modMain::HelpFile({}); }
  ~PageHostTest() override {
    desktop().CloseOpenForms();
    modMain::HelpFile({});
  }

  template <class Kind>
  static Kind& Get(Form& form, const std::string& name) {
    return dynamic_cast<Kind&>(*form.Find(name));
  }
  void Press(Form& form, const std::string& button) { user.Click(Get<Button>(form, button)); }
  void Edit(Form& form, const std::string& text) { user.Type(Get<TextBox>(form, "txtValue"), text); }
  /// What was called since the last time.
  std::vector<std::string> NewCalls() { return std::exchange(log.Calls, {}); }

  CallLog log;
  RecordingPages pages{log};
  RecordingCallBack callBack{log};
  RecordingLanguage language{log};
  PlainObject object;
  CCommonMapDialogs service{desktop(), pages};
};

using Calls = std::vector<std::string>;

}  // namespace orx::test
