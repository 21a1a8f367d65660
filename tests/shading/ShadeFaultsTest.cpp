// Objects that fail in the middle of the dialog's work.
#include "griddialogs/frmDataShade.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

class ShadeFaults : public DesktopTest {
 protected:
  void Follow(FaultPlan* plan) { shade.Log.Faults = host.Faults = plan; }
  /// Opens the dialog, edits, and presses OK with the plan in force.
  bool EditUnder(FaultPlan& plan) {
    bool changed = false;
    shade.HeldAltitude = 45;
    script.ExpectForm("frmDataShade", [&](Form& shown) {
      auto& form = dynamic_cast<frmDataShade&>(shown);
      form.txtAltitude.Text("50");
      shade.Log.Calls.clear();
      plan.WhenReached = atFault ? [&] { atFault(shown); } : std::function<void()>();
      Follow(&plan);
      user.Click(form.cmdOK);
      Follow(nullptr);
      EXPECT_FALSE(form.Visible());
    });
    const bool result = modMain::ShowShadeDialog(desktop(), &host, changed, nullptr);
    EXPECT_EQ(result, changed);
    EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Failed();
    return result;
  }

  RecordedShade shade;
  FaultyObject host{[this](const std::type_info& wanted) { return shade.ViewFor(wanted); }};
  std::function<void(Form&)> atFault;
};

TEST_F(ShadeFaults, WhateverFailsOnOKTheDialogEndsAndReportsWhatItWrote) {
  ForEachFault([this](FaultPlan& plan) {
    const bool result = EditUnder(plan);
    EXPECT_EQ(shade.HeldAltitude == 50, result) << plan.Failed();
  });
}

TEST_F(ShadeFaults, AnObjectThatIsGoneOnOKIsNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_TRUE(WritesIn(shade.Log).empty());
}

TEST_F(ShadeFaults, AnObjectThatClosesTheDialogIsNotCalledAnyMore) {
  FaultPlan none;
  EditUnder(none);
  for (int at = 0; at < none.Count(); ++at) {
    FaultPlan plan(at, Failure::Null, false);
    int atUnload = 0;
    atFault = [&](Form& shown) {
      shown.Unload();
      atUnload = plan.Count();
    };
    EditUnder(plan);
    EXPECT_EQ(atUnload, plan.Count()) << plan.Failed();
  }
}

TEST_F(ShadeFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault([this](FaultPlan& plan) {
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
  });
  EXPECT_TRUE(WritesIn(shade.Log).empty());
}

}  // namespace
}  // namespace orx::test
