// A text field that shows a number for a form with rules of its own; see NumberField for the usual ones.
#pragma once

#include <optional>
#include <string>

namespace orx {

class TextBox;

/// Stands for the exact number that it was given while its text reads as the number shown, however much the text
/// rounds; a text that the user has changed stands for what it reads. Numbers are read in the locale of the form's
/// desktop. The box must outlive this.
class ShownNumber {
 public:
  /// Shows nothing yet.
  explicit ShownNumber(TextBox& box) : mBox(box) {}
  ShownNumber(const ShownNumber&) = delete;
  ShownNumber& operator=(const ShownNumber&) = delete;

  /// The text box.
  TextBox& Box() const { return mBox; }
  /// Gives the number and the text that shows it.
  void Show(double value, const std::string& text);
  /// Shows the number as the shortest text that reads back as the same one.
  void Show(double value);
  /// The number that the field stands for; none when its text is no number.
  std::optional<double> Value() const;
  /// True when the field no longer stands for the number shown.
  bool IsEdited() const;

 private:
  std::optional<double> Read(const std::string& text) const;

  TextBox& mBox;
  std::optional<double> mValue;
  std::string mText;
};

}  // namespace orx
