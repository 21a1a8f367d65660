// Changes on their way to the screen that come faster than a person can see.
#pragma once

#include <chrono>
#include <vector>

#include "forms/Control.h"

namespace orx {

/// Collects what has changed and tells when it is time to show it: at most 60 times in any second. Of these, 50 are for
/// any change, and 10 are kept for changes that should not wait for their turn.
class ScreenUpdates {
 public:
  /// The clock that the pace is measured by.
  using Clock = std::chrono::steady_clock;

  /// A change of one control.
  struct Update {
    Control* Changed;
    Aspect What;
    bool operator==(const Update&) const = default;
  };

  /// The time between two showings, and between two that do not wait for their turn.
  static constexpr std::chrono::milliseconds kPace{20};
  static constexpr std::chrono::milliseconds kUrgentPace{100};

  /// Keeps the change; the same change is kept once. True when it is time to show what is kept.
  bool Add(const Update& update, Urgency urgency, Clock::time_point now);
  /// Hands out what is kept, which counts as shown from `now` on.
  std::vector<Update> Take(Clock::time_point now);
  /// Nothing is kept.
  bool IsEmpty() const { return mKept.empty(); }

 private:
  std::vector<Update> mKept;
  Clock::time_point mShown;
  Clock::time_point mUrgentShown;
};

}  // namespace orx
