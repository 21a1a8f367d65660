// The frame of the dialogs that end with OK or Cancel.
#pragma once

#include <string>

#include "dialogframe/DialogForm.h"
#include "forms/BusyScope.h"
#include "forms/Button.h"
#include "forms/Message.h"

namespace orx {

class TextBox;

/// OK checks what was entered, accepts it and hides the form; Cancel discards it and hides the form. A hidden form can
/// still be asked for its outcome. The close box runs neither. While the host handles events in the middle of what one
/// of these buttons does, a press of another one comes to nothing.
class OkCancelForm : public DialogForm {
 public:
  using DialogForm::DialogForm;

  /// True after Cancel; false at first and after OK.
  bool Canceled() const { return mOutcome == Outcome::Canceled; }

 protected:
  enum class Outcome { Open, Confirmed, Canceled };
  /// What a refusal does first.
  enum class First { Message, Focus };

  void Form_Load() override;

  /// Checks what was entered. Returns false if something was refused, which keeps the form open.
  virtual bool Check() { return true; }
  /// Takes over what passed the check, and closes the form.
  virtual void Accept() { Close(Outcome::Confirmed); }
  /// Drops what was entered.
  virtual void Discard() {}
  virtual void cmdOK_Click();
  virtual void cmdCancel_Click();

  /// True after OK.
  bool IsConfirmed() const { return mOutcome == Outcome::Confirmed; }
  /// Sets the outcome without closing the form.
  void Conclude(Outcome outcome) { mOutcome = outcome; }
  /// Hides the form rather than unloading it, so that the caller can still read it. A form that was unloaded meanwhile
  /// keeps the outcome of that.
  void Close(Outcome outcome);
  /// Runs what a button that ends or applies does, unless the form is in the middle of another one.
  template <class Work>
  void OneAtATime(Work&& work) {
    if (mIsPressed) return;
    const BusyScope pressed(mIsPressed);
    work();
  }
  /// What OK and a double click that stands for it do.
  void PressOK() {
    OneAtATime([this] { cmdOK_Click(); });
  }

  /// Tells the user what is wrong with a field and moves the focus there. Always returns false, for Check to pass on.
  bool Refuse(const Message& message, Control& field, First first = First::Message);
  /// Refuses an entry as the focus leaves its field: restores the previous text and moves the focus back.
  void PutBack(const Message& message, TextBox& field, const std::string& before);

 private:
  friend class OKButton;
  friend class CancelButton;

  Outcome mOutcome = Outcome::Open;
  bool mIsPressed = false;
};

/// The button that Enter presses.
class OKButton final : public Button {
 public:
  /// In the lower right corner of the form, to the left of Cancel.
  explicit OKButton(OkCancelForm& form);
  /// Somewhere else; the caption is set here.
  OKButton(OkCancelForm& form, Container& parent, Design design);
};

/// The button that Escape presses.
class CancelButton final : public Button {
 public:
  /// In the lower right corner of the form.
  explicit CancelButton(OkCancelForm& form);
  /// Somewhere else; the caption is set here.
  CancelButton(OkCancelForm& form, Container& parent, Design design);
};

}  // namespace orx
