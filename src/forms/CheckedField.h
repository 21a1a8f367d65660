// A text field that accepts only certain texts. The rules for typing into such a field are the same for all kinds of
// values and are kept here.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/Event.h"
#include "forms/Fields.h"
#include "forms/Message.h"

namespace orx {

class TextBox;

/// Watches a text box. It takes the box's GotFocus and LostFocus events and must live as long as the box.
///
/// When the focus comes, all of the text is selected. When it leaves, the text is checked if it was changed: an
/// accepted one becomes the value and is shown in plain notation; for a refused one the text from before comes back, a
/// message tells why, and the focus returns to the field with its text selected, so that a button pressed meanwhile
/// does nothing.
class CheckedEntry {
 public:
  /// Takes the box over; nothing is selected or checked yet.
  explicit CheckedEntry(TextBox& box);
  virtual ~CheckedEntry() = default;
  CheckedEntry(const CheckedEntry&) = delete;
  CheckedEntry& operator=(const CheckedEntry&) = delete;

  /// The text box that is watched.
  TextBox& Box() const { return mBox; }
  /// True while the box holds a text that was neither accepted nor refused yet.
  bool IsPending() const;
  /// True when an entry was accepted since the program showed a value, or is pending.
  bool IsEdited() const { return mIsEdited || IsPending(); }
  /// Checks a pending text at once, for a save that comes while the focus is still here. False when it was refused.
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

  /// Puts the text of the value into the box. For values set by program, as the host's or as the user's.
  void ShowValue(bool isEdited);
  /// A message with its texts translated and the values put in.
  Message MakeMessage(const char* title, const char* text, std::initializer_list<std::string_view> values) const;

  friend class NumberSpan;

 private:
  std::string Translated(const char* text) const { return Translate ? Translate(text) : text; }
  void SelectAll();

  TextBox& mBox;
  std::string mShown;
  bool mIsEdited = false;
};

/// A checked field for values of one type. A value that the program shows is taken as it is, without an event, and
/// stays exactly that until the user enters another one.
template <class Held>
class CheckedField : public CheckedEntry, public FieldTypes<Held, TextBox&> {
 public:
  /// As CheckedEntry; the field has no value yet.
  explicit CheckedField(TextBox& box, NoRule = {}) : CheckedEntry(box) {}

  /// The value last shown or accepted; a text that is pending does not count yet.
  const Held& Value() const { return mValue; }
  /// False while the field has none.
  bool HasValue() const { return mHasValue; }
  /// Shows a value, which counts as not edited.
  void Show(const Held& value) {
    Become(value);
    ShowValue(false);
  }
  /// Takes a value over that the user has chosen elsewhere.
  void Enter(const Held& value) {
    Become(value);
    ShowValue(true);
  }
  /// Empties the box, for a field that has no value at present; Value() is then the type's default.
  void Clear() {
    mValue = {};
    mHasValue = false;
    ShowValue(false);
  }

 protected:
  /// For Take: makes an accepted value the field's.
  void Become(const Held& value) {
    mValue = value;
    mHasValue = true;
  }
  /// The text that stands for a value.
  virtual std::string TextOf(const Held& value) const = 0;
  std::string ValueText() const final { return mHasValue ? TextOf(mValue) : std::string(); }

 private:
  Held mValue = {};
  bool mHasValue = false;
};

/// The name of a field in messages: the accessible name of its control without a colon at the end.
std::string FieldName(const Control& control);

}  // namespace orx
