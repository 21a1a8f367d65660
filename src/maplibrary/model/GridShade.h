// The relief shading of a grid layer: its settings, and the light on its cells.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "hostobjects/IGridSettings.h"
#include "maplibrary/files/GridData.h"

namespace orx::maplibrary {

/// Not shaded at first. Setters throw RunTimeError outside the ranges of their interface.
class GridShade final : public ShadeSettings2 {
 public:
  bool ScaleAutomatic() const override { return mScaleAutomatic; }
  void ScaleAutomatic(bool value) override { mScaleAutomatic = value; }
  std::int16_t CombineColors() const override { return mCombine; }
  void CombineColors(std::int16_t value) override;
  std::int32_t Altitude() const override { return mAltitude; }
  void Altitude(std::int32_t value) override;
  std::int32_t FirstShadeIndex() const override { return mFirstIndex; }
  void FirstShadeIndex(std::int32_t value) override;
  /// Follows the number of shades, which is all that the drawing needs.
  void ShadeCount(std::int32_t value) override { NrOfShades(value); }
  std::int32_t Azimuth() const override { return mAzimuth; }
  void Azimuth(std::int32_t value) override;
  std::int32_t NrOfShades() const override { return mShades; }
  void NrOfShades(std::int32_t value) override;
  double MinIntensity() const override { return mMinimum; }
  void MinIntensity(double value) override;
  double ScaleFactor() const override { return mFactor; }
  void ScaleFactor(double value) override;
  double ScaleMultiplier() const override { return mMultiplier; }
  void ScaleMultiplier(double value) override;
  /// True to scale for grids in degrees, exaggerated up to tenfold where slopes are too gentle to be seen; rounded to
  /// three digits. False without a grid, without values, and on level ground.
  bool SuggestScaleFactor(double& value) override;
  std::int32_t AltitudeDefault() const override { return mReference; }
  void AltitudeDefault(std::int32_t value) override;
  bool MidIndexAutomatic() const override { return mUsesReference; }
  void MidIndexAutomatic(bool value) override { mUsesReference = value; }
  double MaxIntensity() const override { return mMaximum; }
  void MaxIntensity(double value) override;
  double MidIntensity() const override { return mMiddle; }
  void MidIntensity(double value) override;
  std::int32_t ShadeVersion() const override { return mVersion; }
  void ShadeVersion(std::int32_t value) override;

  /// The grid that a scale factor is suggested for.
  void Grid(std::shared_ptr<const GridData> value);
  bool IsOn() const { return mCombine != combinecolors::kNone; }
  /// What heights are multiplied by: the factor, or the suggested one, times the multiplier.
  double HeightScale() const;
  /// The intensity in percent for light from 0 (none) to 1 (at right angles to the ground).
  double IntensityOf(double light) const;

 private:
  /// Worked out once for a grid; none when it does not allow it.
  const std::optional<double>& Suggested() const;

  std::shared_ptr<const GridData> mGrid;
  mutable bool mIsWorkedOut = false;
  mutable std::optional<double> mSuggested;
  bool mScaleAutomatic = true;
  std::int16_t mCombine = combinecolors::kNone;
  std::int32_t mAltitude = 45;
  std::int32_t mFirstIndex = 1;
  std::int32_t mAzimuth = 315;
  std::int32_t mShades = 128;
  double mMinimum = 50;
  double mFactor = 0.001;
  double mMultiplier = 1;
  std::int32_t mReference = 45;
  bool mUsesReference = false;
  double mMaximum = 150;
  double mMiddle = 100;
  std::int32_t mVersion = shadeversion::kSunAndShadow;
};

/// The slope of the ground in a cell: how much the height grows to the east and to the north in one unit of length.
struct Slope {
  double East = 0;
  double North = 0;
};

/// After Horn (Hill Shading and the Reflectance Map, Proceedings of the IEEE 69, 1981): with the neighbours
/// a b c / d e f / g h i from the north-west on,
///   East  = ((c + 2f + i) - (a + 2d + g)) / (8 * CellWidth),
///   North = ((a + 2b + c) - (g + 2h + i)) / (8 * CellHeight).
/// A neighbour without value, or beyond the edge, counts as the cell itself. Heights are multiplied by `scale`.
Slope SlopeOf(const GridData& grid, std::int32_t row, std::int32_t column, double scale);

/// Light from one direction: azimuth clockwise from north and altitude above the horizon, in degrees.
class LightSource {
 public:
  LightSource(double azimuth, double altitude);

  /// The light on ground of that slope, from 0 to 1: the cosine of the angle between the light and the normal of the
  /// ground, 0 where the ground turns away.
  double On(const Slope& slope) const;
  /// The light on each cell, row by row; NaN where the grid has no value. Heights are multiplied by `scale`.
  std::vector<float> On(const GridData& grid, double scale) const;

 private:
  double mEast;
  double mNorth;
  double mUp;
};

}  // namespace orx::maplibrary
