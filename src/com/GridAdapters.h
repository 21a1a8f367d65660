// The interfaces of a grid's shading and contour lines over the members of automation objects.
#pragma once

#include <memory>

#include "com/AutomationObject.h"
#include "com/LateBound.h"
#include "hostobjects/IGridSettings.h"

namespace orx::com {

/// Serves basic and extended objects; of a basic one nobody asks for the extended settings.
class ShadeAdapter final : public ShadeSettings2 {
 public:
  ShadeAdapter(AutomationObject&, const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  bool ScaleAutomatic() const override { return mObject.GetBool("ScaleAutomatic"); }
  void ScaleAutomatic(bool value) override { mObject.Put("ScaleAutomatic", Variant(value)); }
  std::int16_t CombineColors() const override { return static_cast<std::int16_t>(mObject.GetLong("CombineColors")); }
  void CombineColors(std::int16_t value) override { mObject.Put("CombineColors", Variant(std::int32_t{value})); }
  std::int32_t Altitude() const override { return mObject.GetLong("Altitude"); }
  void Altitude(std::int32_t value) override { mObject.Put("Altitude", Variant(value)); }
  std::int32_t FirstShadeIndex() const override { return mObject.GetLong("FirstShadeIndex"); }
  void FirstShadeIndex(std::int32_t value) override { mObject.Put("FirstShadeIndex", Variant(value)); }
  void ShadeCount(std::int32_t value) override { mObject.Put("ShadeCount", Variant(value)); }
  std::int32_t Azimuth() const override { return mObject.GetLong("Azimuth"); }
  void Azimuth(std::int32_t value) override { mObject.Put("Azimuth", Variant(value)); }
  std::int32_t NrOfShades() const override { return mObject.GetLong("NrOfShades"); }
  void NrOfShades(std::int32_t value) override { mObject.Put("NrOfShades", Variant(value)); }
  double MinIntensity() const override { return mObject.GetDouble("MinIntensity"); }
  void MinIntensity(double value) override { mObject.Put("MinIntensity", Variant(value)); }
  double ScaleFactor() const override { return mObject.GetDouble("ScaleFactor"); }
  void ScaleFactor(double value) override { mObject.Put("ScaleFactor", Variant(value)); }
  double ScaleMultiplier() const override { return mObject.GetDouble("ScaleMultiplier"); }
  void ScaleMultiplier(double value) override { mObject.Put("ScaleMultiplier", Variant(value)); }
  bool SuggestScaleFactor(double& value) override;
  std::int32_t AltitudeDefault() const override { return mObject.GetLong("AltitudeDefault"); }
  void AltitudeDefault(std::int32_t value) override { mObject.Put("AltitudeDefault", Variant(value)); }
  bool MidIndexAutomatic() const override { return mObject.GetBool("MidIndexAutomatic"); }
  void MidIndexAutomatic(bool value) override { mObject.Put("MidIndexAutomatic", Variant(value)); }
  double MaxIntensity() const override { return mObject.GetDouble("MaxIntensity"); }
  void MaxIntensity(double value) override { mObject.Put("MaxIntensity", Variant(value)); }
  double MidIntensity() const override { return mObject.GetDouble("MidIntensity"); }
  void MidIntensity(double value) override { mObject.Put("MidIntensity", Variant(value)); }
  std::int32_t ShadeVersion() const override { return mObject.GetLong("ShadeVersion"); }
  void ShadeVersion(std::int32_t value) override { mObject.Put("ShadeVersion", Variant(value)); }

 private:
  LateBound mObject;
};

class LineStyleAdapter final : public orx::ILineStyle {
 public:
  explicit LineStyleAdapter(const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  std::int32_t Style() const override { return mObject.GetLong("Style"); }
  void Style(std::int32_t value) override { mObject.Put("Style", Variant(value)); }
  std::int32_t Width() const override { return mObject.GetLong("Width"); }
  void Width(std::int32_t value) override { mObject.Put("Width", Variant(value)); }
  orx::Color Color() const override;
  void Color(orx::Color value) override;

 private:
  LateBound mObject;
};

class LabelFontAdapter final : public orx::ILabelFont {
 public:
  explicit LabelFontAdapter(const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  std::string Name() const override { return mObject.GetText("Name"); }
  void Name(const std::string& value) override { mObject.Put("Name", Variant(value)); }
  float Size() const override { return static_cast<float>(mObject.GetDouble("Size")); }
  void Size(float value) override { mObject.Put("Size", Variant(double{value})); }
  bool Bold() const override { return mObject.GetBool("Bold"); }
  void Bold(bool value) override { mObject.Put("Bold", Variant(value)); }
  bool Italic() const override { return mObject.GetBool("Italic"); }
  void Italic(bool value) override { mObject.Put("Italic", Variant(value)); }
  bool Underline() const override { return mObject.GetBool("Underline"); }
  void Underline(bool value) override { mObject.Put("Underline", Variant(value)); }
  bool Strikethrough() const override { return mObject.GetBool("Strikethrough"); }
  void Strikethrough(bool value) override { mObject.Put("Strikethrough", Variant(value)); }
  orx::Color Color() const override;
  void Color(orx::Color value) override;

 private:
  LateBound mObject;
};

class IsolinesAdapter final : public orx::IIsolines {
 public:
  IsolinesAdapter(AutomationObject&, const ComPtr<IDispatch>& object) : mObject(object.Get()) {}

  bool UseRangeColor() const override { return mObject.GetBool("UseRangeColor"); }
  void UseRangeColor(bool value) override { mObject.Put("UseRangeColor", Variant(value)); }
  bool UseRangeWidth() const override { return mObject.GetBool("UseRangeWidth"); }
  void UseRangeWidth(bool value) override { mObject.Put("UseRangeWidth", Variant(value)); }
  std::int32_t MaxWidth() const override { return mObject.GetLong("MaxWidth"); }
  void MaxWidth(std::int32_t value) override { mObject.Put("MaxWidth", Variant(value)); }
  double LabelDistance() const override { return mObject.GetDouble("LabelDistance"); }
  void LabelDistance(double value) override { mObject.Put("LabelDistance", Variant(value)); }
  bool LabelUseRangeColor() const override { return mObject.GetBool("LabelUseRangeColor"); }
  void LabelUseRangeColor(bool value) override { mObject.Put("LabelUseRangeColor", Variant(value)); }
  bool LabelVisible() const override { return mObject.GetBool("LabelVisible"); }
  void LabelVisible(bool value) override { mObject.Put("LabelVisible", Variant(value)); }
  std::int32_t RangeStep() const override { return mObject.GetLong("RangeStep"); }
  void RangeStep(std::int32_t value) override { mObject.Put("RangeStep", Variant(value)); }
  bool LabelAllIsolines() const override { return mObject.GetBool("LabelAllIsolines"); }
  void LabelAllIsolines(bool value) override { mObject.Put("LabelAllIsolines", Variant(value)); }
  /// The objects that the host gave last; throw when it gives Nothing.
  orx::ILineStyle& Line() override;
  orx::ILabelFont& LabelFont() override;

 private:
  LateBound mObject;
  std::unique_ptr<LineStyleAdapter> mLine;
  std::unique_ptr<LabelFontAdapter> mFont;
};

}  // namespace orx::com
