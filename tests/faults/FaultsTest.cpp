// A host that does anything in any call: each dialog is opened once for every call that reaches the host, and in that
// call a fault happens. Whatever it is, the dialog ends by its rules, and desktop and host are as before.
#include <iostream>

#include "tests/faults/FaultScript.h"
#include "tests/files/FilesTest.h"
#include "tests/support/HostFaults.h"

namespace orx::test {
namespace {

class Faults : public DesktopTest, public testing::WithParamInterface<Fault> {
 protected:
  Faults() {
    folder.Add("a.shp");
    desktop().Hook(&acts);
  }

  struct Outcome {
    std::int32_t Result = 0;
    bool HasThrown = false;
    int Calls = 0;
    std::string Struck;
    std::vector<std::string> Writes;
  };

  /// Opens the dialog with the fault in call number `at`, from 0; none for -1.
  Outcome Run(const DialogCase& dialog, Fault fault, int at) {
    FaultPlan plan;
    DialogHost host(desktop(), dialog.Rules.HasEmbeddedPages, plan);
    const FaultScene scene = SceneOf(
        host, dialog, user, [this] { return acts.Top(); },
        [this, at] {
          std::mt19937 random(static_cast<unsigned>(at));
          acts.ActAtRandom(random);
        });
    plan = PlanOf(fault, at, scene);
    Outcome outcome;
    try {
      outcome.Result = dialog.Show(host);
    } catch (...) {
      outcome.HasThrown = true;
    }
    outcome.Calls = plan.Count();
    outcome.Struck = plan.Failed();
    outcome.Writes = host.Writes();
    return outcome;
  }

  /// What holds after every call, whatever has happened in it.
  void Check(const DialogCase& dialog, Fault fault, const Outcome& outcome) {
    EXPECT_TRUE(outcome.Result == 0 || outcome.Result == -1) << outcome.Result;
    EXPECT_TRUE(!outcome.HasThrown || (dialog.Rules.MayThrow && IsError(fault)));
    EXPECT_FALSE(desktop().HasModalForm());
    EXPECT_TRUE(desktop().OpenForms().empty());
    const bool mayLeaveHourglass = IsError(fault) && dialog.Rules.MayLeaveHourglass;
    EXPECT_TRUE(mayLeaveHourglass || desktop().Pointer() == Pointer::Default);
    desktop().Pointer(Pointer::Default);
  }

  /// Where acts take their time, every n-th call only; primes, so that each dialog has other ones tried.
  int Stride() {
    if (testDesktop().IsQuick()) return 1;
    return testDesktop().IsSlow() ? 97 : 31;
  }

  TestFolder folder;
  FaultScript acts{user, {folder.Path(), {"a.shp"}}};
};

TEST_P(Faults, InAnyCallLeaveDesktopAndHostInOrder) {
  int runs = 0;
  for (const DialogCase& dialog : DialogCases()) {
    const int calls = Run(dialog, GetParam(), -1).Calls;
    ASSERT_GT(calls, 0) << dialog.Name;
    for (int at = 0; at < calls; at += Stride()) {
      const Outcome outcome = Run(dialog, GetParam(), at);
      SCOPED_TRACE(std::string(dialog.Name) + " " + NameOf(GetParam()) + " in call " + std::to_string(at) + " of " +
                   std::to_string(calls) + ", " + outcome.Struck);
      Check(dialog, GetParam(), outcome);
      ++runs;
      if (HasFailure()) return;
    }
  }
  RecordProperty("runs", runs);
}

INSTANTIATE_TEST_SUITE_P(Each, Faults, testing::ValuesIn(kFaults), TestNameOf);

class FaultsWithCancel : public Faults {};

TEST_P(FaultsWithCancel, WriteNothing) {
  acts.End = FaultScript::Ending::Cancel;
  for (const DialogCase& dialog : DialogCases()) {
    const int calls = Run(dialog, GetParam(), -1).Calls;
    for (int at = 0; at < calls; at += Stride()) {
      const Outcome outcome = Run(dialog, GetParam(), at);
      SCOPED_TRACE(std::string(dialog.Name) + " " + NameOf(GetParam()) + " in call " + std::to_string(at) + " of " +
                   std::to_string(calls) + ", " + outcome.Struck);
      EXPECT_EQ(std::vector<std::string>{}, outcome.Writes);
      Check(dialog, GetParam(), outcome);
      if (HasFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, FaultsWithCancel, testing::Values(Fault::Throws, Fault::Closes, Fault::AnswersNull),
                         TestNameOf);

/// The figures of docs/quality.md.
class FaultFigures : public Faults {};

TEST_P(FaultFigures, AreTheCallsOfEachDialog) {
  for (const DialogCase& dialog : DialogCases()) {
    const Outcome outcome = Run(dialog, GetParam(), -1);
    EXPECT_GT(outcome.Calls, 0);
    std::cout << outcome.Calls << " calls: " << dialog.Name << '\n';
  }
}

INSTANTIATE_TEST_SUITE_P(None, FaultFigures, testing::Values(Fault::Throws));

}  // namespace
}  // namespace orx::test
