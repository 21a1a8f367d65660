// Objects that fail in the middle of the dialog's work.
#include "tests/shading/ShadingDialog.h"
#include "tests/support/EditFaults.h"

namespace orx::test {
namespace {

class ShadeFaults : public EditFaults<DesktopTest> {
 protected:
  const char* FormName() const override { return "frmDataShade"; }
  bool Open() override {
    bool changed = false;
    shade.HeldAltitude = 45;
    const bool result = modMain::ShowShadeDialog(desktop(), &host, changed, nullptr);
    EXPECT_EQ(result, changed);
    return result;
  }
  void Edit(Form& form) override {
    dynamic_cast<frmDataShade&>(form).txtAltitude.Text("50");
    shade.Log.Calls.clear();
  }
  void Follow(FaultPlan* plan) override { shade.Log.Faults = host.Faults = plan; }

  RecordedShade shade;
  FaultyObject host{[this](const std::type_info& wanted) { return shade.ViewFor(wanted); }};
};

TEST_F(ShadeFaults, WhateverFailsOnOKTheDialogEndsAndReportsWhatItWrote) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const bool result = EditUnder(plan);
        EXPECT_EQ(shade.HeldAltitude == 50, result) << plan.Failed();
      },
      CallStride());
}

TEST_F(ShadeFaults, AnObjectThatIsGoneOnOKIsNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_TRUE(WritesIn(shade.Log).empty());
}

TEST_F(ShadeFaults, AnObjectThatClosesTheDialogIsNotCalledAnyMore) {
  ExpectNoCallAfterAnUnload();
}

TEST_F(ShadeFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const auto alone = std::make_shared<frmDataShade>(desktop());
        alone->ShadeObject(&host);
        Follow(&plan);
        EXPECT_NO_THROW(alone->Load()) << plan.Failed();
        if (!alone->IsLoaded()) return Follow(nullptr);
        std::vector<Message> boxes;
        script.Noted = &boxes;
        EXPECT_NO_THROW(alone->cmdScaleFactor.Click.Raise()) << plan.Failed();
        script.Noted = nullptr;
        EXPECT_EQ(1U, boxes.size());
        Follow(nullptr);
        alone->Unload();
      },
      CallStride());
  EXPECT_TRUE(WritesIn(shade.Log).empty());
}

const char* const kSettings[] = {"Altitude",         "Azimuth",        "CombineColors", "MinIntensity",
                                 "NrOfShades",       "ScaleAutomatic", "ScaleFactor",   "ScaleMultiplier",
                                 "ShadeVersion",     "MidIntensity",   "MaxIntensity",  "AltitudeDefault",
                                 "MidIndexAutomatic"};

TEST_F(Shading, ASettingThatCannotBeReadIsSkippedAndTheRestWorks) {
  for (const std::string setting : kSettings) {
    shade.Log.Failing = {setting};
    shade.HeldScaleMultiplier = 2;
    shade.HeldAzimuth = 315;
    const std::string edited = setting == "Azimuth" ? "ScaleMultiplier=" : "Azimuth=";
    EXPECT_TRUE(Edit([this, &edited] {
      user.Type(edited == "Azimuth=" ? form->txtAzimuth : form->txtScaleMultiplier, "3");
    })) << setting;
    EXPECT_EQ(Calls{edited}, WritesBesidesCount()) << setting;
  }
}

TEST_F(Shading, ASettingThatCannotBeWrittenIsPassedOver) {
  for (const std::string setting : kSettings) {
    PutBack();
    shade.Log.Failing = {setting + "="};
    EXPECT_TRUE(EditEverything()) << setting;
    EXPECT_EQ(kAllWrites, WritesIn(shade.Log)) << setting;
    EXPECT_EQ(setting == "ScaleMultiplier" ? 2 : 4, shade.HeldScaleMultiplier) << setting;
  }
}

}  // namespace
}  // namespace orx::test
