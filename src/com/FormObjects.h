// A dialog as the host's language sees it while it translates.
#pragma once

#include <memory>

#include "com/Handles.h"

namespace orx {
class Form;
}

namespace orx::com {

/// Lends a form to a host's object for the time of a call. Objects that the host keeps afterwards answer with an error.
class LentForm {
 public:
  explicit LentForm(Form& form);
  ~LentForm();
  LentForm(const LentForm&) = delete;
  LentForm& operator=(const LentForm&) = delete;

  /// The form with its controls (IDialogForm).
  IDispatch* Automation() const { return mObject.Get(); }

 private:
  struct Loan;
  friend class FormObject;
  friend class ControlsObject;
  friend class ControlObject;

  std::shared_ptr<Loan> mLoan;
  ComPtr<IDispatch> mObject;
};

}  // namespace orx::com
