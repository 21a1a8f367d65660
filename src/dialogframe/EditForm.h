// The frame of the dialogs that edit one object of the host.
#pragma once

#include "dialogframe/OkCancelForm.h"
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
