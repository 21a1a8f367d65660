// Statement-by-statement error trapping: a failing step is skipped and the routine goes on with the next one.
#pragma once

namespace orx {

/// Runs steps and swallows what they throw. Whether an error is pending stays known until Clear.
class ErrorTrap {
 public:
  /// Runs one step. A host may throw anything; all of it ends here.
  template <class Action>
  void Step(Action&& action) noexcept {
    try {
      action();
    } catch (...) {
      mPending = true;
    }
  }

  /// True when a step has failed since the start or the last Clear.
  bool IsPending() const { return mPending; }
  void Clear() { mPending = false; }

 private:
  bool mPending = false;
};

}  // namespace orx
