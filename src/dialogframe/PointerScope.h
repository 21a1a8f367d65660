// Shows another mouse pointer for a while.
#pragma once

#include "forms/Desktop.h"
#include "hostobjects/ErrorTrap.h"

namespace orx {

/// Sets a pointer, and another one at the end of the scope, also when an error leaves it.
class PointerScope {
 public:
  /// The desktop must outlive the scope.
  PointerScope(Desktop& desktop, Pointer meanwhile, Pointer afterwards) : mDesktop(desktop), mAfterwards(afterwards) {
    mDesktop.Pointer(meanwhile);
  }
  ~PointerScope() {
    ErrorTrap trap;
    trap.Step([this] { mDesktop.Pointer(mAfterwards); });
  }
  PointerScope(const PointerScope&) = delete;
  PointerScope& operator=(const PointerScope&) = delete;

 private:
  Desktop& mDesktop;
  Pointer mAfterwards;
};

}  // namespace orx
