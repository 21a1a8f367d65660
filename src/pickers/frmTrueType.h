// The dialog in which the user picks a character of a font and an angle to turn it by, for a symbol on a map.
#pragma once

#include <cstdint>
#include <string>

#include "dialogframe/OkCancelForm.h"
#include "forms/Appearance.h"
#include "forms/ComboBox.h"
#include "forms/Label.h"
#include "forms/Panel.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "pickers/CharacterGrid.h"

namespace orx {

/// Shows the single-byte codes of a font as a grid: the character, or the number of a code that the font has none for.
/// A font that is not installed is in the list all the same, as long as the dialog is open. OK or a double click on the
/// grid keeps what was picked; Cancel and the close box restore what was given.
class frmTrueType final : public OkCancelForm {
 public:
  explicit frmTrueType(Desktop& desktop);

  /// The face name: set it before the form is loaded, and read it once the form is hidden. An empty one becomes
  /// "arial"; one that is in the list takes the list's letter case.
  const std::string& SelFont() const { return mPicked.Font; }
  void SelFont(const std::string& value) { mPicked.Font = mGiven.Font = value; }
  /// The code, from 0 to 255, set and read in the same way. Other values are clamped.
  std::int32_t SelCharacter() const { return mPicked.Character; }
  void SelCharacter(std::int32_t value);
  /// The angle in whole degrees, from -360 to 360, set and read in the same way. Other values become 0.
  std::int32_t SelRotation() const { return mPicked.Rotation; }
  void SelRotation(std::int32_t value);

  Panel RowRotation{*this, "RowRotation", {.Place = {120, 120, 5970, 330}}};
  Panel RowGrid{*this, "RowGrid", {.Place = {120, 540, 5970, 3975}}};
  Panel RowFont{*this, "RowFont", {.Place = {120, 4590, 5970, 330}}};
  /// The one in the middle is never shown. It names the grid for assistive software.
  Label lblHlp[3]{
      {RowFont, "lblHlp(0)", {.Caption = "&Font", .Place = {0, 60, 1380, 240}}},
      {RowGrid, "lblHlp(1)", {.Caption = "Selected character: -", .Place = {0, 0, 2400, 240}, .Visible = false}},
      {RowRotation, "lblHlp(2)", {.Caption = "&Rotation", .Place = {0, 60, 1380, 240}}}};
  TextBox txtRot{RowRotation, "txtRot", {.Place = {1440, 0, 1200, 330}}};
  PictureBox picFont{RowGrid, "picFont", {.Place = {0, 0, 5970, 3975}}, Color{255, 255, 255}, PictureUse::Input};
  ComboBox cboFont{RowFont, "cboFont", {.Place = {1440, 0, 4530, 330}}};
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

 protected:
  void Fill() override;
  void Discard() override { mPicked = mGiven; }
  void Form_Unload() override;

 private:
  struct Choice {
    std::string Font;
    std::int32_t Character = 0;
    std::int32_t Rotation = 0;
  };

  void FillFonts();
  /// The entry of a font in the list, -1 when it is not there.
  int EntryOf(const std::string& font) const;
  /// True while the entry of a font that the screen does not have is selected.
  bool IsMissing() const { return !mMissing.empty() && cboFont.ListIndex() == cboFont.ListCount() - 1; }
  /// Draws the grid in the font selected in the list or, if none is, in the font that was given.
  void ShowFont();
  void DrawGrid();
  void DrawCell(int code);
  void Select(int code);
  void txtRot_GotFocus();
  void txtRot_LostFocus();
  void FocusGrid(bool hasFocus);
  void picFont_KeyDown(int keyCode);
  void picFont_MouseDown(const Point& at);

  Choice mPicked;
  Choice mGiven;
  CharacterGrid mGrid;
  /// The codes that the shown font has characters for.
  CharacterCodes mCodes;
  /// The font of the last entry when it is one that the screen does not have.
  std::string mMissing;
  bool mGridHasFocus = false;
  /// The text that the field had when it got the focus.
  std::string mRotationOnEntry;
};

}  // namespace orx
