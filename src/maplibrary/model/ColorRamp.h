// The colours of elevations, from green lowlands over yellow and brown to pale summits.
#pragma once

#include "forms/Appearance.h"
#include "maplibrary/files/GridData.h"

namespace orx::maplibrary {

/// The colour at `share` of the way from the lowest (0) to the highest value (1); shares beyond are cut, NaN counts as
/// 0.
Color ColorAt(double share);

/// Where `value` lies in the range, from 0 to 1. The middle of a range without width.
double ShareOf(double value, const ValueRange& range);

}  // namespace orx::maplibrary
