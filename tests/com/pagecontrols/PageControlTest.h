// The fixture for dialogs with page controls: the service on the Windows desktop, the test control as the page for a
// layer's properties, and a host that records.
#pragma once

#include <optional>

#include "com/PageControlFactory.h"
#include "tests/com/pagecontrols/HostObjects.h"
#include "tests/com/pagecontrols/TestRegistration.h"
#include "tests/support/PageHostTest.h"

namespace orx::test {

class PageControlTest : public DesktopTest {
 protected:
  PageControlTest() { service.CallBack(&callBack); }

  /// Shows the layer properties; the user acts with an empty list of calls.
  std::int32_t Show(const std::function<void(Form&)>& act) {
    script.ExpectForm("frmProperties", [this, act](Form& form) {
      before = std::exchange(state.Log.Calls, {});
      act(form);
    });
    return service.ShowProperties(&object.Adapter());
  }
  void Press(Form& form, const std::string& button) { user.Click(dynamic_cast<Button&>(*form.Find(button))); }
  TestPageControl& Page() { return *state.Last; }
  /// Types into the control's first field.
  void Edit(const wchar_t* text) { SetWindowTextW(Page().First(), text); }

  const Apartment apartment;
  PageControlState state;
  CallLog& log = state.Log;
  std::optional<RegisteredClass> registeredClass{std::in_place, state};
  std::optional<RegisteredProgId> registered{std::in_place, "OrvexMapControls.Properties"};
  RecordingPages embedded{log};
  RecordingCallBack callBack{log};
  AdaptedObject object{"Relief"};
  com::PageControlFactory pages{embedded};
  CCommonMapDialogs service{desktop(), pages};
  /// The calls before the dialog was shown.
  std::vector<std::string> before;
};

}  // namespace orx::test
