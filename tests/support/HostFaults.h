// What a host may do in a call that reaches it.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include "tests/support/DialogCases.h"
#include "tests/support/Faults.h"
#include "tests/support/User.h"

namespace orx::test {

enum class Fault { Throws, ThrowsAnInt, Closes, LosesItsOwner, Nests, Removes, AnswersNull, ActsAtRandom, Destroys };

inline constexpr std::array kFaults{Fault::Throws,        Fault::ThrowsAnInt,  Fault::Closes,
                                    Fault::LosesItsOwner, Fault::Nests,        Fault::Removes,
                                    Fault::AnswersNull,   Fault::ActsAtRandom, Fault::Destroys};

const char* NameOf(Fault fault);

/// True for faults of the call itself, and for an object that has gone: errors may come of them.
inline bool IsError(Fault fault) {
  return fault == Fault::Throws || fault == Fault::ThrowsAnInt || fault == Fault::AnswersNull ||
         fault == Fault::Removes;
}

/// The name of a test for each fault.
std::string TestNameOf(const testing::TestParamInfo<Fault>& each);

/// Where faults happen, and what the host does for those that are more than a failing call.
struct FaultScene {
  User& Person;
  /// The dialog in front that the user can reach, null while there is none.
  std::function<Form*()> Top;
  /// The user does a few acts, whatever comes.
  std::function<void()> ActAtRandom;
  std::function<void()> LoseOwner;
  std::function<void()> OpenTheSame;
  std::function<void()> Remove;
  std::function<void()> DestroyService;
};

/// The scene of a dialog of that host. Both have to stay.
FaultScene SceneOf(DialogHost& host, const DialogCase& dialog, User& person, std::function<Form*()> top,
                   std::function<void()> actAtRandom);

/// Has the fault happen in call number `at` from now on, from 0; never for -1. The scene has to stay.
FaultPlan PlanOf(Fault fault, int at, const FaultScene& scene);

}  // namespace orx::test
