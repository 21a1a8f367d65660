// The fixture of hosts that let the user act, or act themselves, in the middle of a call.
#pragma once

#include "tests/layermanager/LayerManagerTest.h"
#include "tests/support/Faults.h"

namespace orx::test {

class Reentry : public LayerManager {
 protected:
  Reentry() {
    log.Faults = map.Faults = &mPlan;
    Fill({"Roads", "Rivers", "Terrain"});
    service.CallBack(&callBack);
  }
  /// What is planned has to have happened.
  void TearDown() override {
    EXPECT_TRUE(!mIsPlanned || !mPlan.Failed().empty());
    LayerManager::TearDown();
  }

  /// Lets it happen in the next call of that name.
  void During(const std::string& call, std::function<void()> happens) {
    mIsPlanned = true;
    mPlan = FaultPlan(call, std::move(happens));
  }
  /// The same, in the dialog of that name, where the user then presses a button, and Cancel if it is still open.
  void DuringPress(const std::string& form, const std::string& button, const std::string& call,
                   const std::function<void(Form&)>& happens) {
    script.ExpectForm(form, [this, button, call, happens](Form& shown) {
      During(call, [happens, &shown] { happens(shown); });
      Press(shown, button);
      if (shown.Visible()) Press(shown, "cmdCancel");
    });
  }

 private:
  FaultPlan mPlan;
  bool mIsPlanned = false;
};

}  // namespace orx::test
