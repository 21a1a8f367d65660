// Data objects that fail in the middle of the dialog's work.
#include "datadialogs/frmDataOptions.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

class OptionsFaults : public DesktopTest {
 protected:
  /// Opens the dialog, edits one bound of each kind, and presses OK with the plan in force. A dialog that stays is
  /// cancelled.
  bool EditUnder(FaultPlan& plan) {
    script.Noted = &boxes;
    boxes.clear();
    bool changed = false;
    script.ExpectForm("frmDataOptions", [&](Form& shown) {
      auto& form = dynamic_cast<frmDataOptions&>(shown);
      form.txtMinValue[0].Text("-10");
      form.txtMinValue[1].Text("7");
      form.txtMinValue[2].Text("-20");
      data->Log.Calls.clear();
      plan.WhenReached = atFault ? [&] { atFault(shown); } : std::function<void()>();
      data->Log.Faults = host.Faults = &plan;
      user.Click(form.cmdOK);
      data->Log.Faults = host.Faults = nullptr;
      EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Failed();
      stayed = form.Visible();
      if (stayed) user.Click(form.cmdCancel);
    });
    const bool result = modMain::ShowDataOptionsDialog(desktop(), &host, changed, nullptr);
    EXPECT_EQ(result, changed);
    script.Noted = nullptr;
    script.Verify();
    return result;
  }

  std::unique_ptr<RecordedData> data = std::make_unique<RecordedData>();
  FaultyObject host{[this](const std::type_info&) { return static_cast<IData*>(data.get()); }};
  std::vector<Message> boxes;
  std::function<void(Form&)> atFault;
  bool stayed = false;
};

TEST_F(OptionsFaults, WhateverFailsOnOKAllIsWrittenOrNothing) {
  for (const Failure failure : {Failure::Error, Failure::Number, Failure::Null}) {
    FaultPlan none;
    EditUnder(none);
    for (int at = 0; at < none.Count(); at += CallStride()) {
      data = std::make_unique<RecordedData>();
      FaultPlan plan(at, failure, false);
      SCOPED_TRACE(plan.Description());
      const bool result = EditUnder(plan);
      EXPECT_EQ(result ? -10 : 1, data->Missing.Lower) << plan.Failed();
      EXPECT_EQ(result ? -7 : 1, data->Zero.Lower) << plan.Failed();
      EXPECT_EQ(result ? -20 : 1, data->NoData.Lower) << plan.Failed();
      EXPECT_EQ(stayed ? 1U : 0U, boxes.size()) << plan.Failed();
    }
  }
}

TEST_F(OptionsFaults, WhateverFailsForGoodTheUserIsToldAndNoChangeIsReported) {
  FaultPlan none;
  EditUnder(none);
  for (const Failure failure : {Failure::Error, Failure::Number, Failure::Null})
    for (int at = 0; at < none.Count(); at += CallStride()) {
      data = std::make_unique<RecordedData>();
      FaultPlan plan(at, failure, true);
      SCOPED_TRACE(plan.Description());
      const bool result = EditUnder(plan);
      EXPECT_EQ(stayed ? 1U : 0U, boxes.size()) << plan.Failed();
      EXPECT_EQ(!stayed && !data->Writes().empty(), result) << plan.Failed();
    }
}

TEST_F(OptionsFaults, AnErrorWithoutWordsIsTold) {
  FaultPlan none;
  EditUnder(none);
  FaultPlan plan(none.Count() - 1, Failure::Number, false);
  EditUnder(plan);
  EXPECT_EQ((std::vector<Message>{{"Unknown error", "Data Options", MessageIcon::Exclamation}}), boxes);
}

TEST_F(OptionsFaults, WhateverIsThrownTheUserHasThePlainPointer) {
  for (const Failure failure : {Failure::Error, Failure::Number}) {
    FaultPlan none;
    EditUnder(none);
    for (int at = 0; at < none.Count(); at += CallStride()) {
      data = std::make_unique<RecordedData>();
      FaultPlan plan(at, failure, false);
      EditUnder(plan);
      EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Description();
    }
  }
}

TEST_F(OptionsFaults, DataThatAreGoneOnOKAreNoChange) {
  FaultPlan plan(0, Failure::Null, true);
  EXPECT_FALSE(EditUnder(plan));
  EXPECT_FALSE(stayed);
  EXPECT_EQ(std::vector<std::string>{}, data->Writes());
}

TEST_F(OptionsFaults, DataThatCloseTheDialogAreNotCalledAnyMore) {
  FaultPlan none;
  EditUnder(none);
  for (int at = 0; at < none.Count(); at += CallStride()) {
    data = std::make_unique<RecordedData>();
    FaultPlan plan(at, Failure::Null, false);
    int atUnload = 0;
    atFault = [&](Form& shown) {
      shown.Unload();
      atUnload = plan.Count();
    };
    EditUnder(plan);
    EXPECT_EQ(atUnload, plan.Count()) << plan.Failed();
    EXPECT_TRUE(boxes.empty()) << plan.Failed();
  }
}

}  // namespace
}  // namespace orx::test
