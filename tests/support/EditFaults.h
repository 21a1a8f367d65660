// What holds for every dialog that edits one object of the host, whatever the object does while it is written.
#pragma once

#include "tests/support/DesktopTest.h"
#include "tests/support/Faults.h"

namespace orx::test {

/// Base is the fixture of the dialog's tests. A dialog says how it is opened and edited, and where its host's calls are
/// counted.
template <class Base>
class EditFaults : public Base {
 protected:
  /// Opens the dialog and gives its result; the script expects it already.
  virtual bool Open() = 0;
  /// The name of the form, and the edit that is made in it, with the log of calls emptied behind it.
  virtual const char* FormName() const = 0;
  virtual void Edit(Form& form) = 0;
  /// Has the host's calls counted by a plan; null for none.
  virtual void Follow(FaultPlan* plan) = 0;

  /// Opens the dialog, edits, and presses OK with the plan in force.
  bool EditUnder(FaultPlan& plan) {
    this->script.ExpectForm(FormName(), [&](Form& shown) {
      Edit(shown);
      plan.WhenReached = atFault ? [&] { atFault(shown); } : std::function<void()>();
      Follow(&plan);
      this->user.Click(dynamic_cast<Button&>(*shown.Find("cmdOK")));
      Follow(nullptr);
      EXPECT_FALSE(shown.Visible());
    });
    const bool result = Open();
    EXPECT_EQ(Pointer::Default, this->desktop().Pointer()) << plan.Failed();
    return result;
  }

  /// An object that closes the dialog in one of its calls is not called any more, whichever call it is.
  void ExpectNoCallAfterAnUnload() {
    FaultPlan none;
    EditUnder(none);
    ASSERT_GT(none.Count(), 0);
    for (int at = 0; at < none.Count(); at += this->CallStride()) {
      FaultPlan plan(at, Failure::Null, false);
      int atUnload = 0;
      atFault = [&](Form& shown) {
        shown.Unload();
        atUnload = plan.Count();
      };
      EditUnder(plan);
      EXPECT_EQ(atUnload, plan.Count()) << plan.Failed();
    }
    atFault = nullptr;
  }

  std::function<void(Form&)> atFault;
};

}  // namespace orx::test
