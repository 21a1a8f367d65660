// The page for the general properties of a layer (ILayer): name, visibility and the symbol that marks its points.
#pragma once

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "hostobjects/IMap.h"
#include "pages/CharacterField.h"
#include "pages/NameField.h"
#include "pages/PageBase.h"
#include "pages/Preview.h"

namespace orx::pages {

/// Drawn for a panel of 6135 x 4545 twips. Raises NameChanged when a save has written another name, and
/// CharacterRequested when the user wants to choose the symbol from a table.
class PropertiesPage final : public PageBase {
 public:
  explicit PropertiesPage(const PageSite& site);

  Label lblName{Surface, "lblName", {.Caption = "&Name:", .Place = {120, 180, 1620, 240}}};
  TextBox txtName{Surface, "txtName", {.Place = {1860, 120, 4155, 330}}};
  Label lblSource{Surface, "lblSource", {.Caption = "Source f&ile:", .Place = {120, 600, 1620, 240}}};
  TextBox txtSource{Surface, "txtSource", {.Place = {1860, 540, 4155, 330}}, TextLines::Single, true};
  CheckBox chkVisible{Surface, "chkVisible", {.Caption = "&Visible", .Place = {1860, 1005, 4155, 255}}};

  Frame fraSymbol{Surface, "fraSymbol", {.Caption = "Symbol", .Place = {120, 1440, 5895, 2655}}};
  Label lblFont{fraSymbol, "lblFont", {.Caption = "&Font:", .Place = {150, 420, 1500, 240}}};
  ComboBox cboFont{fraSymbol, "cboFont", {.Place = {1740, 360, 2280, 330}}, ComboStyle::Editable};
  Label lblCharacter{fraSymbol, "lblCharacter", {.Caption = "Cha&racter:", .Place = {150, 840, 1500, 240}}};
  TextBox txtCharacter{fraSymbol, "txtCharacter", {.Place = {1740, 780, 2280, 330}}};
  Label lblRotation{fraSymbol, "lblRotation", {.Caption = "Ro&tation:", .Place = {150, 1260, 1500, 240}}};
  TextBox txtRotation{fraSymbol, "txtRotation", {.Place = {1740, 1200, 1080, 330}}};
  Label lblDegrees{fraSymbol, "lblDegrees", {.Caption = "degrees", .Place = {2910, 1260, 1200, 240}}};
  Label lblSize{fraSymbol, "lblSize", {.Caption = "&Size:", .Place = {150, 1680, 1500, 240}}};
  TextBox txtSize{fraSymbol, "txtSize", {.Place = {1740, 1620, 1080, 330}}};
  Label lblPoints{fraSymbol, "lblPoints", {.Caption = "points", .Place = {2910, 1680, 1200, 240}}};
  Button cmdCharacter{fraSymbol,
                      "cmdCharacter",
                      {.Caption = "Choos&e...",
                       .Place = {1740, 2085, 2280, 375},
                       .Visible = false,
                       .ToolTipText = "Choose the symbol from the characters of a font"}};
  PictureBox pctSymbol{fraSymbol, "pctSymbol", {.Place = {4200, 360, 1545, 1590}, .ToolTipText = "Preview"}};

 protected:
  bool IsSupported() const override;
  void ShowValues() override;
  void WasWritten(const Setting& setting) override;

 private:
  void cmdCharacter_Click();
  void Edited();
  void ShowPreview();

  Part<ILayer> mLayer = OfClient<ILayer>();
  SettingOf<NameField> mName{txtName, mLayer(&ILayer::Name, &ILayer::Name)};
  FlagSetting mVisible{chkVisible, mLayer(&ILayer::Visible, &ILayer::Visible)};
  TextSetting mSource{txtSource, mLayer(&ILayer::Source)};
  TextSetting mFont{cboFont, mLayer(&ILayer::SymbolFont, &ILayer::SymbolFont)};
  SettingOf<CharacterField> mCharacter{txtCharacter, mLayer(&ILayer::SymbolCharacter, &ILayer::SymbolCharacter)};
  CheckedNumberSetting mRotation{
      txtRotation, mLayer(&ILayer::SymbolRotation, &ILayer::SymbolRotation), {-kMaximumRotation, kMaximumRotation}};
  CheckedNumberSetting mSize{txtSize, mLayer(&ILayer::SymbolSize, &ILayer::SymbolSize), {kMinimumSize, kMaximumSize}};
};

}  // namespace orx::pages
