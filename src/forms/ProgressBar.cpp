#include "forms/ProgressBar.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "forms/Form.h"
#include "numbers/Numbers.h"

namespace orx {
namespace {

void RefuseUnless(bool isGood, const char* what, float value, float low, float high) {
  if (isGood) return;
  const auto text = [](float number) { return numbers::ShortestText(static_cast<double>(number)); };
  throw std::out_of_range(std::string(what) + " " + text(value) + " does not fit a progress bar from " + text(low) +
                          " to " + text(high));
}

}  // namespace

void ProgressBar::Min(float value) {
  RefuseUnless(std::isfinite(value), "The minimum", value, mMin, mMax);
  mMin = value;
  mMax = std::max(mMax, value);
  mValue = std::max(mValue, value);
  Show();
}

void ProgressBar::Max(float value) {
  RefuseUnless(std::isfinite(value) && value >= mMin, "The maximum", value, mMin, mMax);
  mMax = value;
  mValue = std::min(mValue, value);
  Show();
}

void ProgressBar::Value(float value) {
  RefuseUnless(value >= mMin && value <= mMax, "The value", value, mMin, mMax);
  mValue = value;
  Show();
}

int ProgressBar::Pixels() const {
  return std::max(1, OwnerForm().OwnerDesktop().ToPixels(Place().Width));
}

int ProgressBar::FilledPixels() const {
  if (mValue <= mMin) return 0;
  // A double holds the difference of any two singles.
  const double part = (static_cast<double>(mValue) - mMin) / (static_cast<double>(mMax) - mMin);
  const int pixels = Pixels();
  return mValue >= mMax ? pixels : std::min(pixels - 1, static_cast<int>(part * pixels));
}

void ProgressBar::Show() {
  const int filled = FilledPixels();
  if (std::exchange(mShown, filled) == filled) return;
  // A full bar may be the last that the user sees of an operation.
  Changed(Aspect::Value, mValue < mMax ? Urgency::CanWait : Urgency::AtOnce);
}

void ProgressBar::Placed() {
  mShown = FilledPixels();
  Changed(Aspect::Value);
}

}  // namespace orx
