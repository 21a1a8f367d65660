// The fixture of the georeference dialog, opened as pages and the service open it.
#pragma once

#include "pickers/frmGeoreference.h"
#include "service/modMain.h"
#include "tests/georeference/GroundMap.h"
#include "tests/support/DesktopTest.h"
#include "text/CharacterCount.h"

namespace orx::test {

class GeoreferenceTest : public DesktopTest {
 protected:
  using Calls = std::vector<std::string>;

  /// Opens the dialog, where the user does `acts`; OK follows when they leave it open.
  template <class Acts>
  bool Edit(Acts acts) {
    script.ExpectForm("frmGeoreference", [this, acts](Form& shown) {
      form = dynamic_cast<frmGeoreference*>(&shown);
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return Open();
  }
  bool Open() { return modMain::ShowGeoreferenceDialog(desktop(), &map, language); }

  using Field = int;
  static constexpr Field kLeft = 0;
  static constexpr Field kRight = 1;
  static constexpr Field kBottom = 2;
  static constexpr Field kTop = 3;
  TextBox& At(Field field) { return form->txtInput[field]; }
  std::string Seen(Field field) { return user.See(At(field)).Text; }
  void Type(Field field, const std::string& text) { user.Type(At(field), text); }
  void Leave() { user.Press(*form, kTab); }
  void Cancel() { user.Click(form->cmdCancel); }
  /// Leaving the field is refused, and it has its text from before back.
  void ExpectRefused(Field field, const std::string& text) {
    const std::string before = Seen(field);
    Type(field, text);
    script.ExpectMessage({"Input not valid.", "Wrong value", MessageIcon::Exclamation});
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible()) << text;
    EXPECT_EQ(before, Seen(field)) << text;
    EXPECT_TRUE(user.See(At(field)).Focused) << text;
    EXPECT_EQ(CharacterCount(before), At(field).SelLength()) << text;
  }
  void ExpectOKRefused() {
    script.ExpectMessage({"Right value must be greater than right value.", "Wrong value", MessageIcon::Exclamation});
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(form->Canceled());
  }
  void ExpectEdges(double left, double right, double bottom, double top) {
    EXPECT_EQ(left, map.Left);
    EXPECT_EQ(right, map.Right);
    EXPECT_EQ(bottom, map.Bottom);
    EXPECT_EQ(top, map.Top);
  }
  /// Nothing is shown: a beep and False.
  void ExpectNotShown(const std::string& why) {
    script.Beeps = 0;
    EXPECT_FALSE(Open()) << why;
    EXPECT_EQ(1, script.Beeps) << why;
    EXPECT_EQ(Calls{}, map.Writes()) << why;
  }

  GroundMap map;
  ILanguage* language = nullptr;
  frmGeoreference* form = nullptr;
};

}  // namespace orx::test
