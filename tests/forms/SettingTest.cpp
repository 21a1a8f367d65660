// Settings: the order of reads and writes, what is written, what errors do, and what a setting stands for.
#include "hostobjects/PassOver.h"
#include "tests/forms/LampForm.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

using Calls = std::vector<std::string>;

/// A step rule that notes whose step has failed, and goes on.
struct Notes {
  void operator()(Setting& setting, const std::function<void()>& step) const {
    try {
      step();
    } catch (const std::exception& error) {
      List->push_back(setting.Name() + ": " + error.what());
    }
  }
  Calls* List;
};

class FormsSetting : public DesktopTest {
 protected:
  LampForm& Make(WriteRule write, StepRule step = {}) {
    form = std::make_shared<LampForm>(desktop(), write, std::move(step));
    form->Client = &lamp;
    return *form;
  }
  /// A shown form that has read the lamp.
  LampForm& Show(WriteRule write, StepRule step = {}) {
    Make(write, std::move(step)).List.Read();
    form->Show(ShowMode::Modeless);
    lamp.Calls();
    return *form;
  }
  void TearDown() override {
    if (form) form->Unload();
    DesktopTest::TearDown();
  }
  Calls Written() {
    form->List.Write();
    return lamp.Calls();
  }

  Lamp lamp;
  Calls notes;
  std::shared_ptr<LampForm> form;
};

const Calls kReads = {"Name", "IsOn", "Paint", "Power", "Bulbs", "Socket"};
const Calls kWrites = {"Name=", "IsOn=", "Paint=", "Power=", "Bulbs=", "Socket="};

TEST_F(FormsSetting, AreReadAndWrittenInTheOrderOfDeclaration) {
  Make(WriteRule::Always).List.Read();
  EXPECT_EQ(kReads, lamp.Calls());
  EXPECT_EQ(kWrites, Written());
}

TEST_F(FormsSetting, MayBeReadInAnotherOrder) {
  LampForm& shown = Make(WriteRule::Always);
  shown.List.ReadInOrder({&shown.Socket, &shown.Power, &shown.Name});
  shown.List.Read();
  EXPECT_EQ((Calls{"Socket", "Power", "Name"}), lamp.Calls());
  EXPECT_FALSE(shown.IsOn.IsRead());
  EXPECT_EQ("Reading lamp", shown.txtName.Text());
}

TEST_F(FormsSetting, ShowWhatTheHostHolds) {
  LampForm& shown = Show(WriteRule::Always);
  EXPECT_EQ("Reading lamp", user.See(shown.txtName).Text);
  EXPECT_EQ(1, user.See(shown.chkOn).Value);
  EXPECT_EQ((Color{1, 2, 3}), shown.pctPaint.BackColor());
  EXPECT_EQ("0.33", user.See(shown.txtPower).Text);
  EXPECT_EQ("3", user.See(shown.cboBulbs).Text);
  EXPECT_EQ("E27", user.See(shown.cboSocket).Text);
  for (const Setting* const setting : shown.List.All())
    EXPECT_TRUE(setting->IsRead() && !setting->IsEdited() && !setting->Differs()) << setting->Name();
}

TEST_F(FormsSetting, StandForTheExactValueWhileNobodyEditsThem) {
  Show(WriteRule::Always);
  lamp.HeldPower = 0;
  EXPECT_EQ(kWrites, Written());
  EXPECT_EQ(1.0 / 3, lamp.HeldPower);
}

TEST_F(FormsSetting, KnowThatTheyWereEdited) {
  LampForm& shown = Show(WriteRule::Always);
  user.Type(shown.txtName, "Lantern");
  user.Toggle(shown.chkOn);
  user.Type(shown.txtPower, "0.5");
  user.Type(shown.cboBulbs, "4");
  user.Choose(shown.cboSocket, 0);
  shown.pctPaint.BackColor({9, 9, 9});
  for (const Setting* const setting : shown.List.All())
    EXPECT_TRUE(setting->IsEdited() && setting->Differs()) << setting->Name();
  EXPECT_EQ(kWrites, Written());
  EXPECT_EQ("Lantern", lamp.HeldName);
  EXPECT_EQ(14, lamp.HeldSocket);
  for (const Setting* const setting : shown.List.All()) EXPECT_FALSE(setting->Differs()) << setting->Name();
}

