// The dialog for the relief shading of a grid: method, intensities, shades, scaling and the light.
#pragma once

#include <cstdint>
#include <limits>

#include "dialogframe/EditForm.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/SettingOf.h"
#include "forms/TextBox.h"
#include "hostobjects/IGridSettings.h"
#include "hostobjects/PassOver.h"

namespace orx {

/// Reads each setting into its control when it is loaded, and writes those that differ on OK. An object without the
/// extended settings has the method "Darkening" alone.
class frmDataShade final : public EditForm {
 public:
  explicit frmDataShade(Desktop& desktop);

  /// Set by the caller; the dialog does not read it.
  void Flags(std::int32_t value) { mFlags = value; }
  /// True when OK has written a setting; false after Cancel.
  bool Changed() const { return IsDirty(); }
  /// The object to edit, used, not owned. Before the form is loaded; without shading the form unloads itself then.
  void ShadeObject(HostObject* value) { Subject(value); }

  Frame fraColors{*this, "Frame1(0)", {.Caption = "Colors", .Place = {120, 120, 6900, 3120}}};
  Label lblMethod{fraColors, "Label1(0)", {.Caption = "Shading method:", .Place = {150, 360, 2370, 240}}};
  ComboBox cmbShadeVersion{fraColors, "cmbShadeVersion", {.Place = {2610, 300, 4050, 330}}};
  Frame fraIntensity2{fraColors, "fraIntensity2", {.Caption = "Color Intensity (%)", .Place = {150, 810, 6510, 1620}}};
  Label lblShades2{fraIntensity2, "Label1", {.Caption = "Number of shades:", .Place = {150, 330, 2430, 240}}};
  TextBox txtNrOfShades2{fraIntensity2, "txtNrOfShades2", {.Place = {2640, 270, 780, 330}}};
  CheckBox chkMidIndexAutomatic{
      fraIntensity2, "chkMidIndexAutomatic", {.Caption = "Use &reference altitude", .Place = {150, 690, 3300, 300}}};
  TextBox txtAltitudeDefault{
      fraIntensity2, "txtAltitudeDefault", {.Place = {2640, 1110, 780, 330}, .AccessibleName = "Reference altitude"}};
  Label lblFullShade{fraIntensity2, "Label2", {.Caption = "Full shade:", .Place = {3660, 330, 1710, 240}}};
  TextBox txtIntensityMin{fraIntensity2, "txtIntensityMin", {.Place = {5430, 270, 900, 330}}};
  Label lblMidLight{fraIntensity2, "Label3", {.Caption = "Mid light:", .Place = {3660, 750, 1710, 240}}};
  TextBox txtIntensityMid{fraIntensity2, "txtIntensityMid", {.Place = {5430, 690, 900, 330}}};
  Label lblFullSun{fraIntensity2, "Label4", {.Caption = "Full sun:", .Place = {3660, 1170, 1710, 240}}};
  TextBox txtIntensityMax{fraIntensity2, "txtIntensityMax", {.Place = {5430, 1110, 900, 330}}};
  Frame fraIntensity1{fraColors, "fraIntensity1", {.Caption = "Intensity", .Place = {150, 810, 6510, 1620}}};
  Label lblFirstShadeIndex{
      fraIntensity1, "lblFirstShadeIndex", {.Caption = "First shade index:", .Place = {150, 390, 3690, 240}}};
  TextBox txtFirstShadeIndex{fraIntensity1, "txtFirstShadeIndex", {.Place = {3930, 330, 1200, 330}}};
  Label lblNrOfShades{fraIntensity1, "lblNrOfShades", {.Caption = "Number of shades:", .Place = {150, 810, 3690, 240}}};
  TextBox txtNrOfShades{fraIntensity1, "txtNrOfShades", {.Place = {3930, 750, 1200, 330}}};
  Label lblMinIntensity{
      fraIntensity1, "lblMinIntensity", {.Caption = "Minimum Intensity (%) :", .Place = {150, 1230, 3690, 240}}};
  TextBox txtMinIntensity{fraIntensity1, "txtMinIntensity", {.Place = {3930, 1170, 1200, 330}}};
  Label lblCombine{fraColors, "Label1(1)", {.Caption = "Combine colors:", .Place = {150, 2670, 2370, 240}}};
  ComboBox cmbCombine{fraColors, "cmbCombine", {.Place = {2610, 2610, 4050, 330}}};

  Frame fraScaling{*this, "Frame1(1)", {.Caption = "Scaling", .Place = {120, 3360, 6900, 1590}}};
  CheckBox chkScaleAutomatic{
      fraScaling, "chkScaleAutomatic", {.Caption = "Scale automatic:", .Place = {150, 300, 3120, 300}}};
  Button cmdScaleFactor{
      fraScaling, "cmdScaleFactor", {.Caption = "Suggest Scale factor", .Place = {3660, 270, 3000, 375}}};
  Label lblScaleFactor{fraScaling, "Label1(2)", {.Caption = "Scale factor:", .Place = {150, 750, 2370, 240}}};
  TextBox txtScaleFactor{fraScaling, "txtScaleFactor", {.Place = {2610, 690, 4050, 330}}};
  Label lblScaleMultiplier{fraScaling, "Label1(3)", {.Caption = "Scale multiplier:", .Place = {150, 1170, 2370, 240}}};
  TextBox txtScaleMultiplier{fraScaling, "txtScaleMultiplier", {.Place = {2610, 1110, 4050, 330}}};

