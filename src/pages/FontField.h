// A font as its parts: five controls for one value.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/CheckedNumberField.h"

namespace orx {
class CheckBox;
class ComboBox;
class TextBox;
}  // namespace orx

namespace orx::pages {

/// The controls of a font. What they do not show of it, such as a line through the letters, stays as it is.
struct FontControls {
  ComboBox& Name;
  TextBox& Size;
  CheckBox& Bold;
  CheckBox& Italic;
  CheckBox& Underline;
};

/// Stands for the font that it was given, with what the user has edited of it. The size is checked when the focus
/// leaves, and refused outside the sizes of the pages.
class FontField : public FieldTypes<Font, FontControls> {
 public:
  /// The controls must live as long.
  explicit FontField(const FontControls& controls, NoRule = {});

  /// The control with the font's name.
  ComboBox& Box() const { return mControls.Name; }
  /// All of them.
  std::vector<Control*> Boxes() const;
  /// Shows the font.
  void Show(const Font& value);
  /// Shows that there is none.
  void Clear();
  /// The font as it is edited.
  Font Value() const;
  /// True when it is another than shown.
  bool IsEdited() const { return Value() != mShown; }
  /// Checks a size that is still being typed. False when it was refused.
  bool Check() { return mSize.Check(); }

  /// Translates the texts of messages; none by default.
  std::function<std::string(const std::string&)> Translate;
  /// Raised when another size was typed.
  Event<> Accepted;

 private:
  FontControls mControls;
  CheckedNumberField mSize;
  Font mShown;
};

}  // namespace orx::pages