TEST_F(FormsSetting, WhatWasEditedIsWrittenAlone) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  EXPECT_EQ(Calls{}, Written());
  user.Type(shown.txtPower, "0.5");
  user.Toggle(shown.chkOn);
  EXPECT_EQ((Calls{"IsOn=", "Power="}), Written());
  EXPECT_EQ(Calls{}, Written());
}

TEST_F(FormsSetting, AnEntryThatComesToTheSameIsNoDifference) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  user.Type(shown.txtName, "Lantern");
  user.Type(shown.txtName, "Reading lamp");
  user.Type(shown.cboBulbs, "3.2");
  EXPECT_TRUE(shown.Bulbs.IsEdited());
  EXPECT_EQ(Calls{}, Written());
}

TEST_F(FormsSetting, TheHostIsAskedWhetherItHoldsSomethingElse) {
  LampForm& shown = Show(WriteRule::WhenTheHostDiffers);
  user.Type(shown.txtPower, "0.5");
  lamp.HeldPower = 0.5;
  lamp.HeldBulbs = 8;
  EXPECT_EQ((Calls{"Name", "IsOn", "Paint", "Power", "Bulbs", "Bulbs=", "Socket"}), Written());
  EXPECT_EQ(3, lamp.HeldBulbs);
}

TEST_F(FormsSetting, WholeNumbersAreRoundedHalvesToEven) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  user.Type(shown.cboBulbs, "2.6");
  EXPECT_EQ(Calls{}, Written());
  user.Type(shown.cboBulbs, "4.5");
  EXPECT_EQ(Calls{"Bulbs="}, Written());
  EXPECT_EQ(4, lamp.HeldBulbs);
}

TEST_F(FormsSetting, ANaNThatIsStillOneIsNoDifference) {
  lamp.HeldPower = std::nan("");
  Show(WriteRule::WhenEdited);
  EXPECT_EQ(Calls{}, Written());
}

TEST_F(FormsSetting, ATextThatIsNoNumberEndsTheWriteThere) {
  LampForm& shown = Show(WriteRule::Always, PassOver);
  for (const char* const text : {"many", "", "1E99"}) {
    user.Type(shown.cboBulbs, text);
    try {
      shown.List.Write();
      FAIL() << text;
    } catch (const InvalidEntry& refused) {
      EXPECT_EQ(&shown.cboBulbs, refused.Field);
    }
    EXPECT_EQ((Calls{"Name=", "IsOn=", "Paint=", "Power="}), lamp.Calls()) << text;
    EXPECT_EQ(std::nullopt, shown.Bulbs.Fitting());
  }
}

TEST_F(FormsSetting, AnErrorOfAReadTravelsAndLeavesTheFieldsAsTheyWere) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  user.Type(shown.txtName, "Lantern");
  lamp.HeldName = "Other lamp";
  lamp.Failing = "Power";
  EXPECT_THROW(shown.List.Read(), std::runtime_error);
  EXPECT_EQ("Lantern", shown.txtName.Text());
  lamp.Calls();
  EXPECT_EQ(Calls{"Name="}, Written());
}

TEST_F(FormsSetting, AStepRuleGoesOnBehindASettingThatCannotBeRead) {
  lamp.Failing = "Bulbs";
  LampForm& shown = Make(WriteRule::Always, Notes{&notes});
  shown.List.Read();
  EXPECT_EQ(kReads, lamp.Calls());
  EXPECT_EQ(Calls{"Bulbs: Bulbs failed"}, notes);
  EXPECT_FALSE(shown.Bulbs.IsRead());
  EXPECT_EQ("5", shown.cboBulbs.Text());
  EXPECT_EQ(std::nullopt, shown.Bulbs.HostValue());
  EXPECT_TRUE(shown.Socket.IsRead());
}

