// The frame of the dialogs that edit one object of the host.
#pragma once

#include "dialogframe/OkCancelForm.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/HostObject.h"

namespace orx {

/// The object stays untouched until OK, which writes to it while the hourglass is shown.
class EditForm : public OkCancelForm {
 public:
  using OkCancelForm::OkCancelForm;

  /// True when OK has written a change; false after Cancel and once the form is unloaded.
  bool IsDirty() const { return mIsDirty && IsLoaded(); }

 protected:
  void Form_Load() override;
  void Form_Release() override;

  /// The object being edited; used, not owned. Releasing the form clears it.
  HostObject* Subject() const { return mSubject; }
  void Subject(HostObject* value);
  /// The interface of the object that is edited. Asked for anew each time, since an object may answer otherwise than
  /// before. Null for one that does not support it or fails to answer, and once the form is retired: a host that has
  /// closed the form is not called any more.
  template <std::derived_from<HostInterface> Interface>
  Interface* Edited() const noexcept {
    Interface* found = nullptr;
    if (!IsRetired()) ErrorTrap().Step([&] { found = QueryKind<Interface>(mSubject); });
    return IsRetired() ? nullptr : found;
  }
  void IsDirty(bool value) { mIsDirty = value; }
  /// Writes what passed the check. Returns false to keep the form open.
  virtual bool Save() = 0;
  void Accept() override;
  void Discard() override { mIsDirty = false; }

 private:
  HostObject* mSubject = nullptr;
  bool mIsDirty = false;
};

}  // namespace orx
