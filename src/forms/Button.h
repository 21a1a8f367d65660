// A push button.
#pragma once

#include "forms/Control.h"
#include "forms/Glyph.h"

namespace orx {

/// What a button means in its form: Enter presses the default button, Escape the cancel button.
enum class ButtonRole { Plain, Default, Cancel };

/// A button that the user presses by mouse, Enter, Space or its mnemonic.
class Button : public Control {
 public:
  /// As Control; the role is fixed.
  Button(Container& parent, std::string name, Design design, ButtonRole role = ButtonRole::Plain)
      : Control(parent, std::move(name), std::move(design)), mRole(role) {}
  /// A button with a picture in place of a caption. The glyph must outlive the button.
  Button(Container& parent, std::string name, Design design, const Glyph& picture)
      : Control(parent, std::move(name), std::move(design)), mPicture(&picture) {}

  /// What Enter and Escape do with it.
  ButtonRole Role() const { return mRole; }
  /// The picture on it, null for none.
  const Glyph* Picture() const { return mPicture; }

  /// Raised when the button is pressed by mouse, key or program.
  Event<> Click;

  /// For desktops and test users: the user presses the button. The focus comes here first; when the field that loses it
  /// takes it back, the press is dropped.
  void UserPress();
  void UserMnemonic() override { UserPress(); }
  bool ShowsCaption() const override { return !mPicture; }
  void Accept(ControlVisitor& visitor) override;

 private:
  ButtonRole mRole = ButtonRole::Plain;
  const Glyph* mPicture = nullptr;
};

}  // namespace orx
