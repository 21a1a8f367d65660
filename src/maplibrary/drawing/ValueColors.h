// The colours in which the values of a grid are painted.
#pragma once

#include <vector>

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/LayerData.h"

namespace orx::maplibrary {

/// The colour of a class, counted from 0, of `count` classes.
Color ClassColor(std::int32_t classIndex, std::int32_t count);

/// Made for one picture; the data must live as long.
class ValueColors {
 public:
  /// `range` is the range of colours without steps; null data have no classes and no special values.
  ValueColors(const LayerData* data, const ValueRange& range);

  /// The colour of a value, NaN being a place without data; null when it is not drawn.
  const Color* For(double value) const;
  /// The colour at a share of the range, from 0 to 1.
  const Color& ForShare(double share) const;
  /// True for values of no special range; others may not be blended with their neighbours.
  bool IsPlain(double value) const { return !mHasSpecialRanges || !SpecialOf(value); }

 private:
  const SpecialValue* SpecialOf(double value) const;

  const LayerData* mData;
  ValueRange mLimits;
  bool mHasSpecialRanges;
  bool mOutsideIsMissing;
  /// The classes, or the ramp in steps that are finer than its colours differ.
  std::vector<Color> mColors;
};

}  // namespace orx::maplibrary
