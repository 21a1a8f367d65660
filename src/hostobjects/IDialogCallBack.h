// How a host hears of what a user does in an open property dialog.
#pragma once

#include <cstdint>

#include "hostobjects/BorrowedObject.h"

namespace orx {

/// The members in their order of the interface. The library keeps a plain pointer to the call-back and never releases
/// it. What a member throws ends the button press and reaches the service.
class IDialogCallBack : public BorrowedObject {
 public:
  /// Apply was pressed and the page has written its values; `changed`: the object differs from how it was handed over.
  virtual void ApplyNotify(bool changed) = 0;
  virtual void CancelNotify(bool changed) = 0;
  virtual void OKNotify(bool changed) = 0;
  /// Not called; they keep the place of the last member.
  virtual void Reserved1() {}
  virtual void Reserved2() {}
  /// Called once when a dialog takes the call-back on. The result is not used.
  virtual std::int32_t RegisterNotify() = 0;
};

}  // namespace orx
