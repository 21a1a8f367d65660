// The dialog for the contour lines of a grid: lines, widths, colours, and their labels.
#pragma once

#include <cstdint>

#include "dialogframe/ColorBox.h"
#include "dialogframe/EditForm.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/Requests.h"
#include "forms/SettingOf.h"
#include "forms/TextBox.h"
#include "hostobjects/IGridSettings.h"
#include "hostobjects/PassOver.h"

namespace orx {

/// Reads each setting into its control when it is loaded, and writes those that differ on OK. It checks nothing before:
/// at a text that is no number OK ends where it is, with a beep, and the dialog stays open.
class frmDataIsoline final : public EditForm {
 public:
  explicit frmDataIsoline(Desktop& desktop);

  /// Set by the caller; the dialog does not read it.
  void Flags(std::int32_t value) { mFlags = value; }
  /// True when OK has written a setting; false after Cancel.
  bool Changed() const { return IsDirty(); }
  /// The object to edit, used, not owned. Before the form is loaded; without contour lines nothing is read or written.
  void IsolineObject(HostObject* value) { Subject(value); }

  Frame fraLine{*this, "fraLine", {.Caption = "Line", .Place = {120, 120, 6900, 2190}}};
  Label lblRangeStep{fraLine, "lblHelp(0)", {.Caption = "Range step:", .Place = {150, 390, 2070, 240}}};
  ComboBox cmbRangeStep{fraLine, "cmbRangeStep", {.Place = {2310, 330, 1200, 330}}, ComboStyle::Editable};
  Label lblWidth{fraLine, "lblHelp(1)", {.Caption = "Width (px)", .Place = {150, 810, 2070, 240}}};
  TextBox txtLineWidth{fraLine, "txtLineWidth", {.Place = {2310, 750, 1200, 330}}};
  Label lblLineMaxWidth{fraLine, "lblLineMaxWidth", {.Caption = "Maximum width:", .Place = {150, 1230, 2070, 240}}};
  TextBox txtLineMaxWidth{fraLine, "txtLineMaxWidth", {.Place = {2310, 1170, 1200, 330}}};
  ComboBox cmbLineStyle{fraLine,
                        "cmbLineStyle",
                        {.Place = {150, 1650, 3360, 330}, .ToolTipText = "Line style", .AccessibleName = "Line style"}};
  Label lblColor{fraLine, "lblHelp(2)", {.Caption = "Color", .Place = {3780, 390, 1290, 240}}};
  PictureBox pctColor{fraLine, "pctColor", {.Place = {5160, 315, 1530, 360}}, Color{}, PictureUse::Input};
  CheckBox chkLineUseRangeColor{
      fraLine, "chkLineUseRangeColor", {.Caption = "Use Range &Color", .Place = {3780, 765, 2910, 300}}};
  CheckBox chkLineUseRangeWidth{
      fraLine, "chkLineUseRangeWidth", {.Caption = "Use Range &Width", .Place = {3780, 1185, 2910, 300}}};

  Frame fraLabel{*this, "fraLabel", {.Caption = "Label", .Place = {120, 2430, 6900, 1770}}};
  CheckBox chkLabelVisible{fraLabel, "chkLabelVisible", {.Caption = "&Visible", .Place = {150, 345, 3180, 300}}};
  CheckBox chkLabelAllIsolines{
      fraLabel, "chkLabelAllIsolines", {.Caption = "&All isolines", .Place = {150, 765, 3180, 300}}};
  CheckBox chkLabelUseRangeColor{
      fraLabel, "chkLabelUseRangeColor", {.Caption = "Use Range C&olor", .Place = {150, 1185, 3180, 300}}};
  Label lblDistance{fraLabel, "lblHelp(3)", {.Caption = "Distance:", .Place = {3780, 390, 1290, 240}}};
  ComboBox cmbLabelDistance{fraLabel, "cmbLabelDistance", {.Place = {5160, 330, 1530, 330}}, ComboStyle::Editable};
  Button cmdFont{fraLabel, "cmdFont", {.Caption = "&Font...", .Place = {5160, 1125, 1530, 375}}};

  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 protected:
  void Fill() override;
  bool Save() override;

 private:
  void FillLists();
  void cmdFont_Click();

  std::int32_t mFlags = 0;
  ColoredFont mFont;
  ColorBox mColorBox{pctColor};

  // In the order in which they are read and written.
  Settings mSettings{WriteRule::WhenTheHostDiffers, PassOver};
  Part<IIsolines> mLines{mSettings, [this] { return Edited<IIsolines>(); }};
  Part<ILineStyle> mLine{mLines, &IIsolines::Line};
  Part<ILabelFont> mLabelFont{mLines, &IIsolines::LabelFont};
  using Lines = IIsolines;
  using Line = ILineStyle;
  using Face = ILabelFont;
  NumberSetting mStep{cmbRangeStep, mLines(&Lines::RangeStep, &Lines::RangeStep), {.Initially = 1}};
  ColorSetting mColor{pctColor, mLine(&Line::Color, &Line::Color)};
  NumberSetting mWidth{txtLineWidth, mLine(&Line::Width, &Line::Width), {.Initially = 1}};
  ChoiceSetting mStyle{cmbLineStyle, mLine(&Line::Style, &Line::Style), {.Otherwise = 0}};
  FlagSetting mRangeColor{chkLineUseRangeColor, mLines(&Lines::UseRangeColor, &Lines::UseRangeColor)};
  FlagSetting mRangeWidth{chkLineUseRangeWidth, mLines(&Lines::UseRangeWidth, &Lines::UseRangeWidth)};
  NumberSetting mMaxWidth{txtLineMaxWidth, mLines(&Lines::MaxWidth, &Lines::MaxWidth), {.Initially = 1}};
  FlagSetting mVisible{chkLabelVisible, mLines(&Lines::LabelVisible, &Lines::LabelVisible)};
  FlagSetting mAllIsolines{chkLabelAllIsolines, mLines(&Lines::LabelAllIsolines, &Lines::LabelAllIsolines)};
  FlagSetting mLabelColor{chkLabelUseRangeColor, mLines(&Lines::LabelUseRangeColor, &Lines::LabelUseRangeColor)};
  NumberSetting mDistance{cmbLabelDistance, mLines(&Lines::LabelDistance, &Lines::LabelDistance), {.Initially = 0.25}};
  HeldSetting<std::string> mFontName{mFont.Face.Name, mLabelFont(&Face::Name, &Face::Name)};
  HeldSetting<double> mFontSize{mFont.Face.Size, mLabelFont(&Face::Size, &Face::Size)};
  HeldSetting<bool> mBold{mFont.Face.Bold, mLabelFont(&Face::Bold, &Face::Bold)};
  HeldSetting<bool> mItalic{mFont.Face.Italic, mLabelFont(&Face::Italic, &Face::Italic)};
  HeldSetting<bool> mUnderline{mFont.Face.Underline, mLabelFont(&Face::Underline, &Face::Underline)};
  HeldSetting<bool> mStrikethrough{mFont.Face.Strikethrough, mLabelFont(&Face::Strikethrough, &Face::Strikethrough)};
  HeldSetting<Color> mFontColor{mFont.Color, mLabelFont(&Face::Color, &Face::Color)};
};

}  // namespace orx
