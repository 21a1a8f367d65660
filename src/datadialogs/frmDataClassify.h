// The dialog that sets how the values of one data object are divided into classes: method, range, number and width of
// the classes, number format, legend style and symbol sizes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "datadialogs/Classification.h"
#include "dialogframe/EditForm.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/SettingOf.h"
#include "forms/TextBox.h"

namespace orx {

/// Works on a copy of the settings, which OK writes when one differs from what the data object holds.
class frmDataClassify final : public EditForm {
 public:
  explicit frmDataClassify(Desktop& desktop);

  /// Hands over the data object (used, not owned; without a classification the form unloads itself as it loads), the
  /// range that "Default" and "Auto classify" take (kUnknownRangeEnd when not known) and the flags
  /// (kMayChangeClassCount). The text is not used. Before the form is loaded.
  void SetData(HostObject* data, double dMin, double dMax, std::int32_t flags, const std::string& text);

  Frame fraData[5]{{*this, "fraData(0)", {.Caption = "Classification method", .Place = {120, 120, 6960, 840}}},
                   {*this, "fraData(1)", {.Caption = "Value format", .Place = {120, 1080, 6960, 840}}},
                   {*this, "fraData(2)", {.Caption = "Range properties", .Place = {120, 2040, 6960, 2100}}},
                   {*this, "fraData(3)", {.Caption = "Range format", .Place = {120, 4260, 6960, 840}}},
                   {*this, "fraData(4)", {.Caption = "Size properties (pixels)", .Place = {120, 5220, 6960, 840}}}};

  ComboBox cboMethod{fraData[0], "cboMethod", {.Place = {150, 330, 3330, 330}}};
  CheckBox chkAutoClassify{
      fraData[0], "chkAutoClassify", {.Caption = "Auto classify", .Place = {3660, 345, 3150, 300}}};

  Label lblClassify3{fraData[2], "lblClassify(3)", {.Caption = "Minimum", .Place = {150, 360, 1500, 240}}};
  TextBox txtMin{fraData[2], "txtMin", {.Place = {1740, 300, 1740, 330}}};
  Label lblClassify4{fraData[2], "lblClassify(4)", {.Caption = "Maximum", .Place = {150, 780, 1500, 240}}};
  TextBox txtMax{fraData[2], "txtMax", {.Place = {1740, 720, 1740, 330}}};
  Label lblClassify0{fraData[2], "lblClassify(0)", {.Caption = "Step size", .Place = {150, 1200, 1500, 240}}};
  TextBox txtStep{fraData[2], "txtStep", {.Place = {1740, 1140, 1740, 330}}};
  Label lblClassify1{fraData[2], "lblClassify(1)", {.Caption = "Classes", .Place = {3660, 360, 1500, 240}}};
  ComboBox cboClasses{fraData[2], "cboClasses", {.Place = {5250, 300, 1560, 330}}, ComboStyle::Editable};
  CheckBox chkClassiffyAsMissing{
      fraData[2],
      "chkClassiffyAsMissing",
      {.Caption = "Classify values outside range as missing", .Place = {150, 1650, 6660, 300}}};

  ComboBox cboFormat{fraData[1], "cboFormat", {.Place = {150, 330, 2010, 330}}};
  CheckBox chkSeriesInLegend{
      fraData[1], "chkSeriesInLegend", {.Caption = "Show parameter name in legend", .Place = {2310, 345, 4500, 300}}};

  ComboBox cboRangeFormat{fraData[3], "cboRangeFormat", {.Place = {150, 330, 4500, 330}}};

  Label lblClassify2{fraData[4], "lblClassify(2)", {.Caption = "Size first class", .Place = {150, 390, 2280, 240}}};
  TextBox txtSizeFirst{fraData[4], "txtSizeFirst", {.Place = {2490, 330, 840, 330}}};
  Label lblClassify5{fraData[4], "lblClassify(5)", {.Caption = "Size last class", .Place = {3660, 390, 2250, 240}}};
  TextBox txtSizeLast{fraData[4], "txtSizeLast", {.Place = {5970, 330, 840, 330}}};

  Button cmdDefault{*this, "cmdDefault", {.Caption = "&Default", .Place = {120, 6180, 1500, 375}, .Pinned = true}};
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 protected:
  void Fill() override;
  bool Check() override;
  bool Save() override;

 private:
  using RangeRule = void (Classification::*)(double);

  void FillLists();
  void FillClasses();
  void FillList(ComboBox& box, std::initializer_list<std::pair<const char*, std::int32_t>> entries);
  void RefreshControls();
  void EnableRange();
  void ShowLists();
  void ShowRange();
  std::string FormattedRange(double value) const;
  void ShowClassCount(std::int32_t count);

  /// Takes what a field shows into the model, and refreshes all.
  void Take(Setting& setting);
  void HandleRange(NumberSetting& field, TextBox& box, RangeRule rule);
  void Range_LostFocus(NumberSetting& field, RangeRule rule);
  void cboClasses_Change();
  void cboClasses_Click();
  void TakeClassCount();
  std::optional<double> TypedClassCount() const;
  void chkAutoClassify_Click();
  void cmdDefault_Click();
  bool TakeClassCountOnOK();
  bool RefuseValue(const char* text, Control& field);

  double mDefaultMin = kUnknownRangeEnd;
  double mDefaultMax = kUnknownRangeEnd;
  std::int32_t mFlags = 0;
  Classification mModel;
  SavedClassification mSaved;
  std::string mShownClasses;
  int mShownEdits = 0;
  bool mIsBusy = false;

  // The fields and the model; what the data object holds is the model's.
  Settings mFields{WriteRule::Always};
  Part<Classification> mOf{mFields, [this] { return &mModel; }};
  using M = Classification;
  const NumberRule mRange{.Format = [this](double value) { return FormattedRange(value); }};
  ChoiceSetting mMethod{cboMethod, mOf(&M::Method), {.Otherwise = 0}};
  FlagSetting mShowName{chkSeriesInLegend, mOf(&M::ShowParameterName)};
  NumberSetting mMinimum{txtMin, mOf(&M::Minimum), mRange};
  NumberSetting mMaximum{txtMax, mOf(&M::Maximum), mRange};
  NumberSetting mStep{txtStep, mOf(&M::Step), mRange};
  FlagSetting mOutside{chkClassiffyAsMissing, mOf(&M::OutsideAsMissing)};
  ChoiceSetting mStyle{cboRangeFormat, mOf(&M::LegendStyle), {.Otherwise = 0}};
  NumberSetting mSizeFirst{txtSizeFirst, mOf(&M::FirstClassSize)};
  NumberSetting mSizeLast{txtSizeLast, mOf(&M::LastClassSize)};
};

}  // namespace orx
