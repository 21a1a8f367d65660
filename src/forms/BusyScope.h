// Keeps a flag raised for as long as a form or page changes its own controls, so that their handlers do nothing.
#pragma once

#include <utility>

namespace orx {

/// Raises the flag for its own lifetime and then brings back what it was, also when something is thrown.
class BusyScope {
 public:
  /// The flag must live longer than the scope.
  explicit BusyScope(bool& flag) : mFlag(flag), mBefore(std::exchange(flag, true)) {}
  ~BusyScope() { mFlag = mBefore; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  bool& mFlag;
  bool mBefore;
};

}  // namespace orx
