// Marks the time in which a form or page changes its own controls, so that their handlers do nothing.
#pragma once

#include <utility>

namespace orx {

/// Sets a flag and restores its previous value at the end of the scope, also when an error leaves it.
class BusyScope {
 public:
  /// The flag must outlive the scope.
  explicit BusyScope(bool& flag) : mFlag(flag), mBefore(std::exchange(flag, true)) {}
  ~BusyScope() { mFlag = mBefore; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  bool& mFlag;
  bool mBefore;
};

}  // namespace orx
