// A host of which one call fails. A helper runs a scene once for each call that reaches the host and each way to fail.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "hostobjects/HostObject.h"
#include "hostobjects/RunTimeError.h"

namespace orx::test {

/// How a call fails. Where an object is asked for, none can be the answer; a value is given then as always.
enum class Failure { Error, Number, Null };

/// Counts the calls that reach a host's code, and has one of them fail, or all from that one on.
class FaultPlan {
 public:
  /// Nothing fails.
  FaultPlan() = default;
  FaultPlan(int at, Failure failure, bool lasts) : mAt(at), mFailure(failure), mLasts(lasts) {}
  /// Something happens in the next call of that name, which does not fail.
  FaultPlan(std::string name, std::function<void()> happens)
      : WhenReached(std::move(happens)), mName(std::move(name)) {}

  /// A call that gives or takes a value.
  void Call(const std::string& name) { Answers(name); }
  /// A call that gives an object: false when it is to give none.
  bool Answers(const std::string& name) {
    const int call = mCount++;
    if (mFailed.empty() && !mName.empty() && name == mName) mAt = call;
    if (mAt < 0 || call < mAt || (call > mAt && !mLasts)) return true;
    if (call == mAt) {
      mFailed = name;
      // What happens may put another plan in this one's place.
      if (const auto happens = std::exchange(WhenReached, nullptr)) return happens(), true;
    }
    if (mFailure == Failure::Error) throw RunTimeError(1001, name + " failed");
    if (mFailure == Failure::Number) throw 7;
    return false;
  }

  /// What the call does in place of failing.
  std::function<void()> WhenReached;

  /// The calls so far, and the name of the one that failed first.
  int Count() const { return mCount; }
  const std::string& Failed() const { return mFailed; }
  /// For the trace of a test.
  std::string Description() const {
    constexpr const char* kFailures[] = {"throws an error", "throws a number", "answers null"};
    return "Call " + std::to_string(mAt) + ' ' + kFailures[static_cast<int>(mFailure)] +
           (mLasts ? " from then on" : "");
  }

 private:
  std::string mName;
  int mAt = -1;
  Failure mFailure = Failure::Error;
  bool mLasts = false;
  int mCount = 0;
  std::string mFailed;
};

/// An object that gives views of another one, as long as the plan has it answer.
class FaultyObject final : public HostObject {
 public:
  using View = std::function<HostInterface*(const std::type_info&)>;
  explicit FaultyObject(View view) : mView(std::move(view)) {}
  FaultPlan* Faults = nullptr;

  HostInterface* ViewFor(const std::type_info& wanted) override {
    return !Faults || Faults->Answers("ViewFor") ? mView(wanted) : nullptr;
  }

 private:
  View mView;
};

/// Runs the scene without a fault, then with each `stride`th call failing, in each way, once and for good.
inline void ForEachFault(const std::function<void(FaultPlan&)>& scene, int stride = 1) {
  FaultPlan none;
  scene(none);
  ASSERT_GT(none.Count(), 0);
  for (const Failure failure : {Failure::Error, Failure::Number, Failure::Null})
    for (const bool lasts : {false, true})
      for (int at = 0; at < none.Count(); at += stride) {
        FaultPlan plan(at, failure, lasts);
        const testing::ScopedTrace trace(__FILE__, __LINE__, plan.Description());
        scene(plan);
      }
}

}  // namespace orx::test
