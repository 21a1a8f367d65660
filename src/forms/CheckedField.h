// A text field that accepts only certain texts. The rules for typing into such a field are the same for all kinds of
// values and are kept here.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/Event.h"
#include "forms/Message.h"

namespace orx {

class TextBox;

/// Watches a text box. It takes the box's GotFocus and LostFocus events and must live as long as the box.
///
/// When the focus comes, all of the text is selected. When it leaves, the text is checked if it was changed: an
/// accepted one becomes the value and is shown in plain notation; for a refused one the text from before comes back, a
/// message says why, and the focus returns to the field with its text selected, so that a button pressed meanwhile does
/// nothing.
class CheckedField {
 public:
  /// Takes the box over; nothing is selected or checked yet.
  explicit CheckedField(TextBox& box);
  virtual ~CheckedField() = default;
  CheckedField(const CheckedField&) = delete;
  CheckedField& operator=(const CheckedField&) = delete;

  /// The text box that is watched.
  TextBox& Box() const { return mBox; }
  /// The name of the field in messages: its accessible name without a colon at the end.
  std::string Name() const;
  /// True while the box holds a text that has been neither accepted nor refused.
  bool IsPending() const;
  /// Checks a pending text at once, for saving while the focus is still here. False when it was refused.
  bool Check();
  /// Shows a message, then moves the focus here and selects the text.
  void Refuse(const Message& message);

  /// Translates the texts of messages; none by default.
  std::function<std::string(const std::string&)> Translate;
  /// Raised when a typed text was accepted.
  Event<> Accepted;
  /// Raised when the focus has left and the text is accepted, whether or not it was changed.
  Event<> Left;

 protected:
  /// Makes `text` the value, or returns the message with which it is refused.
  virtual std::optional<Message> Take(const std::string& text) = 0;
  /// The text that stands for the value.
  virtual std::string ValueText() const = 0;

  /// Puts the text of the value into the box. For values that the program sets.
  void ShowValue();
  /// A message with its texts translated and the values put in.
  Message MakeMessage(const char* title, const char* text, std::initializer_list<std::string_view> values) const;

  friend class NumberSpan;

 private:
  std::string Translated(const char* text) const { return Translate ? Translate(text) : text; }
  void SelectAll();

  TextBox& mBox;
  std::string mShown;
};

/// A checked field for values of one type. A value that the program sets is not checked, raises no event, and stays
/// exact until the user enters another one.
template <class Type>
class ValueField : public CheckedField {
 public:
  /// As CheckedField; the field has no value yet.
  using CheckedField::CheckedField;

  /// The value last set or accepted.
  const Type& Value() const { return mValue; }
  void Value(const Type& value) {
    Become(value);
    ShowValue();
  }
  /// Empties the box, for a field that has no value at present; Value() is then the type's default.
  void Clear() {
    mValue = {};
    mHasValue = false;
    ShowValue();
  }

 protected:
  /// For Take: makes an accepted value the field's.
  void Become(const Type& value) {
    mValue = value;
    mHasValue = true;
  }
  virtual std::string TextOf(const Type& value) const = 0;
  std::string ValueText() const final { return mHasValue ? TextOf(mValue) : std::string(); }

 private:
  Type mValue = {};
  bool mHasValue = false;
};

}  // namespace orx
