// The gate between the native window of a form and the form itself: what the user does passes it, what the program does
// to the native controls comes to nothing there.
#pragma once

#include <functional>

namespace orx {

class Form;

/// The base of the native dialogs of all desktops. A dialog stays in memory while an event of it is dealt with, even
/// when that closes the form.
class FormGate {
 public:
  /// The form outlives the gate, or is cut off from it by Retire.
  explicit FormGate(Form& form) : mForm(form) {}
  FormGate(const FormGate&) = delete;
  FormGate& operator=(const FormGate&) = delete;

  /// The form behind the gate. Not to be asked for when the gate is retired.
  Form& Owner() const { return mForm; }
  /// Runs `act`, which reports to the form. Does nothing while the program itself changes the native controls, nor when
  /// the form is not shown or takes no input. `act` and its surroundings may be gone when this returns.
  void Report(const std::function<void()>& act);
  /// Does the same for what happens to the window whatever the form is doing: only a form that has let go of the window
  /// does not hear of it.
  void Tell(const std::function<void()>& act);
  /// True when the form has let the window go: it may not be touched any more.
  bool IsRetired() const { return mIsRetired; }

  /// While one lives, what happens to the native controls is the program's doing and not reported.
  class Quiet {
   public:
    /// Nothing is reported from here on.
    explicit Quiet(FormGate& gate) : mGate(gate) { ++mGate.mQuiet; }
    ~Quiet() { --mGate.mQuiet; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    FormGate& mGate;
  };

  /// Stands for a native event that is being dealt with, and keeps the dialog in memory.
  class Busy {
   public:
    /// One more event is being dealt with.
    explicit Busy(FormGate& gate) : mGate(gate) { ++mGate.mDepth; }
    ~Busy() { mGate.Leave(); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    FormGate& mGate;
  };

 protected:
  ~FormGate() = default;
  /// Cuts the form off. LetGo follows as soon as no event is being dealt with.
  void CutOff();
  /// Deletes the dialog.
  virtual void LetGo() = 0;

 private:
  void Leave();

  Form& mForm;
  int mQuiet = 0;
  int mDepth = 0;
  bool mIsRetired = false;
};

}  // namespace orx
