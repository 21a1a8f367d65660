// The dialog for the contour lines of a grid: lines, widths, colours, and their labels.
#pragma once

#include <cstdint>
#include <optional>

#include "dialogframe/ColorBox.h"
#include "dialogframe/EditForm.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/FontRequest.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/ShownChoice.h"
#include "forms/TextBox.h"
#include "hostobjects/IGridSettings.h"

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
  void Form_Release() override;

 private:
  void FillLists();
  void ReadObject();
  void ReadFont();
  void cmdFont_Click();

  void Apply();
  void ApplyLine();
  void ApplyLabels();
  void ApplyFont();
  std::string NumberText(double value) const;
  /// The number of a field; throws NoNumber where there is none.
  template <class Field>
  double NumberOf(Field& field) const;
  std::int32_t LongOf(double value, Control& field) const;
  template <class Object, class Value, class Given>
  void Write(Object& object, const Given& now, Value (Object::*read)() const, void (Object::*write)(Given));

  IIsolines* mIsolines = nullptr;
  std::int32_t mFlags = 0;
  std::optional<ColoredFont> mFont;
  ColorBox mColor{pctColor};
  ShownChoice mStyle{cmbLineStyle};
};

}  // namespace orx
