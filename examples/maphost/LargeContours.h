// A computation that takes its time: the contour lines of a large area, level by level.
#pragma once

#include <cstddef>

#include "maplibrary/files/GridData.h"

namespace maphost {

/// The area is a grid laid out several times side by side, each time mirrored, so that the values meet at the seams.
class LargeContours {
 public:
  /// `across` times `across` grids, at least one; contours at every `interval`, in the unit of the grid's values and
  /// more than 0.
  LargeContours(const orx::maplibrary::GridData& grid, std::int32_t across, double interval);

  /// How many levels there are, and for how many of them the contours are known.
  std::int32_t Levels() const { return mLevels; }
  std::int32_t Done() const { return mDone; }
  /// The level that is next.
  double NextLevel() const { return mLowest + mDone * mInterval; }
  /// Works on the next level; there must be one.
  void Next();

  /// What has been found so far.
  std::size_t Lines() const { return mLines; }
  std::size_t Points() const { return mPoints; }

 private:
  orx::maplibrary::GridData mArea;
  double mInterval;
  double mLowest = 0;
  std::int32_t mLevels = 0;
  std::int32_t mDone = 0;
  std::size_t mLines = 0;
  std::size_t mPoints = 0;
};

}  // namespace maphost
