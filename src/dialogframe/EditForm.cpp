#include "dialogframe/EditForm.h"

namespace orx {

void EditForm::Subject(HostObject* value) {
  mSubject = value;
  Hold(value);
}

void EditForm::Form_Load() {
  mIsDirty = false;
  OkCancelForm::Form_Load();
}

void EditForm::Accept() {
  WithHourglass([this] {
    if (Save()) Close(Outcome::Confirmed);
  });
}

void EditForm::Form_Release() {
  mSubject = nullptr;
  mIsDirty = false;
  OkCancelForm::Form_Release();
}

}  // namespace orx
