// The fixture of the classification dialog: the routine that opens it, a recorded data object, and short ways to the
// controls.
#pragma once

#include "datadialogs/frmDataClassify.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {

using Calls = std::vector<std::string>;

/// The writes of OK, in their order.
inline const Calls kAllWrites = {
    "ValueFormat=", "ShowParameterName=", "ClassifyMethod=", "NumberOfClasses=", "MinValue=",
    "MaxValue=",    "OutsideAsMissing=",  "LegendStyle=",    "FirstClassSize=",  "LastClassSize="};

class ClassifyTest : public DesktopTest {
 protected:
  /// Opens the dialog, where the user does `acts`; OK follows when they leave it open.
  template <class Acts>
  bool Classify(Acts acts) {
    script.ExpectForm("frmDataClassify", [this, acts](Form& shown) {
      form = dynamic_cast<frmDataClassify*>(&shown);
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return modMain::ShowClassifyDialog(desktop(), {&data, low, high, flags}, isDirty, language);
  }
  std::string Seen(Control& control) { return user.See(control).Text; }
  bool IsEnabled(Control& control) { return user.See(control).Enabled; }
  bool IsTicked(CheckBox& box) { return user.See(box).Value == 1; }
  /// Types into a field and leaves it.
  void Enter(TextBox& field, const std::string& text) {
    user.Type(field, text);
    user.Press(*form, kTab);
  }
  void Cancel() { user.Click(form->cmdCancel); }
  void ExpectWrongValue(const std::string& text) {
    script.ExpectMessage({text, "Wrong value", MessageIcon::Exclamation});
  }
  /// Presses OK, which is refused with the message; the dialog stays and nothing is written.
  void ExpectRefused(const std::string& text, Control& focused) {
    ExpectWrongValue(text);
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(user.See(focused).Focused) << focused.Name();
    EXPECT_EQ(data.Writes(), Calls{});
  }

  RecordedData data;
  double low = -5;
  double high = 500;
  std::int32_t flags = kMayChangeClassCount;
  bool isDirty = false;
  ILanguage* language = nullptr;
  frmDataClassify* form = nullptr;
};

}  // namespace orx::test
