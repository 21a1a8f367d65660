// A text field for a number, and a pair of such fields for the ends of a span.
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "forms/CheckedField.h"

namespace orx {

/// What a number field accepts, both ends included, and how it shows its number.
struct NumberRule {
  double Minimum = std::numeric_limits<double>::lowest();
  double Maximum = std::numeric_limits<double>::max();
  /// How the number is shown; none: the shortest text that reads back as the same number. A format that rounds does not
  /// change the value: a field that is not edited stands for the exact number that it was given.
  std::function<std::string(double)> Format = nullptr;
};

/// Reads numbers in the locale of the form's desktop. Only finite numbers are accepted.
class NumberField final : public ValueField<double> {
 public:
  /// Watches the box; the field has no value yet.
  explicit NumberField(TextBox& box, NumberRule rule = {}) : ValueField(box), mRule(std::move(rule)) {}

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const double& value) const override;

 private:
  std::string PlainText(double value) const;

  NumberRule mRule;
};

/// Two number fields of which the first must be less than the second. The order is checked when the focus leaves the
/// pair, not on the way from one field to the other: so the user can type both ends in any order when a span moves past
/// its old ends. A span in the wrong order is refused like a wrong entry: a message names both values, both fields get
/// their previous numbers back, and the focus returns to the field that it left. It takes the Left event of both
/// fields.
class NumberSpan {
 public:
  /// Takes over the Left events of both fields, which must live as long as the span.
  NumberSpan(NumberField& lower, NumberField& upper);
  NumberSpan(const NumberSpan&) = delete;
  NumberSpan& operator=(const NumberSpan&) = delete;

  /// Shows both numbers, without an event. Numbers in the wrong order stay until the user enters another one.
  void Values(double lower, double upper);
  /// Checks pending texts and the order at once, for a save. False when something was refused.
  bool Check();
  /// True when the lower value is less than the upper one; equal values are not in order.
  bool IsInOrder() const { return mLower.Value() < mUpper.Value(); }

  /// Raised when an entry was accepted in one of the fields and when a span was put back.
  Event<> Changed;

 private:
  void FieldLeft(NumberField& field);
  bool CheckOrder(NumberField& focused);

  NumberField& mLower;
  NumberField& mUpper;
  double mGoodLower = 0;
  double mGoodUpper = 0;
  bool mIsEdited = false;
};

}  // namespace orx
