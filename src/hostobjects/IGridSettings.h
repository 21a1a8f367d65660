// Interfaces of a data object that is a grid: its relief shading and its contour lines.
#pragma once

#include <cstdint>
#include <string>

#include "forms/Appearance.h"
#include "hostobjects/HostObject.h"

namespace orx {

/// How shades and colours are combined.
namespace combinecolors {
/// No shading.
inline constexpr std::int16_t kNone = 0;
/// Shades over the colours of the values.
inline constexpr std::int16_t kShadeAndColors = 1;
/// Shades over what was drawn below.
inline constexpr std::int16_t kShadeAndDevice = 2;
}  // namespace combinecolors

/// The methods of shading.
namespace shadeversion {
/// Slopes away from the light are darkened.
inline constexpr std::int32_t kDarkening = 10;
/// Slopes towards the light are lightened as well.
inline constexpr std::int32_t kSunAndShadow = 20;
}  // namespace shadeversion

/// Relief shading by darkening. Any member may throw; the dialog goes on without it.
class ShadeSettings : public HostInterface {
 public:
  /// Whether heights are scaled by what SuggestScaleFactor finds.
  virtual bool ScaleAutomatic() const = 0;
  virtual void ScaleAutomatic(bool value) = 0;
  /// A number of combinecolors.
  virtual std::int16_t CombineColors() const = 0;
  virtual void CombineColors(std::int16_t value) = 0;
  /// Height of the light above the horizon in degrees, 0 to 90.
  virtual std::int32_t Altitude() const = 0;
  virtual void Altitude(std::int32_t value) = 0;
  /// Index of the first shade, 1 to 255.
  virtual std::int32_t FirstShadeIndex() const = 0;
  virtual void FirstShadeIndex(std::int32_t value) = 0;
  /// The number of shades in use; the dialog sets it to NrOfShades and never reads it.
  virtual void ShadeCount(std::int32_t value) = 0;
  /// Direction of the light in degrees clockwise from north, 0 to 360.
  virtual std::int32_t Azimuth() const = 0;
  virtual void Azimuth(std::int32_t value) = 0;
  /// Number of shades, 1 to 255.
  virtual std::int32_t NrOfShades() const = 0;
  virtual void NrOfShades(std::int32_t value) = 0;
  /// Intensity in full shade in percent.
  virtual double MinIntensity() const = 0;
  virtual void MinIntensity(double value) = 0;
  /// Factor from the unit of the heights to that of the ground, 0 or more.
  virtual double ScaleFactor() const = 0;
  virtual void ScaleFactor(double value) = 0;
  /// Exaggeration of heights, 0 or more.
  virtual double ScaleMultiplier() const = 0;
  virtual void ScaleMultiplier(double value) = 0;
  /// Computes a scale factor from the data. False, with the value as it was, when they do not allow it.
  virtual bool SuggestScaleFactor(double& value) = 0;
};

/// Relief shading by darkening, or by sun and shadow.
class ShadeSettings2 : public ShadeSettings {
 public:
  /// Reference altitude in degrees, 0 to 90: light that falls on level ground from there is mid light.
  virtual std::int32_t AltitudeDefault() const = 0;
  virtual void AltitudeDefault(std::int32_t value) = 0;
  /// Whether the reference altitude is used; else level ground has mid light.
  virtual bool MidIndexAutomatic() const = 0;
  virtual void MidIndexAutomatic(bool value) = 0;
  /// Intensity in full sun in percent.
  virtual double MaxIntensity() const = 0;
  virtual void MaxIntensity(double value) = 0;
  /// Intensity in mid light in percent.
  // A letter tells it from MinIntensity, on purpose.
  // NOLINTBEGIN(bugprone-virtual-near-miss)
  virtual double MidIntensity() const = 0;
  virtual void MidIntensity(double value) = 0;
  // NOLINTEND(bugprone-virtual-near-miss)
  /// A number of shadeversion.
  virtual std::int32_t ShadeVersion() const = 0;
  virtual void ShadeVersion(std::int32_t value) = 0;
};

/// How a line is drawn.
class ILineStyle {
 public:
  virtual ~ILineStyle() = default;
  /// A pen style of the platform: 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot, 5 invisible, 6 inside solid.
  virtual std::int32_t Style() const = 0;
  virtual void Style(std::int32_t value) = 0;
  /// Pixels.
  virtual std::int32_t Width() const = 0;
  virtual void Width(std::int32_t value) = 0;
  virtual orx::Color Color() const = 0;
  virtual void Color(orx::Color value) = 0;
};

/// A font with its colour, edited attribute by attribute.
class ILabelFont {
 public:
  virtual ~ILabelFont() = default;
  /// The face name, UTF-8.
  virtual std::string Name() const = 0;
  virtual void Name(const std::string& value) = 0;
  /// Points, single precision.
  virtual float Size() const = 0;
  virtual void Size(float value) = 0;
  virtual bool Bold() const = 0;
  virtual void Bold(bool value) = 0;
  virtual bool Italic() const = 0;
  virtual void Italic(bool value) = 0;
  virtual bool Underline() const = 0;
  virtual void Underline(bool value) = 0;
  virtual bool Strikethrough() const = 0;
  virtual void Strikethrough(bool value) = 0;
  virtual orx::Color Color() const = 0;
  virtual void Color(orx::Color value) = 0;
};

/// The contour lines of a grid. Any member may throw; the dialog goes on without it.
class IIsolines : public HostInterface {
 public:
  /// Whether lines take the colour of their class, and whether their widths grow with the classes.
  virtual bool UseRangeColor() const = 0;
  virtual void UseRangeColor(bool value) = 0;
  virtual bool UseRangeWidth() const = 0;
  virtual void UseRangeWidth(bool value) = 0;
  /// The width of the line of the last class in pixels.
  virtual std::int32_t MaxWidth() const = 0;
  virtual void MaxWidth(std::int32_t value) = 0;
  /// Distance between the labels of a line, as a part of the width of the drawing.
  virtual double LabelDistance() const = 0;
  virtual void LabelDistance(double value) = 0;
  /// Whether labels take the colour of their class, and whether there are any.
  virtual bool LabelUseRangeColor() const = 0;
  virtual void LabelUseRangeColor(bool value) = 0;
  virtual bool LabelVisible() const = 0;
  virtual void LabelVisible(bool value) = 0;
  /// Every how many class limits there is a line, 1 or more.
  virtual std::int32_t RangeStep() const = 0;
  virtual void RangeStep(std::int32_t value) = 0;
  /// Whether all lines are labelled, or the longest of each limit alone.
  virtual bool LabelAllIsolines() const = 0;
  virtual void LabelAllIsolines(bool value) = 0;
  /// The line and the font of the labels; the host owns them.
  virtual ILineStyle& Line() = 0;
  virtual ILabelFont& LabelFont() = 0;
};

}  // namespace orx
