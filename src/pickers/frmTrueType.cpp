#include "pickers/frmTrueType.h"

#include <algorithm>

#include "dialogframe/SelectAllText.h"
#include "forms/Contrast.h"
#include "forms/Desktop.h"
#include "numbers/Numbers.h"
#include "text/Utf8Text.h"

namespace orx {
namespace {

constexpr char kFontWithoutName[] = "arial";
constexpr char kNotInstalled[] = "not installed";
constexpr double kGridPoints = 12;
/// Three digits fit in a cell.
constexpr double kNumberPoints = 6;
constexpr std::int32_t kFullTurn = 360;

Font GridFont(const std::string& name) {
  return {.Name = name, .Size = kGridPoints};
}

bool IsRotation(double degrees) {
  return degrees >= -kFullTurn && degrees <= kFullTurn;
}

}  // namespace

frmTrueType::frmTrueType(Desktop& desktop)
    : OkCancelForm(
          desktop,
          {.Name = "frmTrueType", .Caption = "Pick True Type", .HelpKey = "_HelpMapTrueType", .Client = {6210, 5520}}) {
  txtRot.GotFocus = [this] { txtRot_GotFocus(); };
  txtRot.LostFocus = [this] { txtRot_LostFocus(); };
  picFont.GotFocus = [this] { FocusGrid(true); };
  picFont.LostFocus = [this] { FocusGrid(false); };
  picFont.KeyDown = [this](int keyCode) { picFont_KeyDown(keyCode); };
  picFont.MouseDown = [this](Point at) { picFont_MouseDown(at); };
  picFont.DblClick = [this] { PressOK(); };
  cboFont.Click = [this] { ShowFont(); };
}

void frmTrueType::SelCharacter(std::int32_t value) {
  mPicked.Character = mGiven.Character = std::clamp(value, 0, kCharacterCodes - 1);
}

void frmTrueType::SelRotation(std::int32_t value) {
  mPicked.Rotation = mGiven.Rotation = IsRotation(value) ? value : 0;
}

void frmTrueType::Fill() {
  picFont.BackColor(OwnerDesktop().SystemColor(SystemColor::Window));
  txtRot.Text(std::to_string(mPicked.Rotation));
  FillFonts();
}

void frmTrueType::FillFonts() {
  cboFont.Clear();
  const std::vector<std::string> fonts = OwnerDesktop().ScreenFonts();
  // The first one is the system's own font, which is not offered for symbols.
  for (std::size_t i = 1; i < fonts.size(); ++i)
    if (!fonts[i].empty()) cboFont.AddItem(fonts[i]);
  mMissing.clear();
  if (const int entry = EntryOf(mPicked.Font); entry >= 0) return cboFont.ListIndex(entry);
  if (mPicked.Font.empty()) mPicked.Font = kFontWithoutName;
  if (EntryOf(mPicked.Font) >= 0) return ShowFont();
  mMissing = mPicked.Font;
  cboFont.AddItem(mMissing + " (" + Translated(Language(), kNotInstalled) + ")");
  cboFont.ListIndex(cboFont.ListCount() - 1);
}

int frmTrueType::EntryOf(const std::string& font) const {
  // The first entry only counts when no other one has the name.
  for (int i = 1; i < cboFont.ListCount(); ++i)
    if (EqualInAnyCase(cboFont.List(i), font)) return i;
  return cboFont.ListCount() > 0 && EqualInAnyCase(cboFont.List(0), font) ? 0 : -1;
}

void frmTrueType::ShowFont() {
  if (cboFont.ListIndex() >= 0) mPicked.Font = IsMissing() ? mMissing : cboFont.Text();
  // What the platform takes for a font that it does not have are other characters.
  mCodes = IsMissing() ? CharacterCodes() : OwnerDesktop().CharactersOf(GridFont(mPicked.Font));
  mGrid = CharacterGrid(OwnerDesktop().Scale());
  picFont.AutoRedraw(true);
  Select(mPicked.Character);
}

void frmTrueType::DrawGrid() {
  Canvas& drawing = picFont.Drawing();
  drawing.Clear();
  for (int code = 0; code < kCharacterCodes; ++code) DrawCell(code);
  if (mGridHasFocus) drawing.ToggleFocus(mGrid.CellOf(mPicked.Character));
  picFont.Refresh();
}

void frmTrueType::DrawCell(int code) {
  const Desktop& desktop = OwnerDesktop();
  Canvas& drawing = picFont.Drawing();
  const Rect cell = mGrid.CellOf(code);
  const bool isSelected = code == mPicked.Character;
  const Color ink = desktop.SystemColor(isSelected ? SystemColor::HighlightText : SystemColor::WindowText);
  if (isSelected) drawing.Draw(FillMark{cell, desktop.SystemColor(SystemColor::Highlight)});
  if (mCodes.test(static_cast<std::size_t>(code)))
    return drawing.Draw(CharacterMark{cell, code, GridFont(mPicked.Font), ink});
  drawing.Draw(TextMark{{cell.Left + cell.Width / 2, cell.Top + cell.Height / 2},
                        std::to_string(code),
                        {.Size = kNumberPoints},
                        isSelected ? ink : FadedInk(ink, desktop.SystemColor(SystemColor::Window))});
}

void frmTrueType::Select(int code) {
  mPicked.Character = code;
  lblHlp[1].Caption("Selected character: " + std::to_string(code));
  DrawGrid();
}

void frmTrueType::FocusGrid(bool hasFocus) {
  mGridHasFocus = hasFocus;
  DrawGrid();
}

void frmTrueType::picFont_KeyDown(int keyCode) {
  const std::optional<int> code = CharacterGrid::Neighbour(mPicked.Character, keyCode);
  if (!code) return OwnerDesktop().Beep();
  Select(*code);
}

void frmTrueType::picFont_MouseDown(const Point& at) {
  if (const std::optional<int> code = mGrid.CodeAt(at)) Select(*code);
}

void frmTrueType::txtRot_GotFocus() {
  modMain::SelectAllText(txtRot);
  mRotationOnEntry = txtRot.Text();
}

void frmTrueType::txtRot_LostFocus() {
  if (txtRot.Text() == mRotationOnEntry) return;
  const double degrees = numbers::ToDouble(txtRot.Text(), OwnerDesktop().Separators()).value_or(0);
  if (IsRotation(degrees)) {
    mPicked.Rotation = numbers::RoundToLong(degrees);
    return;
  }
  PutBack({"Value for rotation must be between -360 and 360 degrees.", "Wrong value", MessageIcon::Exclamation}, txtRot,
          mRotationOnEntry);
}

void frmTrueType::Form_Unload() {
  // Closing the window confirms nothing.
  if (!IsConfirmed()) Discard();
  mGridHasFocus = false;
  OkCancelForm::Form_Unload();
}

}  // namespace orx
