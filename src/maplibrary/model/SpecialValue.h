// One kind of special values of a grid layer: how they are treated and drawn.
#pragma once

#include <string>

#include "hostobjects/IData.h"

namespace orx::maplibrary {

/// Bounds throw RunTimeError unless finite.
class SpecialValue final : public ISpecialValue {
 public:
  SpecialValue(std::string text, bool enabled, double lower, double upper)
      : mEnabled(enabled), mLower(lower), mUpper(upper), mText(std::move(text)) {}

  orx::Color Color() const override { return mColor; }
  void Color(orx::Color value) override { mColor = value; }
  bool Enabled() const override { return mEnabled; }
  void Enabled(bool value) override { mEnabled = value; }
  bool InLegend() const override { return mInLegend; }
  void InLegend(bool value) override { mInLegend = value; }
  double UpperBound() const override { return mUpper; }
  void UpperBound(double value) override;
  double LowerBound() const override { return mLower; }
  void LowerBound(double value) override;
  /// What the legend says of the kind.
  std::string TextValue() const override { return mText; }
  void TextValue(const std::string& value) override { mText = value; }
  bool Transparent() const override { return mTransparent; }
  void Transparent(bool value) override { mTransparent = value; }

  /// True when the kind is treated specially and the value lies in its range.
  bool Holds(double value) const { return mEnabled && value >= mLower && value <= mUpper; }
  /// The colour that values of the kind are filled with; null when they are not drawn.
  const orx::Color* Fill() const { return mEnabled && !mTransparent ? &mColor : nullptr; }

 private:
  orx::Color mColor{255, 255, 192};
  bool mEnabled;
  bool mInLegend = false;
  double mLower;
  double mUpper;
  std::string mText;
  bool mTransparent = true;
};

}  // namespace orx::maplibrary
