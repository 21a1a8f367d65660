// Objects that fail in the middle of the dialog's work.
#include "griddialogs/frmDataIsoline.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

class IsolineFaults : public DesktopTest {
 protected:
  void Follow(FaultPlan* plan) { lines.Log.Faults = host.Faults = plan; }
  /// Opens the dialog, edits, and presses OK with the plan in force.
  bool EditUnder(FaultPlan& plan) {
    bool changed = false;
    lines.HeldMaxWidth = 5;
    script.ExpectForm("frmDataIsoline", [&](Form& shown) {
      auto& form = dynamic_cast<frmDataIsoline&>(shown);
      form.txtLineMaxWidth.Text("9");
      lines.Log.Calls.clear();
      plan.WhenReached = atFault ? [&] { atFault(shown); } : std::function<void()>();
      Follow(&plan);
      user.Click(form.cmdOK);
      Follow(nullptr);
      EXPECT_FALSE(form.Visible());
    });
    const bool result = modMain::ShowIsolineDialog(desktop(), &host, changed, nullptr);
    EXPECT_EQ(result, changed);
    EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Failed();
    return result;
  }

  RecordedIsolines lines;
  FaultyObject host{[this](const std::type_info&) { return static_cast<IIsolines*>(&lines); }};
  std::function<void(Form&)> atFault;
};

TEST_F(IsolineFaults, WhateverFailsOnOKTheDialogEndsAndReportsWhatItWrote) {
  ForEachFault([this](FaultPlan& plan) {
    const bool result = EditUnder(plan);
    EXPECT_EQ(lines.HeldMaxWidth == 9, result) << plan.Failed();
  });
}

TEST_F(IsolineFaults, AnObjectThatIsGoneOnOKIsNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_TRUE(WritesIn(lines.Log).empty());
}

TEST_F(IsolineFaults, AnObjectThatClosesTheDialogIsNotCalledAnyMore) {
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

TEST_F(IsolineFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault([this](FaultPlan& plan) {
    const auto alone = std::make_shared<frmDataIsoline>(desktop());
    alone->IsolineObject(&host);
    Follow(&plan);
    EXPECT_NO_THROW(alone->Load()) << plan.Failed();

    Follow(nullptr);
    alone->Unload();
  });
  EXPECT_TRUE(WritesIn(lines.Log).empty());
}

}  // namespace
}  // namespace orx::test
