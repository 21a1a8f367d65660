#include "maplibrary/model/ColorRamp.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orx::maplibrary {

namespace {

struct Stop {
  double Share;
  double Red, Green, Blue;
};

constexpr std::array<Stop, 8> kStops = {{{0.00, 84, 142, 98},
                                         {0.12, 122, 170, 110},
                                         {0.28, 178, 202, 136},
                                         {0.45, 232, 224, 164},
                                         {0.62, 214, 184, 128},
                                         {0.78, 180, 140, 100},
                                         {0.90, 156, 122, 106},
                                         {1.00, 240, 236, 232}}};

std::uint8_t Mixed(double from, double to, double share) {
  return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

}  // namespace

Color ColorAt(double share) {
  // Written so that NaN takes the first branch.
  const double at = share > 0 ? std::min(share, 1.0) : 0.0;
  std::size_t upper = 1;
  while (kStops[upper].Share < at) ++upper;
  const Stop& a = kStops[upper - 1];
  const Stop& b = kStops[upper];
  const double part = (at - a.Share) / (b.Share - a.Share);
  return {Mixed(a.Red, b.Red, part), Mixed(a.Green, b.Green, part), Mixed(a.Blue, b.Blue, part)};
}

double ShareOf(double value, const ValueRange& range) {
  // Halves keep the difference of the largest doubles within a double.
  const double width = range.High / 2 - range.Low / 2;
  if (!(width > 0)) return 0.5;
  return std::clamp((value / 2 - range.Low / 2) / width, 0.0, 1.0);
}

}  // namespace orx::maplibrary
