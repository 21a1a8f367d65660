// Settings that the host fails to give or to take, in lists that keep the faults.
#include "forms/ErrorText.h"
#include "tests/forms/LampForm.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

using Calls = std::vector<std::string>;

class FormsSettingFaults : public DesktopTest {
 protected:
  /// A shown form that has read the lamp.
  LampForm& Show(WriteRule write) {
    form = std::make_shared<LampForm>(desktop(), write, KeepFault);
    form->Client = &lamp;
    form->List.Read();
    form->Show(ShowMode::Modeless);
    lamp.Calls();
    return *form;
  }
  void TearDown() override {
    form->Unload();
    DesktopTest::TearDown();
  }
  Calls Written() {
    form->List.Write();
    return lamp.Calls();
  }

  Lamp lamp;
  std::shared_ptr<LampForm> form;
};

TEST_F(FormsSettingFaults, OneThatCannotBeReadIsLockedWithItsFaultAndTheOthersGoOn) {
  lamp.Failing = "Name";
  LampForm& shown = Show(WriteRule::Always);
  EXPECT_TRUE(shown.Name.IsLocked());
  EXPECT_EQ("Name failed", shown.Name.Fault());
  EXPECT_EQ("", user.See(shown.txtName).Text);
  for (const Setting* const setting : shown.List.All()) EXPECT_EQ(setting == &shown.Name, setting->IsLocked());
  // Whatever its field holds, nobody hears of it.
  shown.txtName.Text("Floor lamp");
  EXPECT_TRUE(shown.List.Check());
  EXPECT_EQ((Calls{"IsOn=", "Paint=", "Power=", "Bulbs=", "Socket="}), Written());
  lamp.Failing.clear();
  shown.List.Read();
  EXPECT_FALSE(shown.Name.IsLocked());
  EXPECT_EQ("Reading lamp", user.See(shown.txtName).Text);
}

TEST_F(FormsSettingFaults, OneThatCannotBeWrittenKeepsItsFaultUntilItCan) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  shown.txtName.Text("Floor lamp");
  shown.chkOn.Value(CheckState::Unchecked);
  lamp.Failing = "Name=";
  EXPECT_EQ((Calls{"Name=", "IsOn="}), Written());
  EXPECT_EQ("Name= failed", shown.Name.Fault());
  EXPECT_FALSE(shown.Name.IsLocked());
  EXPECT_FALSE(shown.IsOn.Fault());
  lamp.Failing.clear();
  EXPECT_EQ(Calls{"Name="}, Written());
  EXPECT_FALSE(shown.Name.Fault());
}

TEST_F(FormsSettingFaults, ForgettingUnlocks) {
  lamp.Failing = "Name";
  LampForm& shown = Show(WriteRule::Always);
  shown.List.Forget();
  shown.List.Show();
  EXPECT_FALSE(shown.Name.IsLocked());
}

TEST_F(FormsSettingFaults, OneMayBeLockedForTheFaultOfAnother) {
  LampForm& shown = Show(WriteRule::Always);
  shown.Name.Lock("gone");
  EXPECT_TRUE(shown.Name.IsLocked());
  EXPECT_EQ("", user.See(shown.txtName).Text);
  EXPECT_EQ((Calls{"IsOn=", "Paint=", "Power=", "Bulbs=", "Socket="}), Written());
}

TEST_F(FormsSettingFaults, WhatHappensAfterAWriteIsNoFaultOfTheSetting) {
  LampForm& shown = Show(WriteRule::Always);
  shown.List.Written = [](Setting&) { throw std::runtime_error("not the lamp's"); };
  EXPECT_THROW(shown.List.Write(), std::runtime_error);
  EXPECT_FALSE(shown.Name.Fault());
}

TEST(ErrorText, HasWordsForEveryError) {
  EXPECT_EQ("lamp is broken", ErrorText(std::make_exception_ptr(std::runtime_error("lamp is broken"))));
  EXPECT_EQ("Unknown error", ErrorText(std::make_exception_ptr(std::runtime_error(""))));
  EXPECT_EQ("Unknown error", ErrorText(std::make_exception_ptr(7)));
}

}  // namespace
}  // namespace orx::test