TEST_F(FormsSetting, ASettingThatCouldNotBeReadIsWrittenOnceItIsEdited) {
  lamp.Failing = "Bulbs";
  LampForm& shown = Show(WriteRule::WhenEdited, Notes{&notes});
  EXPECT_EQ(Calls{}, Written());
  user.Type(shown.cboBulbs, "7");
  EXPECT_EQ(Calls{"Bulbs="}, Written());
}

TEST_F(FormsSetting, AStepRulePassesOverASettingThatCannotBeWritten) {
  LampForm& shown = Show(WriteRule::Always, Notes{&notes});
  Calls counted;
  shown.List.Written = [&](Setting& setting) { counted.push_back(setting.Name()); };
  lamp.Failing = "IsOn=";
  EXPECT_EQ(kWrites, Written());
  EXPECT_EQ(Calls{"On: IsOn= failed"}, notes);
  EXPECT_EQ((Calls{"Name", "Paint", "Power", "Bulbs", "Socket"}), counted);
}

TEST_F(FormsSetting, WithoutAStepRuleAnErrorOfAWriteTravelsAndTheRestWaits) {
  LampForm& shown = Show(WriteRule::WhenEdited);
  user.Type(shown.txtName, "Lantern");
  user.Toggle(shown.chkOn);
  user.Type(shown.txtPower, "9");
  lamp.Failing = "IsOn=";
  EXPECT_THROW(shown.List.Write(), std::runtime_error);
  EXPECT_EQ((Calls{"Name=", "IsOn="}), lamp.Calls());
  lamp.Failing.clear();
  EXPECT_EQ((Calls{"IsOn=", "Power="}), Written());
}

TEST_F(FormsSetting, ACodeThatTheListLacksStaysUntilAnotherEntryIsPicked) {
  lamp.HeldSocket = 40;
  LampForm& shown = Show(WriteRule::WhenEdited);
  EXPECT_EQ("E14", user.See(shown.cboSocket).Text);
  EXPECT_EQ(40, shown.Socket.Value());
  EXPECT_EQ(Calls{}, Written());
  user.Choose(shown.cboSocket, 1);
  EXPECT_EQ(Calls{"Socket="}, Written());
  EXPECT_EQ(27, lamp.HeldSocket);
}

TEST_F(FormsSetting, WithoutTheObjectNothingIsReadOrWritten) {
  LampForm& shown = Make(WriteRule::Always);
  shown.Client = nullptr;
  shown.List.Read();
  int counted = 0;
  shown.List.Written = [&](Setting&) { ++counted; };
  shown.txtPower.Text("1");
  shown.List.Write();
  EXPECT_EQ(0, counted);
  EXPECT_EQ(Calls{}, lamp.Calls());
  EXPECT_EQ("", shown.txtName.Text());
  EXPECT_EQ("5", shown.cboBulbs.Text());
  EXPECT_FALSE(shown.Paint.IsRead());
}

TEST_F(FormsSetting, ForgettingShowsThatThereIsNothing) {
  LampForm& shown = Show(WriteRule::Always);
  shown.List.Forget();
  EXPECT_EQ("Reading lamp", shown.txtName.Text());
  shown.List.Show();
  EXPECT_EQ("", shown.txtName.Text());
  EXPECT_FALSE(shown.chkOn.IsChecked());
  EXPECT_FALSE(shown.Name.IsRead());
}

TEST_F(FormsSetting, APropertyThatIsOnlyReadIsNeverWrittenWhateverItsTextSays) {
  LampForm& shown = Make(WriteRule::Always);
  Settings list(WriteRule::Always);
  NumberSetting age(shown.txtAge, Part<Lamp>(list, shown.Client)(&Lamp::Age));
  list.Read();
  EXPECT_EQ("7.5", shown.txtAge.Text());
  shown.txtAge.Text("old");
  lamp.Calls();
  list.Write();
  EXPECT_EQ(Calls{}, lamp.Calls());
}

