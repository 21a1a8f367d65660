#include "forms/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orx {
namespace {

constexpr double kFadedContrast = 4.5;

double Light(std::uint8_t part) {
  const double share = part / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Light(Color color) {
  return 0.2126 * Light(color.Red) + 0.7152 * Light(color.Green) + 0.0722 * Light(color.Blue);
}

/// A colour between two, by the share of the second one from 0 to 1.
Color Between(Color one, Color other, double share) {
  const auto part = [&](std::uint8_t from, std::uint8_t to) {
    return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
  };
  return {part(one.Red, other.Red), part(one.Green, other.Green), part(one.Blue, other.Blue)};
}

}  // namespace

double Contrast(Color one, Color other) {
  const std::array<double, 2> lights{Light(one), Light(other)};
  const auto [darker, lighter] = std::ranges::minmax(lights);
  return (lighter + 0.05) / (darker + 0.05);
}

Color FadedInk(Color ink, Color ground) {
  constexpr int kSteps = 64;
  for (int step = kSteps; step > 0; --step) {
    const Color mixed = Between(ink, ground, static_cast<double>(step) / kSteps);
    if (Contrast(mixed, ground) >= kFadedContrast) return mixed;
  }
  return ink;
}

}  // namespace orx
