// The page for the labels of a layer (ILabels): whether they are shown, what they say, and how they look.
#pragma once

#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "hostobjects/IMap.h"
#include "pages/FontField.h"
#include "pages/HexColorField.h"
#include "pages/PageBase.h"
#include "pages/Preview.h"

namespace orx::pages {

/// Drawn for a panel of 6135 x 4545 twips. While labels are not shown, all other fields are disabled; what was typed in
/// them is kept and written all the same.
class LabelPropertiesPage final : public PageBase {
 public:
  explicit LabelPropertiesPage(const PageSite& site);

  CheckBox chkShowLabels{Surface, "chkShowLabels", {.Caption = "Show &labels", .Place = {120, 120, 5895, 255}}};
  Label lblContent{Surface, "lblContent", {.Caption = "Cont&ent:", .Place = {120, 555, 1620, 240}}};
  ComboBox cboContent{Surface, "cboContent", {.Place = {1860, 495, 2370, 330}}};
  Label lblPosition{Surface, "lblPosition", {.Caption = "&Position:", .Place = {120, 975, 1620, 240}}};
  ComboBox cboPosition{Surface, "cboPosition", {.Place = {1860, 915, 2370, 330}}};
  Label lblRotation{Surface, "lblRotation", {.Caption = "Ro&tation:", .Place = {120, 1395, 1620, 240}}};
  TextBox txtRotation{Surface, "txtRotation", {.Place = {1860, 1335, 1080, 330}}};
  Label lblDegrees{Surface, "lblDegrees", {.Caption = "degrees", .Place = {3030, 1395, 1200, 240}}};
  PictureBox pctPreview{Surface, "pctPreview", {.Place = {4350, 495, 1665, 1170}, .ToolTipText = "Preview"}};

  Frame fraFont{Surface, "fraFont", {.Caption = "Font", .Place = {120, 1785, 5895, 1635}}};
  Label lblFont{fraFont, "lblFont", {.Caption = "&Font:", .Place = {150, 390, 1500, 240}}};
  ComboBox cboFont{fraFont, "cboFont", {.Place = {1740, 330, 4005, 330}}, ComboStyle::Editable};
  Label lblSize{fraFont, "lblSize", {.Caption = "&Size:", .Place = {150, 810, 1500, 240}}};
  TextBox txtSize{fraFont, "txtSize", {.Place = {1740, 750, 1080, 330}}};
  Label lblPoints{fraFont, "lblPoints", {.Caption = "points", .Place = {2910, 810, 1200, 240}}};
  CheckBox chkBold{fraFont, "chkBold", {.Caption = "&Bold", .Place = {150, 1215, 1800, 255}}};
  CheckBox chkItalic{fraFont, "chkItalic", {.Caption = "&Italic", .Place = {2040, 1215, 1800, 255}}};
  CheckBox chkUnderline{fraFont, "chkUnderline", {.Caption = "&Underline", .Place = {3930, 1215, 1815, 255}}};

  Frame fraColor{Surface, "fraColor", {.Caption = "Color", .Place = {120, 3540, 5895, 855}}};
  Label lblColor{fraColor, "lblColor", {.Caption = "&Name:", .Place = {150, 420, 1000, 240}}};
  ComboBox cboColor{fraColor, "cboColor", {.Place = {1170, 360, 1800, 330}}};
  Label lblHex{fraColor, "lblHex", {.Caption = "He&x:", .Place = {3120, 420, 750, 240}}};
  TextBox txtColor{fraColor, "txtColor", {.Place = {3900, 360, 1215, 330}}};
  PictureBox pctColor{fraColor, "pctColor", {.Place = {5235, 360, 510, 330}}};

 protected:
  bool IsSupported() const override;
  void ShowValues() override;
  bool Offers(const Control& control) const override { return &control == &chkShowLabels || ShowsLabels(); }

 private:
  bool ShowsLabels() const;
  void cboColor_Click();
  void Edited();
  void ColorEdited();
  void ShowColorName();
  void ShowPreview();

  Part<ILabels> mLabels = OfClient<ILabels>();
  FlagSetting mShowLabels{chkShowLabels, mLabels(&ILabels::ShowLabels, &ILabels::ShowLabels)};
  ChoiceSetting mContent{cboContent, mLabels(&ILabels::Content, &ILabels::Content)};
  ChoiceSetting mPosition{cboPosition, mLabels(&ILabels::Position, &ILabels::Position)};
  CheckedNumberSetting mRotation{
      txtRotation, mLabels(&ILabels::LabelRotation, &ILabels::LabelRotation), {-kMaximumRotation, kMaximumRotation}};
  SettingOf<FontField> mFont{{cboFont, txtSize, chkBold, chkItalic, chkUnderline},
                             mLabels(&ILabels::LabelFont, &ILabels::LabelFont)};
  SettingOf<HexColorField> mColor{txtColor, mLabels(&ILabels::LabelColor, &ILabels::LabelColor)};
};

}  // namespace orx::pages