TEST_F(FormsSetting, AStepOfTheDialogRunsAmongTheWrites) {
  LampForm& shown = Make(WriteRule::Always);
  Settings list(WriteRule::Always);
  const Part<Lamp> of(list, shown.Client);
  NumberSetting power(shown.txtPower, of(&Lamp::Power, &Lamp::Power));
  bool counts = false;
  WriteStep step(list, [&] { return lamp.Log.push_back("step"), counts; });
  NumberSetting bulbs(shown.cboBulbs, of(&Lamp::Bulbs, &Lamp::Bulbs));
  int counted = 0;
  list.Written = [&](Setting&) { ++counted; };
  list.Read();
  lamp.Calls();
  list.Write();
  EXPECT_EQ((Calls{"Power=", "step", "Bulbs="}), lamp.Calls());
  EXPECT_EQ(2, counted);
  counts = true;
  list.Write();
  EXPECT_EQ(5, counted);
}

TEST_F(FormsSetting, AVariableIsASettingWithoutAControl) {
  Make(WriteRule::WhenEdited);
  Settings list(WriteRule::WhenEdited);
  Lamp* object = &lamp;
  bool isOn = false;
  std::int32_t socket = 5;
  HeldSetting<bool> held(isOn, Part<Lamp>(list, object)(&Lamp::IsOn, &Lamp::IsOn));
  HeldSetting<std::int32_t> code(socket, Part<Lamp>(list, object)(&Lamp::Socket, &Lamp::Socket));
  list.Read();
  EXPECT_TRUE(isOn);
  EXPECT_EQ(27, socket);
  EXPECT_EQ(nullptr, held.Field());
  lamp.Calls();
  isOn = false;
  list.Write();
  EXPECT_EQ(Calls{"IsOn="}, lamp.Calls());
  object = nullptr;
  list.Read();
  EXPECT_EQ(5, socket);
}

TEST_F(FormsSetting, AListChecksItsCheckedFieldsAndTranslatesTheirMessages) {
  LampForm& shown = Make(WriteRule::WhenEdited);
  Settings list(WriteRule::WhenEdited);
  Lamp* object = &lamp;
  const Part<Lamp> of(list, object);
  CheckedNumberSetting power(shown.txtPower, of(&Lamp::Power, &Lamp::Power), {0, 1});
  CheckedNumberSetting bulbs(shown.txtAge, of(&Lamp::Bulbs, &Lamp::Bulbs), {1, 9});
  list.Translate = [](const std::string& text) { return "<" + text + ">"; };
  list.Read();
  EXPECT_TRUE(list.Check());
  shown.txtPower.Text("2");
  shown.txtAge.Text("10");
  EXPECT_TRUE(power.IsEdited());
  script.ExpectMessage(
      {"<Power: 2 is not allowed. Type a number from 0 to 1.>", "<Wrong value>", MessageIcon::Exclamation});
  EXPECT_FALSE(list.Check());
  EXPECT_FALSE(power.IsEdited());
  shown.txtAge.Text("8");
  EXPECT_TRUE(list.Check());
  lamp.Calls();
  list.Write();
  EXPECT_EQ(Calls{"Bulbs="}, lamp.Calls());
  form->Unload();
}

TEST_F(FormsSetting, AValueChosenForTheUserCountsAsEdited) {
  LampForm& shown = Make(WriteRule::WhenEdited);
  Settings list(WriteRule::WhenEdited);
  Lamp* object = &lamp;
  CheckedNumberSetting power(shown.txtPower, Part<Lamp>(list, object)(&Lamp::Power, &Lamp::Power));
  list.Read();
  EXPECT_FALSE(power.IsEdited());
  power.Enter(0.75);
  EXPECT_TRUE(power.IsEdited() && power.Differs());
  EXPECT_EQ("0.75", shown.txtPower.Text());
  list.Write();
  EXPECT_EQ(0.75, lamp.HeldPower);
  form->Unload();
}

}  // namespace
}  // namespace orx::test
