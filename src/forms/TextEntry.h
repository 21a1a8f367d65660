// The text that a user types, whichever control holds it.
#pragma once

#include <string>
#include <variant>

namespace orx {

class ComboBox;
class Control;
class TextBox;

/// The text of a text box, or of a combo box that the user may type into. The control must live as long.
class TextEntry {
 public:
  /// Either control does where an entry is wanted.
  TextEntry(TextBox& box) : mBox(&box) {}
  TextEntry(ComboBox& box) : mBox(&box) {}

  /// The control that holds the text.
  Control& Box() const;
  /// The text, UTF-8; setting it raises the control's Change when it differs.
  const std::string& Text() const;
  void Text(const std::string& value) const;
  /// How often the user has edited the text, also to the same text again.
  int Edits() const;

 private:
  std::variant<TextBox*, ComboBox*> mBox;
};

}  // namespace orx
