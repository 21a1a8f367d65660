#include "pickers/frmTrueType.h"

#include <algorithm>

#include "dialogframe/SelectAllText.h"
#include "forms/Desktop.h"
#include "numbers/Numbers.h"
#include "text/Utf8Text.h"

namespace orx {
namespace {

constexpr char kFontWithoutName[] = "arial";
constexpr double kGridPoints = 12;
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
  picFont.GotFocus = [this] { picFont_GotFocus(); };
  picFont.LostFocus = [this] { picFont_LostFocus(); };
  picFont.KeyDown = [this](int keyCode) { picFont_KeyDown(keyCode); };
  picFont.MouseDown = [this](Point at) { picFont_MouseDown(at); };
  picFont.DblClick = [this] { PressOK(); };
  cboFont.Click = [this] { ShowFont(); };
}

void frmTrueType::SelCharacter(std::int32_t value) {
  mPicked.Character = mGiven.Character = std::clamp(value, 0, CharacterGrid::kCodes - 1);
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
  // The first entry is not compared.
  for (int i = 1; i < cboFont.ListCount(); ++i)
    if (EqualInAnyCase(cboFont.List(i), mPicked.Font)) return cboFont.ListIndex(i);
  ShowFont();
}

void frmTrueType::ShowFont() {
  if (cboFont.ListIndex() >= 0) mPicked.Font = cboFont.Text();
  if (mPicked.Font.empty()) mPicked.Font = kFontWithoutName;
  mGrid = CharacterGrid(OwnerDesktop().Scale());
  picFont.AutoRedraw(true);
  Canvas& drawing = picFont.Drawing();
  drawing.Clear();
  const Font font = GridFont(mPicked.Font);
  const Color ink = OwnerDesktop().SystemColor(SystemColor::WindowText);
  for (int code = 0; code < CharacterGrid::kCodes; ++code)
    drawing.Draw(CharacterMark{mGrid.PlaceOf(code), code, font, ink});
  Select(mPicked.Character);
}

void frmTrueType::DrawCell(int code, CellState state) {
  const Desktop& desktop = OwnerDesktop();
  const bool isSelected = state == CellState::Selected;
  Canvas& drawing = picFont.Drawing();
  if (!isSelected && mGridHasFocus) drawing.ToggleFocus(mCell);
  const Font font = GridFont(mPicked.Font);
  mCell = mGrid.CellOf(code, desktop.MeasureCharacter(font, code));
  drawing.Redraw({mGrid.PlaceOf(code), code, font,
                  desktop.SystemColor(isSelected ? SystemColor::HighlightText : SystemColor::WindowText), mCell,
                  desktop.SystemColor(isSelected ? SystemColor::Highlight : SystemColor::Window)});
  if (isSelected && mGridHasFocus) drawing.ToggleFocus(mCell);
}

void frmTrueType::Select(int code) {
  mPicked.Character = code;
  lblHlp[1].Caption("Selected character: " + std::to_string(code));
  DrawCell(code, CellState::Selected);
  picFont.Refresh();
}

void frmTrueType::GoTo(int code) {
  DrawCell(mPicked.Character, CellState::Normal);
  Select(code);
}

void frmTrueType::picFont_GotFocus() {
  mGridHasFocus = true;
  picFont.Drawing().ToggleFocus(mCell);
  picFont.Refresh();
}

void frmTrueType::picFont_LostFocus() {
  mGridHasFocus = false;
  picFont.Drawing().ToggleFocus(mCell);
  picFont.Refresh();
}

void frmTrueType::picFont_KeyDown(int keyCode) {
  const std::optional<int> code = CharacterGrid::Neighbour(mPicked.Character, keyCode);
  if (!code) return OwnerDesktop().Beep();
  GoTo(*code);
}

void frmTrueType::picFont_MouseDown(const Point& at) {
  if (const std::optional<int> code = mGrid.CodeAt(at)) GoTo(*code);
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
