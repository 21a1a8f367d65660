// A typed number that the dialog looks at when it wants to know; see CheckedNumberField for one that is checked as soon
// as the focus leaves.
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "forms/Fields.h"

namespace orx {

/// What a number may be, both ends included, and how it is shown.
struct NumberRule {
  double Minimum = -std::numeric_limits<double>::infinity();
  double Maximum = std::numeric_limits<double>::infinity();
  /// What the field holds while there is no value; none: an empty text.
  std::optional<double> Initially = std::nullopt;
  /// How the number is shown; none: the shortest text that reads back as the same number. A format that rounds costs
  /// nothing of the value: a field that is not edited stands for the exact number that it was given.
  std::function<std::string(double)> Format = nullptr;

  /// Whether a number lies between the ends; one that compares with nothing does not.
  bool Allows(double value) const { return value >= Minimum && value <= Maximum; }
  /// True when not every number is allowed.
  bool HasRange() const {
    return Minimum > -std::numeric_limits<double>::infinity() || Maximum < std::numeric_limits<double>::infinity();
  }
};

/// Stands for the exact number that it was given, however much its text rounds, until the text is edited; from then on
/// it stands for what the text reads, also where that is the rounded number shown. It refuses nothing by itself.
/// Numbers are read and shown in the locale of the form's desktop.
class NumberField : public FieldTypes<double, TextEntry, NumberRule> {
 public:
  /// The control must live as long; it is left as it is.
  explicit NumberField(TextEntry entry, NumberRule rule = {}) : mEntry(entry), mRule(std::move(rule)) {}

  /// The control, and what the number may be.
  Control& Box() const { return mEntry.Box(); }
  const NumberRule& Bounds() const { return mRule; }
  /// Gives the number, and shows it as the rule says or by a text of the caller's.
  void Show(double value);
  void Show(double value, const std::string& text);
  /// Shows what the rule has for no value.
  void Clear();
  /// The number that the field stands for; none when its text is no number.
  std::optional<double> Value() const;
  /// True when the text was typed, or set to another one, since the number was shown.
  bool IsEdited() const;

 private:
  std::optional<double> Read(const std::string& text) const;

  TextEntry mEntry;
  NumberRule mRule;
  std::optional<double> mValue;
  std::string mText;
  int mEdits = 0;
};

/// The shortest text that reads back as that number in the locale of the control's desktop.
std::string PlainNumber(const Control& control, double value);

}  // namespace orx
