#include "maplibrary/GridShade.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "maplibrary/Errors.h"

namespace orx::maplibrary {
namespace {

constexpr double kRadians = std::numbers::pi / 180;
constexpr double kFull = 100;
/// Metres in one degree of latitude.
constexpr double kMetresPerDegree = 111320;
constexpr std::int32_t kMostShades = 255;

/// Scaled slopes that show well on a map, and how much may be exaggerated for them.
constexpr double kVisibleSlope = 0.25;
constexpr double kMostExaggeration = 10;

/// Coordinates within these are degrees.
bool IsInDegrees(const GridData& grid) {
  const GroundRect edges = grid.Edges();
  return edges.Left >= -360 && edges.Right <= 360 && edges.Bottom >= -90 && edges.Top <= 90 && grid.CellWidth < 1 &&
         grid.CellHeight < 1;
}

double MeanSlope(const GridData& grid, double scale) {
  double sum = 0;
  std::int64_t count = 0;
  for (std::int32_t row = 0; row < grid.Rows; ++row) {
    for (std::int32_t column = 0; column < grid.Columns; ++column) {
      if (std::isnan(grid.At(row, column))) continue;
      const Slope slope = SlopeOf(grid, row, column, scale);
      sum += std::hypot(slope.East, slope.North);
      ++count;
    }
  }
  return count == 0 ? 0 : sum / static_cast<double>(count);
}

double ToThreeDigits(double value) {
  const double unit = std::pow(10.0, std::floor(std::log10(value)) - 2);
  // Dividing by a power of ten that is whole keeps the result a short decimal.
  return unit < 1 ? std::round(value / unit) / std::round(1 / unit) : std::round(value / unit) * unit;
}

}  // namespace

void GridShade::CombineColors(std::int16_t value) {
  RequireRange("CombineColors", value, combinecolors::kNone, combinecolors::kShadeAndDevice);
  mCombine = value;
}

void GridShade::Altitude(std::int32_t value) {
  RequireRange("Altitude", value, 0, 90);
  mAltitude = value;
}

void GridShade::FirstShadeIndex(std::int32_t value) {
  RequireRange("FirstShadeIndex", value, 1, kMostShades);
  mFirstIndex = value;
}

void GridShade::Azimuth(std::int32_t value) {
  RequireRange("Azimuth", value, 0, 360);
  mAzimuth = value;
}

void GridShade::NrOfShades(std::int32_t value) {
  RequireRange("NrOfShades", value, 1, kMostShades);
  mShades = value;
}

void GridShade::MinIntensity(double value) {
  RequireNotNegative("MinIntensity", value);
  mMinimum = value;
}

void GridShade::ScaleFactor(double value) {
  RequireNotNegative("ScaleFactor", value);
  mFactor = value;
}

void GridShade::ScaleMultiplier(double value) {
  RequireNotNegative("ScaleMultiplier", value);
  mMultiplier = value;
}

void GridShade::AltitudeDefault(std::int32_t value) {
  RequireRange("AltitudeDefault", value, 0, 90);
  mReference = value;
}

void GridShade::MaxIntensity(double value) {
  RequireNotNegative("MaxIntensity", value);
  mMaximum = value;
}

void GridShade::MidIntensity(double value) {
  RequireNotNegative("MidIntensity", value);
  mMiddle = value;
}

void GridShade::ShadeVersion(std::int32_t value) {
  if (value != shadeversion::kDarkening && value != shadeversion::kSunAndShadow)
    throw RunTimeError(kErrorInvalidValue, "ShadeVersion must be one of 10, 20.");
  mVersion = value;
}

bool GridShade::SuggestScaleFactor(double& value) {
  if (!mGrid) return false;
  const GroundRect edges = mGrid->Edges();
  const double latitude = (edges.Bottom + edges.Top) / 2;
  // Between the length of a degree of longitude and that of a degree of latitude.
  const double unit =
      IsInDegrees(*mGrid) ? kMetresPerDegree * std::sqrt(std::max(std::cos(latitude * kRadians), 0.1)) : 1;
  const double slope = MeanSlope(*mGrid, 1 / unit);
  if (!(slope > 0) || !std::isfinite(slope)) return false;
  value = ToThreeDigits(std::clamp(kVisibleSlope / slope, 1.0, kMostExaggeration) / unit);
  return true;
}

double GridShade::HeightScale() const {
  double factor = mFactor;
  // The suggestion reads the grid and changes nothing.
  if (mScaleAutomatic) const_cast<GridShade*>(this)->SuggestScaleFactor(factor);
  return factor * mMultiplier;
}

double GridShade::IntensityOf(double light) const {
  const double last = std::max(mShades - 1, 1);
  const double index = std::max(1 + std::round(light * last), static_cast<double>(std::min(mFirstIndex, mShades)));
  const double share = (index - 1) / last;
  if (mVersion == shadeversion::kDarkening) return mMinimum + (kFull - mMinimum) * share;
  const double level = std::sin((mUsesReference ? mReference : mAltitude) * kRadians);
  if (share <= level) return level > 0 ? mMinimum + (mMiddle - mMinimum) * share / level : mMiddle;
  return mMiddle + (mMaximum - mMiddle) * (share - level) / (1 - level);
}

Slope SlopeOf(const GridData& grid, std::int32_t row, std::int32_t column, double scale) {
  const double center = grid.At(row, column);
  const auto at = [&](std::int32_t down, std::int32_t right) {
    const std::int32_t r = row + down;
    const std::int32_t c = column + right;
    if (r < 0 || c < 0 || r >= grid.Rows || c >= grid.Columns) return center;
    const double value = grid.At(r, c);
    return std::isnan(value) ? center : value;
  };
  const double northWest = at(-1, -1);
  const double northEast = at(-1, 1);
  const double southWest = at(1, -1);
  const double southEast = at(1, 1);
  const double east = (northEast + 2 * at(0, 1) + southEast) - (northWest + 2 * at(0, -1) + southWest);
  const double north = (northWest + 2 * at(-1, 0) + northEast) - (southWest + 2 * at(1, 0) + southEast);
  return {scale * east / (8 * grid.CellWidth), scale * north / (8 * grid.CellHeight)};
}

double LightOn(const Slope& slope, double azimuth, double altitude) {
  const double away = std::cos(altitude * kRadians) *
                      (std::sin(azimuth * kRadians) * slope.East + std::cos(azimuth * kRadians) * slope.North);
  const double light = (std::sin(altitude * kRadians) - away) / std::hypot(1, slope.East, slope.North);
  return std::max(light, 0.0);
}

std::vector<float> LightOf(const GridData& grid, double azimuth, double altitude, double scale) {
  std::vector<float> light;
  light.reserve(grid.Values.size());
  const double east = std::cos(altitude * kRadians) * std::sin(azimuth * kRadians);
  const double north = std::cos(altitude * kRadians) * std::cos(azimuth * kRadians);
  const double up = std::sin(altitude * kRadians);
  for (std::int32_t row = 0; row < grid.Rows; ++row) {
    for (std::int32_t column = 0; column < grid.Columns; ++column) {
      if (std::isnan(grid.At(row, column))) {
        light.push_back(std::numeric_limits<float>::quiet_NaN());
        continue;
      }
      const Slope slope = SlopeOf(grid, row, column, scale);
      const double length = std::sqrt(1 + slope.East * slope.East + slope.North * slope.North);
      light.push_back(static_cast<float>(std::max((up - east * slope.East - north * slope.North) / length, 0.0)));
    }
  }
  return light;
}

}  // namespace orx::maplibrary
