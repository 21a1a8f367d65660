// A bar that shows how far an operation has come.
#pragma once

#include "forms/Control.h"

namespace orx {

/// Fills from its minimum to its maximum and takes no focus. The numbers are finite ones of single precision.
class ProgressBar final : public Control {
 public:
  /// From 0 to 100, empty at first.
  using Control::Control;

  /// The ends. A maximum or a value that a new minimum leaves behind goes with it, a value above a new maximum comes
  /// down to it; a bar whose ends meet stays empty. Throw std::out_of_range for a maximum below the minimum and for
  /// what is no finite number, with the bar as it was.
  float Min() const { return mMin; }
  void Min(float value);
  float Max() const { return mMax; }
  void Max(float value);
  /// Where the bar ends now. Throws std::out_of_range beyond the two ends, with the bar as it was.
  float Value() const { return mValue; }
  void Value(float value);

  /// For desktops: the pixels that there are along the bar, at least one, and how many of them are filled: none at the
  /// minimum, all at the maximum alone.
  int Pixels() const;
  int FilledPixels() const;

  bool TakesFocus() const override { return false; }
  void Accept(ControlVisitor& visitor) override;

 protected:
  void Placed() override;

 private:
  /// Tells the native mirror when the user can see the difference.
  void Show();

  float mMin = 0;
  float mMax = 100;
  float mValue = 0;
  int mShown = 0;
};

}  // namespace orx
