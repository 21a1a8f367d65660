// Data objects that fail in the middle of the dialog's work.
#include "tests/classification/ClassifyTest.h"

namespace orx::test {
namespace {

class ClassifyFaults : public ClassifyTest {
 protected:
  void Follow(FaultPlan* plan) { data.Log.Faults = host.Faults = plan; }
  /// Opens the dialog, edits, and presses OK with the plan in force.
  bool EditUnder(FaultPlan& plan) {
    data.ShowsName = false;
    data.Log.Calls.clear();
    isDirty = false;
    script.ExpectForm("frmDataClassify", [&](Form& shown) {
      dynamic_cast<CheckBox&>(*shown.Find("chkSeriesInLegend")).Value(CheckState::Checked);
      data.Log.Calls.clear();
      plan.WhenReached = atFault ? [&] { atFault(shown); } : std::function<void()>();
      Follow(&plan);
      user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
      Follow(nullptr);
      EXPECT_FALSE(shown.Visible());
    });
    const bool result = modMain::ShowClassifyDialog(desktop(), {&host, low, high, flags}, isDirty, nullptr);
    EXPECT_EQ(result, isDirty);
    EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Failed();
    return result;
  }

  FaultyObject host{[this](const std::type_info&) { return static_cast<IData*>(&data); }};
  std::function<void(Form&)> atFault;
};

TEST_F(ClassifyFaults, WhateverFailsOnOKTheDialogEndsAndTellsWhetherItWrote) {
  ForEachFault([this](FaultPlan& plan) {
    const bool result = EditUnder(plan);
    EXPECT_EQ(!data.Writes().empty(), result) << plan.Failed();
  });
}

TEST_F(ClassifyFaults, DataThatAreGoneOnOKAreNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyFaults, DataThatCloseTheDialogAreNotCalledAnyMore) {
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

TEST_F(ClassifyFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault([this](FaultPlan& plan) {
    const auto alone = std::make_shared<frmDataClassify>(desktop());
    alone->SetData(&host, low, high, flags, {});
    Follow(&plan);
    EXPECT_NO_THROW(alone->Load()) << plan.Failed();
    Follow(nullptr);
    alone->Unload();
  });
  EXPECT_EQ(Calls{}, data.Writes());
}

}  // namespace
}  // namespace orx::test
