// Data objects that fail in the middle of the dialog's work.
#include "tests/classification/ClassifyTest.h"
#include "tests/support/EditFaults.h"

namespace orx::test {
namespace {

class ClassifyFaults : public EditFaults<ClassifyTest> {
 protected:
  const char* FormName() const override { return "frmDataClassify"; }
  bool Open() override {
    data.ShowsName = false;
    isDirty = false;
    const bool result = modMain::ShowClassifyDialog(desktop(), {&host, low, high, flags}, isDirty, nullptr);
    EXPECT_EQ(result, isDirty);
    return result;
  }
  void Edit(Form& form) override {
    dynamic_cast<CheckBox&>(*form.Find("chkSeriesInLegend")).Value(CheckState::Checked);
    data.Log.Calls.clear();
  }
  void Follow(FaultPlan* plan) override { data.Log.Faults = host.Faults = plan; }

  FaultyObject host{[this](const std::type_info&) { return static_cast<IData*>(&data); }};
};

TEST_F(ClassifyFaults, WhateverFailsOnOKTheDialogEndsAndTellsWhetherItWrote) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const bool result = EditUnder(plan);
        EXPECT_EQ(!data.Writes().empty(), result) << plan.Failed();
      },
      CallStride());
}

TEST_F(ClassifyFaults, DataThatAreGoneOnOKAreNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_EQ(Calls{}, data.Writes());
}

TEST_F(ClassifyFaults, DataThatCloseTheDialogAreNotCalledAnyMore) {
  ExpectNoCallAfterAnUnload();
}

TEST_F(ClassifyFaults, WhateverFailsWhileLoadingNothingTravels) {
  ForEachFault(
      [this](FaultPlan& plan) {
        const auto alone = std::make_shared<frmDataClassify>(desktop());
        alone->SetData(&host, low, high, flags, {});
        Follow(&plan);
        EXPECT_NO_THROW(alone->Load()) << plan.Failed();
        Follow(nullptr);
        alone->Unload();
      },
      CallStride());
  EXPECT_EQ(Calls{}, data.Writes());
}

}  // namespace
}  // namespace orx::test
