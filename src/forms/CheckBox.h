// A check box with the states unchecked, checked and grayed.
#pragma once

#include "forms/Control.h"

namespace orx {

/// The state of a box. Grayed stands for a mixture; the user cannot choose it.
enum class CheckState { Unchecked = 0, Checked = 1, Grayed = 2 };

/// A box that the user ticks and unticks.
class CheckBox final : public Control {
 public:
  /// As Control; `value` is the initial state, set without an event.
  CheckBox(Container& parent, std::string name, Design design, CheckState value = CheckState::Unchecked)
      : Control(parent, std::move(name), std::move(design)), mValue(value) {}

  /// The state; unchecked at first.
  CheckState Value() const { return mValue; }
  /// Sets the state and raises Click when it differs.
  void Value(CheckState value);
  /// False for grayed as well.
  bool IsChecked() const { return mValue == CheckState::Checked; }

  /// Raised when the state changes, by the user or by the program.
  Event<> Click;

  /// For desktops and test users: the user ticks or unticks the box; grayed becomes unchecked. The focus comes here
  /// first; when the field that loses it takes it back, the box stays as it is.
  void UserToggle();
  void UserMnemonic() override { UserToggle(); }
  void Accept(ControlVisitor& visitor) override;

 private:
  CheckState mValue;
};

/// The check state of a Boolean.
inline CheckState CheckedIf(bool value) {
  return value ? CheckState::Checked : CheckState::Unchecked;
}

}  // namespace orx
