// How a host hears of what a user does in an open property dialog.
#pragma once

#include <cstdint>

#include "hostobjects/BorrowedObject.h"

namespace orx {

/// The members in the order that the interface has them. The library keeps a plain pointer to the call-back and never
/// releases it. What a member throws ends the button press and reaches the
/// service; the hourglass that Apply and OK show then stays.
class IDialogCallBack : public BorrowedObject {
 public:
  /// Apply was pressed and the page has written its values. `changed` tells whether the object differs from how it was
  /// handed over.
  virtual void ApplyNotify(bool changed) = 0;
  virtual void CancelNotify(bool changed) = 0;
  virtual void OKNotify(bool changed) = 0;
  /// Never called; they keep the last member in its place.
  virtual void Reserved1() {}
  virtual void Reserved2() {}
  /// Called once when a dialog starts to use the call-back. The result is not used.
  virtual std::int32_t RegisterNotify() = 0;
};

}  // namespace orx
