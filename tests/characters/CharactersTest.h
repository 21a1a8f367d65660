// The fixture of the dialog for characters, opened as pages and the service open it.
#pragma once

#include <cmath>
#include <optional>

#include "forms/Contrast.h"
#include "pickers/frmTrueType.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordingHost.h"
#include "text/CharacterCount.h"

namespace orx::test {

class CharactersTest : public DesktopTest {
 protected:
  CharactersTest() { choice = {ListedFont(1), 65, 0}; }

  /// The fonts of the list, which the screen's first one is not in.
  std::vector<std::string> Listed() {
    std::vector<std::string> fonts = desktop().ScreenFonts();
    fonts.erase(fonts.begin());
    std::erase(fonts, std::string());
    return fonts;
  }
  std::string ListedFont(int index) { return Listed().at(static_cast<std::size_t>(index)); }
  static std::string UpperCase(std::string text) {
    for (char& letter : text)
      if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    return text;
  }

  /// Opens the dialog, where the user does `acts`; OK follows when they leave it open.
  template <class Acts>
  bool Pick(Acts acts) {
    script.ExpectForm("frmTrueType", [this, acts](Form& shown) {
      form = dynamic_cast<frmTrueType*>(&shown);
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return modMain::ShowCharacterDialog(desktop(), choice, language);
  }
  void ExpectChoice(const std::string& font, int character, double rotation, bool changed) {
    EXPECT_EQ(font, choice.FontName);
    EXPECT_EQ(character, choice.Character);
    EXPECT_EQ(rotation, choice.Rotation);
    EXPECT_EQ(changed, choice.Changed);
  }

  int Scaled(int pixels) { return static_cast<int>(std::nearbyint(pixels * desktop().Scale())); }
  Point PlaceOf(int code) { return {code % 20 * Scaled(19) + Scaled(9), code / 20 * Scaled(19) + Scaled(9)}; }
  /// A pixel inside of the cell of that code.
  Point Inside(int code) { return {PlaceOf(code).X + Scaled(5), PlaceOf(code).Y + Scaled(5)}; }
  void ClickOn(int code) { user.ClickAt(form->picFont, Inside(code)); }
  void Key(int keyCode) { user.PressKey(*form, keyCode); }
  void Cancel() { user.Click(form->cmdCancel); }

  const std::vector<Mark>& Marks() { return form->picFont.Drawing().Marks(); }
  /// The character of a code as it is drawn now, if one is.
  std::optional<CharacterMark> Drawn(int code) {
    for (const Mark& mark : Marks())
      if (const auto* drawn = std::get_if<CharacterMark>(&mark); drawn && drawn->Code == code) return *drawn;
    return std::nullopt;
  }
  /// The number that stands in its place otherwise.
  std::optional<TextMark> Number(int code) {
    for (const Mark& mark : Marks())
      if (const auto* number = std::get_if<TextMark>(&mark); number && number->Text == std::to_string(code))
        return *number;
    return std::nullopt;
  }
  std::string DrawnFont(int code = 65) {
    const std::optional<CharacterMark> drawn = Drawn(code);
    return drawn ? drawn->Face.Name : std::string();
  }
  /// The grounds of cells, which the selected one has alone.
  std::vector<FillMark> Grounds() {
    std::vector<FillMark> grounds;
    for (const Mark& mark : Marks())
      if (const auto* ground = std::get_if<FillMark>(&mark)) grounds.push_back(*ground);
    return grounds;
  }
  /// The places of the focus rectangles, which there is one of at most.
  std::vector<Rect> FocusRects() {
    std::vector<Rect> places;
    for (const Mark& mark : Marks())
      if (const auto* focus = std::get_if<FocusMark>(&mark)) places.push_back(focus->Place);
    return places;
  }
  Rect CellOf(int code) { return {PlaceOf(code).X, PlaceOf(code).Y, Scaled(19), Scaled(19)}; }
  /// Whatever stands in a cell, the character or its number, is in its middle and has one of two inks.
  void ExpectInk(int code, Color character, Color number) {
    const std::optional<CharacterMark> drawn = Drawn(code);
    const std::optional<TextMark> text = Number(code);
    ASSERT_NE(drawn.has_value(), text.has_value()) << code;
    EXPECT_EQ(drawn ? character : number, drawn ? drawn->Ink : text->Pen) << code;
    const Rect cell = CellOf(code);
    const Point middle{cell.Left + cell.Width / 2, cell.Top + cell.Height / 2};
    EXPECT_EQ(cell, drawn ? drawn->Cell : cell) << code;
    EXPECT_EQ(middle, text ? text->Center : middle) << code;
  }
  void ExpectSelected(int code) {
    EXPECT_EQ(code, form->SelCharacter());
    EXPECT_EQ("Selected character: " + std::to_string(code), form->lblHlp[1].Caption());
    EXPECT_EQ((std::vector<FillMark>{{CellOf(code), desktop().SystemColor(SystemColor::Highlight)}}), Grounds());
    const Color ink = desktop().SystemColor(SystemColor::HighlightText);
    ExpectInk(code, ink, ink);
  }
  Color Gray() {
    return FadedInk(desktop().SystemColor(SystemColor::WindowText), desktop().SystemColor(SystemColor::Window));
  }
  void ExpectNormal(int code) { ExpectInk(code, desktop().SystemColor(SystemColor::WindowText), Gray()); }
  void ExpectRotationRefused(const std::string& text) {
    const std::string before = user.See(form->txtRot).Text;
    user.Type(form->txtRot, text);
    script.ExpectMessage(
        {"Value for rotation must be between -360 and 360 degrees.", "Wrong value", MessageIcon::Exclamation});
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible()) << text;
    EXPECT_EQ(before, user.See(form->txtRot).Text) << text;
    EXPECT_TRUE(user.See(form->txtRot).Focused) << text;
    EXPECT_EQ(CharacterCount(before), form->txtRot.SelLength()) << text;
  }

  CharacterRequest choice;
  ILanguage* language = nullptr;
  frmTrueType* form = nullptr;
};

}  // namespace orx::test
