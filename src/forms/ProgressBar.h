// A bar that shows how far an operation has come.
#pragma once

#include "forms/Control.h"

namespace orx {

/// Fills from its minimum to its maximum and takes no focus. The numbers are finite and of single precision.
class ProgressBar final : public Control {
 public:
  /// The range is 0 to 100 and the bar empty at first.
  using Control::Control;

  /// The ends. A new minimum raises a maximum and a value that are below it, and a new maximum lowers a value that is
  /// above it; a bar whose ends are equal stays empty. Throw std::out_of_range for a maximum below the minimum and for
  /// a number that is not finite; the bar stays as it was.
  float Min() const { return mMin; }
  void Min(float value);
  float Max() const { return mMax; }
  void Max(float value);
  /// How far the bar is filled. Throws std::out_of_range beyond the two ends; the bar stays as it was.
  float Value() const { return mValue; }
  void Value(float value);

  /// For desktops: the length of the bar in pixels, at least one, and how many of them are filled: none at the minimum,
  /// all only at the maximum.
  int Pixels() const;
  int FilledPixels() const;

  bool TakesFocus() const override { return false; }
  void Accept(ControlVisitor& visitor) override;

 protected:
  void Placed() override;

 private:
  /// Updates the native mirror if the user can see the difference.
  void Show();

  float mMin = 0;
  float mMax = 100;
  float mValue = 0;
  int mShown = 0;
};

}  // namespace orx