  Frame fraIllumination{*this, "Frame1(2)", {.Caption = "Illumination", .Place = {120, 5070, 6900, 840}}};
  Label lblAzimuth{fraIllumination, "Label1(4)", {.Caption = "Azimuth (0' - 360'):", .Place = {150, 390, 2580, 240}}};
  TextBox txtAzimuth{fraIllumination, "txtAzimuth", {.Place = {2790, 330, 660, 330}}};
  Label lblAltitude{fraIllumination, "Label1(5)", {.Caption = "Altitude (0' - 90'):", .Place = {3570, 390, 2430, 240}}};
  TextBox txtAltitude{fraIllumination, "txtAltitude", {.Place = {6060, 330, 660, 330}}};

  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 protected:
  void Fill() override;
  bool Check() override;
  bool Save() override;
  void Form_Resize() override { fraIntensity2.Place(fraIntensity1.Place()); }

 private:
  static constexpr double kUnlimited = std::numeric_limits<double>::infinity();
  static constexpr double kRightAngle = 90;
  static constexpr double kFullCircle = 360;
  static constexpr double kMostShades = 255;

  /// The settings of the object; null when it has none. The extended ones are asked for first.
  ShadeSettings* Shade() const;
  void FillLists();
  /// Keeps the texts of two fields for one setting alike.
  void Couple(TextBox& one, TextBox& other);
  void ShowDesignOfTwin();
  void cmbShadeVersion_Click();
  void cmbCombine_Click();
  void cmdScaleFactor_Click();

  bool IsDarkening() const { return cmbShadeVersion.ListIndex() < 1; }
  bool IsNumber(const NumberSetting& setting);
  bool IsWithinBounds(const NumberSetting& setting);
  bool IsAtMost(const NumberSetting& setting, double most);
  bool RefuseNumber(const char* title, const char* text, const NumberSetting& setting);
  /// The field of a setting that the selected method shows.
  Control& FieldOf(const NumberSetting& setting);

  /// Steps among the writes; true when a setting was changed.
  bool SetCount();
  bool UseAllShades();

  std::int32_t mFlags = 0;
  bool mIsCopying = false;

  // In the order in which they are written. txtIntensityMin and txtNrOfShades2 are twins of the fields named here.
  Settings mSettings{WriteRule::WhenTheHostDiffers, PassOver};
  Part<ShadeSettings> mBasic{mSettings, [this] { return Shade(); }};
  Part<ShadeSettings2> mExtended{mSettings, [this] { return Edited<ShadeSettings2>(); }};
  using S = ShadeSettings;
  using S2 = ShadeSettings2;
  ChoiceSetting mVersion{cmbShadeVersion, mExtended(&S2::ShadeVersion, &S2::ShadeVersion), {.Otherwise = 1}};
  NumberSetting mAltitude{txtAltitude, mBasic(&S::Altitude, &S::Altitude), {0, kRightAngle, 30}};
  NumberSetting mAzimuth{txtAzimuth, mBasic(&S::Azimuth, &S::Azimuth), {0, kFullCircle, 0}};
  ChoiceSetting mCombine{cmbCombine, mBasic(&S::CombineColors, &S::CombineColors), {.Otherwise = 0}};
  NumberSetting mMinimum{txtMinIntensity, mBasic(&S::MinIntensity, &S::MinIntensity), {0, kUnlimited, 50}};
  NumberSetting mMidLight{txtIntensityMid, mExtended(&S2::MidIntensity, &S2::MidIntensity), {.Initially = 100}};
  NumberSetting mFullSun{txtIntensityMax, mExtended(&S2::MaxIntensity, &S2::MaxIntensity), {.Initially = 150}};
  NumberSetting mReference{
      txtAltitudeDefault, mExtended(&S2::AltitudeDefault, &S2::AltitudeDefault), {0, kRightAngle, 30}};
  FlagSetting mUsesReference{chkMidIndexAutomatic, mExtended(&S2::MidIndexAutomatic, &S2::MidIndexAutomatic)};
  NumberSetting mShades{txtNrOfShades, mBasic(&S::NrOfShades, &S::NrOfShades), {1, kMostShades, kMostShades}};
  WriteStep mCount{mSettings, [this] { return SetCount(); }};
  NumberSetting mFirstIndex{txtFirstShadeIndex, mBasic(&S::FirstShadeIndex, &S::FirstShadeIndex), {1, kMostShades, 1}};
  WriteStep mAllShades{mSettings, [this] { return UseAllShades(); }};
  FlagSetting mAutomatic{chkScaleAutomatic, mBasic(&S::ScaleAutomatic, &S::ScaleAutomatic)};
  NumberSetting mFactor{txtScaleFactor, mBasic(&S::ScaleFactor, &S::ScaleFactor), {0, kUnlimited, 0.001}};
  NumberSetting mMultiplier{txtScaleMultiplier, mBasic(&S::ScaleMultiplier, &S::ScaleMultiplier), {0, kUnlimited, 1}};
};

}  // namespace orx
