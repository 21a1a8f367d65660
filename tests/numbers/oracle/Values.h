// Numbers to write and to round, for the comparison with the platform.
#pragma once

#include <vector>

namespace orx::numbers::oracle {

/// Both signs of zero, halves and carries at every decimal place, whole numbers, and random numbers of magnitudes below
/// ten to the power of `power`. The same for every run.
std::vector<double> Values(int power);

}  // namespace orx::numbers::oracle
