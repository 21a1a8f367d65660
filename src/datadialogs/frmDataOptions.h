// The dialog that sets how missing values, zeros and places without data are treated and drawn.
#pragma once

#include "datadialogs/SpecialValueRecord.h"
#include "dialogframe/ColorBox.h"
#include "dialogframe/EditForm.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/SettingOf.h"
#include "forms/TextBox.h"
#include "numbers/Numbers.h"

namespace orx {

/// The controls of the three kinds stand in arrays, in the order of SpecialKind. Works on copies of the three records,
/// which OK writes, changed or not.
class frmDataOptions final : public EditForm {
 public:
  explicit frmDataOptions(Desktop& desktop);

  /// The object whose special values are edited; used, not owned. Before the form is loaded; without one, or with one
  /// that has no special values, the form unloads itself as it loads.
  HostObject* Data() const { return Subject(); }
  void Data(HostObject* value) { Subject(value); }

  Frame fraMissVal{*this, "fraMissVal", {.Place = {120, 120, 6450, 1410}}};
  Frame fraZeroVal{*this, "fraZeroVal", {.Place = {120, 1650, 6450, 1410}}};
  Frame fraNoData{*this, "fraNoData", {.Place = {120, 3180, 6450, 1410}}};

  CheckBox chkEnabled[kSpecialKinds]{
      {fraMissVal, "chkEnabled(0)", {.Caption = "Missing Value", .Place = kTitle}},
      {fraZeroVal, "chkEnabled(1)", {.Caption = "Zero Value", .Place = kTitle}},
      {fraNoData, "chkEnabled(2)", {.Caption = "No Data", .Place = kTitle}},
  };
  Label lblMinData[kSpecialKinds]{
      {fraMissVal, "lblMinData(0)", {.Caption = "Lower bound", .Place = kMinLabel}},
      {fraZeroVal, "lblMinData(1)", {.Caption = "Range", .Place = kMinLabel}},
      {fraNoData, "lblMinData(2)", {.Caption = "Lower bound", .Place = kMinLabel}},
  };
  TextBox txtMinValue[kSpecialKinds]{
      {fraMissVal, "txtMinValue(0)", {.Place = kMinField}},
      {fraZeroVal, "txtMinValue(1)", {.Place = kMinField}},
      {fraNoData, "txtMinValue(2)", {.Place = kMinField}},
  };
  /// Of the values that count as zero the upper end follows from the range, so its field is not shown.
  Label lblMaxData[kSpecialKinds]{
      {fraMissVal, "lblMaxData(0)", {.Caption = "Upper bound", .Place = kMaxLabel}},
      {fraZeroVal, "lblMaxData(1)", {.Caption = "Upper bound", .Place = kMaxLabel, .Visible = false}},
      {fraNoData, "lblMaxData(2)", {.Caption = "Upper bound", .Place = kMaxLabel}},
  };
  TextBox txtMaxValue[kSpecialKinds]{
      {fraMissVal, "txtMaxValue(0)", {.Place = kMaxField}},
      {fraZeroVal, "txtMaxValue(1)", {.Place = kMaxField, .Visible = false}},
      {fraNoData, "txtMaxValue(2)", {.Place = kMaxField}},
  };
  Label lblColorData[kSpecialKinds]{
      {fraMissVal, "lblColorData(0)", {.Caption = "Color", .Place = kColorLabel}},
      {fraZeroVal, "lblColorData(1)", {.Caption = "Color", .Place = kColorLabel}},
      {fraNoData, "lblColorData(2)", {.Caption = "Color", .Place = kColorLabel}},
  };
  PictureBox pctColor[kSpecialKinds]{
      {fraMissVal, "pctColor(0)", {.Place = kColorBox}, Color{}, PictureUse::Input},
      {fraZeroVal, "pctColor(1)", {.Place = kColorBox}, Color{}, PictureUse::Input},
      {fraNoData, "pctColor(2)", {.Place = kColorBox}, Color{}, PictureUse::Input},
  };
  CheckBox chkInLegend[kSpecialKinds]{
      {fraMissVal, "chkInLegend(0)", {.Caption = "Display in legend", .Place = kInLegend}},
      {fraZeroVal, "chkInLegend(1)", {.Caption = "Display in legend", .Place = kInLegend}},
      {fraNoData, "chkInLegend(2)", {.Caption = "Display in legend", .Place = kInLegend}},
  };
  CheckBox chkTransparent[kSpecialKinds]{
      {fraMissVal, "chkTransparent(0)", {.Caption = "Transparent", .Place = kTransparent}},
      {fraZeroVal, "chkTransparent(1)", {.Caption = "Transparent", .Place = kTransparent}},
      {fraNoData, "chkTransparent(2)", {.Caption = "Transparent", .Place = kTransparent}},
  };
  Button cmdDefault{*this, "cmdDefault", {.Caption = "&Default", .Place = {120, 4710, 1500, 375}, .Pinned = true}};
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

  /// Shows one record, by index from 0, or all three with -1. Another index throws std::out_of_range.
  void ShowRecord(int index);

 protected:
  void Fill() override;
  bool Check() override;
  bool Save() override;

 private:
  // Places in each of the three frames, in three rows.
  static constexpr Rect kTitle{150, 150, 3330, 300};
  static constexpr Rect kInLegend{3720, 150, 2580, 300};
  static constexpr Rect kMinLabel{420, 585, 1680, 240};
  static constexpr Rect kMinField{2160, 525, 1320, 330};
  static constexpr Rect kTransparent{3720, 540, 2580, 300};
  static constexpr Rect kMaxLabel{420, 990, 1680, 240};
  static constexpr Rect kMaxField{2160, 930, 1320, 330};
  static constexpr Rect kColorLabel{3720, 990, 1050, 240};
  static constexpr Rect kColorBox{4830, 930, 1380, 330};

  /// The fields of one kind and its record.
  struct Fields {
    Fields(frmDataOptions& form, int index)
        : Form(form), Index(index), Of(All, [this] { return &Form.Record(Index); }) {}

    using R = SpecialValueRecord;
    frmDataOptions& Form;
    int Index;
    Settings All{WriteRule::Always};
    Part<R> Of;
    FlagSetting Enabled{Form.chkEnabled[Index], Of(&R::Enabled)};
    FlagSetting InLegend{Form.chkInLegend[Index], Of(&R::InLegend)};
    FlagSetting Transparent{Form.chkTransparent[Index], Of(&R::Transparent)};
    ColorSetting Ground{Form.pctColor[Index], Of(&R::Color)};
    const NumberRule Bound{
        .Format = [this](double value) { return numbers::GeneralText(value, Form.OwnerDesktop().Separators()); }};
    NumberSetting Minimum{Form.txtMinValue[Index], Of(&R::LowerBound), Bound};
    NumberSetting Maximum{Form.txtMaxValue[Index], Of(&R::UpperBound), Bound};
  };

  /// The special values of the data; null once the form is retired. Throws when the data do not answer.
  IDataOptions* Options() const;
  void HandleEvents(int index);
  SpecialValueRecord& Record(int index) { return mValues.Records.at(static_cast<std::size_t>(index)); }
  void ShowOne(int index);
  void Switch(int index, FlagSetting& setting);
  void TakeBound(int index, NumberSetting& setting);
  void cmdDefault_Click();

  SpecialValues mValues;
  bool mIsBusy = false;
  ColorBox mColors[kSpecialKinds]{ColorBox(pctColor[0]), ColorBox(pctColor[1]), ColorBox(pctColor[2])};
  Fields mFields[kSpecialKinds]{{*this, 0}, {*this, 1}, {*this, 2}};
};

}  // namespace orx
