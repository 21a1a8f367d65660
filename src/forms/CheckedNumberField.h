// A typed number that is checked when the focus leaves, and two such fields that hold the ends of a span.
#pragma once

#include "forms/CheckedField.h"
#include "forms/NumberField.h"

namespace orx {

/// Reads numbers in the locale of the form's desktop. Only finite numbers are accepted.
class CheckedNumberField : public CheckedField<double> {
 public:
  /// In place of the rule of other checked fields.
  using Rule = NumberRule;
  /// Watches the box; the field has no value yet. The rule's Initially is not for checked fields.
  explicit CheckedNumberField(TextBox& box, NumberRule rule = {}) : CheckedField(box), mRule(std::move(rule)) {}

 protected:
  std::optional<Message> Take(const std::string& text) override;
  std::string TextOf(const double& value) const override;

 private:
  NumberRule mRule;
};

/// Two number fields of which the first must be less than the second. The order is checked when the focus leaves the
/// pair, not on the way from one field to the other: so both ends can be typed one after the other, in any order, when
/// a span moves past its old ends. A span in wrong order is refused like a wrong entry: a message names both values,
/// both fields get back the numbers from before, and the focus returns to the field that it has left.
/// It takes the Left event of both fields.
class NumberSpan {
 public:
  /// Takes over the Left events of both fields, which must live as long as the span.
  NumberSpan(CheckedNumberField& lower, CheckedNumberField& upper);
  NumberSpan(const NumberSpan&) = delete;
  NumberSpan& operator=(const NumberSpan&) = delete;

  /// Shows both numbers, without an event. Numbers in wrong order stay as they are until the user enters another one.
  void Show(double lower, double upper);
  /// The same with the numbers that the fields show already.
  void Restart();
  /// Checks pending texts and the order at once, for a save. False when something was refused.
  bool Check();
  /// True when both fields have a value; with one alone there is no order to check.
  bool IsWhole() const { return mLower.HasValue() && mUpper.HasValue(); }
  /// True when the lower value is less than the upper one; equal values are not in order.
  bool IsInOrder() const { return IsWhole() && mLower.Value() < mUpper.Value(); }

  /// Raised when an entry was accepted in one of the fields and when a span was put back.
  Event<> Changed;

 private:
  void FieldLeft(CheckedNumberField& field);
  bool CheckOrder(CheckedNumberField& focused);

  CheckedNumberField& mLower;
  CheckedNumberField& mUpper;
  double mGoodLower = 0;
  double mGoodUpper = 0;
  bool mIsEdited = false;
};

}  // namespace orx
