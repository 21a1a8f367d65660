// The frame of the dialogs that edit one object of the host.
#pragma once

#include "dialogframe/OkCancelForm.h"
#include "hostobjects/HostObject.h"

namespace orx {

/// OK writes to the object under the hourglass. Until then the object is left alone.
class EditForm : public OkCancelForm {
 public:
  using OkCancelForm::OkCancelForm;

  /// True when OK has written a change; false after Cancel and once the form is unloaded.
  bool IsDirty() const { return mIsDirty; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;

  /// The object; used, not owned, and forgotten when the form is unloaded.
  HostObject* Subject() const { return mSubject; }
  void Subject(HostObject* value);
  void IsDirty(bool value) { mIsDirty = value; }
  /// Writes what has passed the check. False when the form stays.
  virtual bool Save() = 0;
  void Accept() override;
  void Discard() override { mIsDirty = false; }

 private:
  HostObject* mSubject = nullptr;
  bool mIsDirty = false;
};

}  // namespace orx
