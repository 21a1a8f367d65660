// Hosts in script languages that do anything in any call: a dialog is opened for one call in so many that reach a
// host's object, by name or by number, and in that call a fault happens. Whatever it is, the dialog ends by its rules,
// and desktop, windows and references are as before.
#include <iostream>
#include <map>

#include "com/ThreadContext.h"
#include "tests/com/faults/LateCases.h"
#include "tests/com/support/Server.h"
#include "tests/faults/FaultScript.h"
#include "tests/files/FilesTest.h"
#include "tests/support/HostFaults.h"
#include "tests/support/HostWindow.h"

namespace orx::com::test {
namespace {

using namespace orx::test;

class LateFaults : public DesktopTest, public testing::WithParamInterface<Fault> {
 protected:
  LateFaults() {
    folder.Add("a.shp");
    desktop().Hook(&acts);
    ThreadContext::DesktopMaker([this] { return std::shared_ptr<Desktop>(std::shared_ptr<void>(), &desktop()); });
  }
  ~LateFaults() override { ThreadContext::DesktopMaker({}); }

  struct Outcome {
    LateOutcome Told;
    int Calls = 0;
    std::string Struck;
    std::vector<std::string> Writes;
  };

  /// Opens the dialog with the fault in call number `at`, from 0; none for -1.
  Outcome Run(const LateCase& dialog, Fault fault, int at) {
    FaultPlan plan;
    LateHost host(plan);
    HostWindow owner;
    const std::vector<ULONG> references = host.References();
    const FaultScene scene = SceneOf(host, dialog, owner, at);
    plan = PlanOf(fault, at, scene);
    Outcome outcome;
    outcome.Told = dialog.Show(host, owner.Get());
    EXPECT_EQ(references, host.References());
    EXPECT_TRUE(!owner.Get() || IsWindowEnabled(owner.Get()));
    outcome.Calls = plan.Count();
    outcome.Struck = plan.Failed();
    outcome.Writes = host.Writes();
    return outcome;
  }

  /// What holds after every call, whatever has happened in it.
  void Check(const LateCase& dialog, Fault fault, const LateOutcome& told) {
    if (FAILED(told.Code)) {
      EXPECT_TRUE(dialog.Rules.MayThrow && IsError(fault)) << told.Code << ' ' << told.Description;
      EXPECT_NE("", told.Description) << told.Code;
    }
    EXPECT_TRUE(told.Result == 0 || told.Result == dialog.Done) << told.Result;
    EXPECT_FALSE(desktop().HasModalForm());
    EXPECT_TRUE(desktop().OpenForms().empty());
    EXPECT_FALSE(ThreadContext::StillOpen());
    EXPECT_TRUE(testDesktop().IsHostInOrder());
    const bool mayLeaveHourglass = IsError(fault) && dialog.Rules.MayLeaveHourglass;
    EXPECT_TRUE(mayLeaveHourglass || desktop().Pointer() == Pointer::Default);
    desktop().Pointer(Pointer::Default);
  }

  /// What comes of the dialog without any fault, found out once.
  const Outcome& WithoutFault(const LateCase& dialog) {
    static std::map<std::pair<const LateCase*, FaultScript::Ending>, Outcome> known;
    const auto [found, isNew] = known.try_emplace({&dialog, acts.End});
    if (isNew) found->second = Run(dialog, Fault::Throws, -1);
    return found->second;
  }

  /// Has the fault happen in one call in so many of all dialogs together, and checks what comes of it.
  void RunAll(const std::function<void(const Outcome&)>& check) {
    int runs = 0;
    // Each fault has other calls tried.
    int at = static_cast<int>(GetParam()) * 41 % Stride();
    for (const LateCase& dialog : LateCases()) {
      const int calls = WithoutFault(dialog).Calls;
      ASSERT_GT(calls, 0) << dialog.Name;
      for (; at < calls; at += Stride()) {
        const Outcome outcome = Run(dialog, GetParam(), at);
        SCOPED_TRACE(std::string(dialog.Name) + ' ' + NameOf(GetParam()) + " in call " + std::to_string(at) + " of " +
                     std::to_string(calls) + ", " + outcome.Struck);
        EXPECT_NE("", outcome.Struck);
        Check(dialog, GetParam(), outcome.Told);
        check(outcome);
        ++runs;
        if (HasFailure()) return;
      }
      at -= calls;
    }
    EXPECT_GT(runs, 0);
    std::cout << runs << " runs\n";
  }

  int Stride() { return testDesktop().IsQuick() ? 11 : 401; }

  TestFolder folder;
  FaultScript acts{user, {folder.Path(), {"a.shp"}}};
  const Apartment apartment;

 private:
  FaultScene SceneOf(LateHost& host, const LateCase& dialog, HostWindow& owner, int at) {
    const auto loseOwner = [this, &owner] {
      owner.Destroy();
      // Where there are no windows, none goes with its owner.
      Form* const top = testDesktop().IsQuick() ? acts.Top() : nullptr;
      if (top) top->WindowLost();
    };
    const auto openTheSame = [&host, &dialog, &owner] {
      if (host.Service) dialog.Show(host, owner.Get());
    };
    const auto actAtRandom = [this, at] {
      std::mt19937 random(static_cast<unsigned>(at));
      acts.ActAtRandom(random);
    };
    return {user,
            [this] { return acts.Top(); },
            actAtRandom,
            loseOwner,
            openTheSame,
            [&host] { host.Remove(); },
            [&host] { host.Service.Reset(); }};
  }
};

TEST_P(LateFaults, InAnyCallLeaveDesktopAndHostInOrder) {
  RunAll([](const Outcome&) {});
}

INSTANTIATE_TEST_SUITE_P(Each, LateFaults, testing::ValuesIn(kFaults), TestNameOf);

class LateFaultsWithCancel : public LateFaults {};

TEST_P(LateFaultsWithCancel, PutNothing) {
  acts.End = FaultScript::Ending::Cancel;
  RunAll([](const Outcome& outcome) { EXPECT_EQ(std::vector<std::string>{}, outcome.Writes); });
}

INSTANTIATE_TEST_SUITE_P(Each, LateFaultsWithCancel,
                         testing::Values(Fault::Throws, Fault::ThrowsAnInt, Fault::Closes, Fault::AnswersNull),
                         TestNameOf);

/// The figures of docs/quality.md. Without faults something is put, so that the tests above would see it.
class LateFaultFigures : public LateFaults {};

TEST_P(LateFaultFigures, AreTheCallsOfEachDialog) {
  std::size_t writes = 0;
  for (const LateCase& dialog : LateCases()) {
    const Outcome& outcome = WithoutFault(dialog);
    EXPECT_GT(outcome.Calls, 0);
    writes += outcome.Writes.size();
    std::cout << outcome.Calls << " calls, " << outcome.Writes.size() << " puts: " << dialog.Name << ": "
              << outcome.Told.Result << ' ' << outcome.Told.Description << '\n';
  }
  EXPECT_GT(writes, 0u);
}

INSTANTIATE_TEST_SUITE_P(None, LateFaultFigures, testing::Values(Fault::Throws));

}  // namespace
}  // namespace orx::com::test
