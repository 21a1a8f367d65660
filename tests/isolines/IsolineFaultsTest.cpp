// Objects that fail in the middle of the dialog's work.
#include "griddialogs/frmDataIsoline.h"
#include "service/modMain.h"
#include "tests/support/EditFaults.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

class IsolineFaults : public EditFaults<DesktopTest> {
 protected:
  const char* FormName() const override { return "frmDataIsoline"; }
  bool Open() override {
    bool changed = false;
    lines.HeldMaxWidth = 5;
    const bool result = modMain::ShowIsolineDialog(desktop(), &host, changed, nullptr);
    EXPECT_EQ(result, changed);
    return result;
  }
  void Edit(Form& form) override {
    dynamic_cast<frmDataIsoline&>(form).txtLineMaxWidth.Text("9");
    lines.Log.Calls.clear();
  }
  void Follow(FaultPlan* plan) override { lines.Log.Faults = host.Faults = plan; }

  RecordedIsolines lines;
  FaultyObject host{[this](const std::type_info&) { return static_cast<IIsolines*>(&lines); }};
};

TEST_F(IsolineFaults, WhateverFailsOnOKTheDialogEndsAndReportsWhatItWrote) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const bool result = EditUnder(plan);
        EXPECT_EQ(lines.HeldMaxWidth == 9, result) << plan.Failed();
      },
      CallStride());
}

TEST_F(IsolineFaults, AnObjectThatIsGoneOnOKIsNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_TRUE(WritesIn(lines.Log).empty());
}

TEST_F(IsolineFaults, AnObjectThatClosesTheDialogIsNotCalledAnyMore) {
  ExpectNoCallAfterAnUnload();
}

TEST_F(IsolineFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const auto alone = std::make_shared<frmDataIsoline>(desktop());
        alone->IsolineObject(&host);
        Follow(&plan);
        EXPECT_NO_THROW(alone->Load()) << plan.Failed();
        Follow(nullptr);
        alone->Unload();
      },
      CallStride());
  EXPECT_TRUE(WritesIn(lines.Log).empty());
}

}  // namespace
}  // namespace orx::test
