// The interfaces of a grid's shading and contour lines over the members of automation objects.
#pragma once

#include "com/AutomationObject.h"
#include "hostobjects/IGridSettings.h"

namespace orx::com {

/// Serves basic and extended objects; nobody asks a basic one for the extended settings.
class ShadeAdapter final : public AdapterOf<ShadeSettings2> {
 public:
  using AdapterOf::AdapterOf;

  bool ScaleAutomatic() const override { return mObject.GetBool("ScaleAutomatic"); }
  void ScaleAutomatic(bool value) override { mObject.Put("ScaleAutomatic", value); }
  std::int16_t CombineColors() const override { return static_cast<std::int16_t>(mObject.GetLong("CombineColors")); }
  void CombineColors(std::int16_t value) override { mObject.Put("CombineColors", value); }
  std::int32_t Altitude() const override { return mObject.GetLong("Altitude"); }
  void Altitude(std::int32_t value) override { mObject.Put("Altitude", value); }
  std::int32_t FirstShadeIndex() const override { return mObject.GetLong("FirstShadeIndex"); }
  void FirstShadeIndex(std::int32_t value) override { mObject.Put("FirstShadeIndex", value); }
  void ShadeCount(std::int32_t value) override { mObject.Put("ShadeCount", value); }
  std::int32_t Azimuth() const override { return mObject.GetLong("Azimuth"); }
  void Azimuth(std::int32_t value) override { mObject.Put("Azimuth", value); }
  std::int32_t NrOfShades() const override { return mObject.GetLong("NrOfShades"); }
  void NrOfShades(std::int32_t value) override { mObject.Put("NrOfShades", value); }
  double MinIntensity() const override { return mObject.GetDouble("MinIntensity"); }
  void MinIntensity(double value) override { mObject.Put("MinIntensity", value); }
  double ScaleFactor() const override { return mObject.GetDouble("ScaleFactor"); }
  void ScaleFactor(double value) override { mObject.Put("ScaleFactor", value); }
  double ScaleMultiplier() const override { return mObject.GetDouble("ScaleMultiplier"); }
  void ScaleMultiplier(double value) override { mObject.Put("ScaleMultiplier", value); }
  bool SuggestScaleFactor(double& value) override;
  std::int32_t AltitudeDefault() const override { return mObject.GetLong("AltitudeDefault"); }
  void AltitudeDefault(std::int32_t value) override { mObject.Put("AltitudeDefault", value); }
  bool MidIndexAutomatic() const override { return mObject.GetBool("MidIndexAutomatic"); }
  void MidIndexAutomatic(bool value) override { mObject.Put("MidIndexAutomatic", value); }
  double MaxIntensity() const override { return mObject.GetDouble("MaxIntensity"); }
  void MaxIntensity(double value) override { mObject.Put("MaxIntensity", value); }
  double MidIntensity() const override { return mObject.GetDouble("MidIntensity"); }
  void MidIntensity(double value) override { mObject.Put("MidIntensity", value); }
  std::int32_t ShadeVersion() const override { return mObject.GetLong("ShadeVersion"); }
  void ShadeVersion(std::int32_t value) override { mObject.Put("ShadeVersion", value); }
};

class LineStyleAdapter final : public AdapterOf<orx::ILineStyle> {
 public:
  using AdapterOf::AdapterOf;

  std::int32_t Style() const override { return mObject.GetLong("Style"); }
  void Style(std::int32_t value) override { mObject.Put("Style", value); }
  std::int32_t Width() const override { return mObject.GetLong("Width"); }
  void Width(std::int32_t value) override { mObject.Put("Width", value); }
  orx::Color Color() const override;
  void Color(orx::Color value) override;
};

class LabelFontAdapter final : public AdapterOf<orx::ILabelFont> {
 public:
  using AdapterOf::AdapterOf;

  std::string Name() const override { return mObject.GetText("Name"); }
  void Name(const std::string& value) override { mObject.Put("Name", value); }
  float Size() const override { return static_cast<float>(mObject.GetDouble("Size")); }
  void Size(float value) override { mObject.Put("Size", value); }
  bool Bold() const override { return mObject.GetBool("Bold"); }
  void Bold(bool value) override { mObject.Put("Bold", value); }
  bool Italic() const override { return mObject.GetBool("Italic"); }
  void Italic(bool value) override { mObject.Put("Italic", value); }
  bool Underline() const override { return mObject.GetBool("Underline"); }
  void Underline(bool value) override { mObject.Put("Underline", value); }
  bool Strikethrough() const override { return mObject.GetBool("Strikethrough"); }
  void Strikethrough(bool value) override { mObject.Put("Strikethrough", value); }
  orx::Color Color() const override;
  void Color(orx::Color value) override;
};

class IsolinesAdapter final : public AdapterOf<orx::IIsolines> {
 public:
  using AdapterOf::AdapterOf;

  bool UseRangeColor() const override { return mObject.GetBool("UseRangeColor"); }
  void UseRangeColor(bool value) override { mObject.Put("UseRangeColor", value); }
  bool UseRangeWidth() const override { return mObject.GetBool("UseRangeWidth"); }
  void UseRangeWidth(bool value) override { mObject.Put("UseRangeWidth", value); }
  std::int32_t MaxWidth() const override { return mObject.GetLong("MaxWidth"); }
  void MaxWidth(std::int32_t value) override { mObject.Put("MaxWidth", value); }
  double LabelDistance() const override { return mObject.GetDouble("LabelDistance"); }
  void LabelDistance(double value) override { mObject.Put("LabelDistance", value); }
  bool LabelUseRangeColor() const override { return mObject.GetBool("LabelUseRangeColor"); }
  void LabelUseRangeColor(bool value) override { mObject.Put("LabelUseRangeColor", value); }
  bool LabelVisible() const override { return mObject.GetBool("LabelVisible"); }
  void LabelVisible(bool value) override { mObject.Put("LabelVisible", value); }
  std::int32_t RangeStep() const override { return mObject.GetLong("RangeStep"); }
  void RangeStep(std::int32_t value) override { mObject.Put("RangeStep", value); }
  bool LabelAllIsolines() const override { return mObject.GetBool("LabelAllIsolines"); }
  void LabelAllIsolines(bool value) override { mObject.Put("LabelAllIsolines", value); }
  /// These throw RunTimeError when the host returns Nothing.
  orx::ILineStyle& Line() override;
  orx::ILabelFont& LabelFont() override;

 private:
  AdaptedParts<LineStyleAdapter> mLines;
  AdaptedParts<LabelFontAdapter> mFonts;
};

}  // namespace orx::com
