#include "maplibrary/model/GridShade.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "maplibrary/model/Errors.h"

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

void GridShade::Grid(std::shared_ptr<const GridData> value) {
  mGrid = std::move(value);
  mIsWorkedOut = false;
}

const std::optional<double>& GridShade::Suggested() const {
  if (std::exchange(mIsWorkedOut, true)) return mSuggested;
  mSuggested.reset();
  if (!mGrid) return mSuggested;
  const GroundRect edges = mGrid->Edges();
  const double latitude = (edges.Bottom + edges.Top) / 2;
  // Between the length of a degree of longitude and that of a degree of latitude.
  const double unit =
      IsInDegrees(*mGrid) ? kMetresPerDegree * std::sqrt(std::max(std::cos(latitude * kRadians), 0.1)) : 1;
  const double slope = MeanSlope(*mGrid, 1 / unit);
  if (slope > 0 && std::isfinite(slope))
    mSuggested = ToThreeDigits(std::clamp(kVisibleSlope / slope, 1.0, kMostExaggeration) / unit);
  return mSuggested;
}

bool GridShade::SuggestScaleFactor(double& value) {
  value = Suggested().value_or(value);
  return Suggested().has_value();
}

double GridShade::HeightScale() const {
  const double factor = mScaleAutomatic ? Suggested().value_or(mFactor) : mFactor;
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

LightSource::LightSource(double azimuth, double altitude)
    : mEast(std::cos(altitude * kRadians) * std::sin(azimuth * kRadians)),
      mNorth(std::cos(altitude * kRadians) * std::cos(azimuth * kRadians)),
      mUp(std::sin(altitude * kRadians)) {
}

double LightSource::On(const Slope& slope) const {
  const double length = std::sqrt(1 + slope.East * slope.East + slope.North * slope.North);
  return std::max((mUp - mEast * slope.East - mNorth * slope.North) / length, 0.0);
}

std::vector<float> LightSource::On(const GridData& grid, double scale) const {
  std::vector<float> light;
  light.reserve(grid.Values.size());
  for (std::int32_t row = 0; row < grid.Rows; ++row) {
    for (std::int32_t column = 0; column < grid.Columns; ++column) {
      const bool hasValue = !std::isnan(grid.At(row, column));
      light.push_back(hasValue ? static_cast<float>(On(SlopeOf(grid, row, column, scale)))
                               : std::numeric_limits<float>::quiet_NaN());
    }
  }
  return light;
}

}  // namespace orx::maplibrary
