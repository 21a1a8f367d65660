// What boxes to draw in tell of the mouse, how drawings change, and what a desktop says of fonts and colours.
#include <set>

#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "tests/support/DesktopTest.h"
#include "text/AnsiCharacters.h"
#include "text/Utf8Text.h"

namespace orx::test {
namespace {

struct GridForm final : Form {
  explicit GridForm(Desktop& desktop) : Form(desktop, "frmGrid", {.Caption = "Grid", .Client = {3000, 3000}}) {
    txtFirst.LostFocus = [this] {
      Log.emplace_back("txtFirst_LostFocus");
      if (Refuses) txtFirst.SetFocus();
    };
    for (PictureBox* const box : {&picGrid, &picPlain}) {
      box->GotFocus = [this, box] { Log.push_back(box->Name() + "_GotFocus"); };
      box->MouseDown = [this, box](Point at) {
        Log.push_back(box->Name() + "_MouseDown(" + std::to_string(at.X) + "," + std::to_string(at.Y) + ")");
      };
      box->Click = [this, box] { Log.push_back(box->Name() + "_Click"); };
    }
    picGrid.DblClick = [this] { Log.emplace_back("picGrid_DblClick"); };
  }

  std::vector<std::string> Log;
  bool Refuses = false;
  TextBox txtFirst{*this, "txtFirst", {.Place = {120, 120, 1200, 330}}};
  Label lblGrid{*this, "lblGrid", {.Caption = "Grid", .Place = {120, 480, 600, 240}}};
  PictureBox picGrid{*this, "picGrid", {.Place = {120, 750, 1500, 900}}, {255, 255, 255}, PictureUse::Input};
  PictureBox picPlain{*this, "picPlain", {.Place = {120, 1800, 1500, 900}}, {255, 255, 255}, PictureUse::Input};
  PictureBox picShown{*this, "picShown", {.Place = {1800, 1800, 600, 600}}};
};

class FormsPictureBox : public DesktopTest {
 protected:
  using Events = std::vector<std::string>;

  FormsPictureBox() {
    form->Show(ShowMode::Modeless);
    form->Log.clear();
  }
  ~FormsPictureBox() override { form->Unload(); }

  std::shared_ptr<GridForm> form = std::make_shared<GridForm>(desktop());
};

TEST_F(FormsPictureBox, APressTellsItsPixelAfterTheFocusHasCome) {
  user.ClickAt(form->picGrid, {7, 11});
  EXPECT_EQ((Events{"txtFirst_LostFocus", "picGrid_GotFocus", "picGrid_MouseDown(7,11)", "picGrid_Click"}), form->Log);
}

TEST_F(FormsPictureBox, TheCornersBelongToTheBox) {
  const Size size = form->picGrid.PixelSize();
  user.ClickAt(form->picGrid, {0, 0});
  user.ClickAt(form->picGrid, {size.Width - 1, size.Height - 1});
  ASSERT_EQ(6U, form->Log.size());
  EXPECT_EQ("picGrid_MouseDown(0,0)", form->Log[2]);
  EXPECT_EQ("picGrid_MouseDown(" + std::to_string(size.Width - 1) + "," + std::to_string(size.Height - 1) + ")",
            form->Log[4]);
}

TEST_F(FormsPictureBox, TheSecondPressOfADoubleClickIsOneOfItsOwn) {
  user.DoubleClickAt(form->picGrid, {7, 11});
  EXPECT_EQ((Events{"txtFirst_LostFocus", "picGrid_GotFocus", "picGrid_MouseDown(7,11)", "picGrid_Click",
                    "picGrid_DblClick"}),
            form->Log);
}

TEST_F(FormsPictureBox, ADoubleClickThatNobodyWantsIsTwoClicks) {
  user.DoubleClickAt(form->picPlain, {7, 11});
  EXPECT_EQ((Events{"txtFirst_LostFocus", "picPlain_GotFocus", "picPlain_MouseDown(7,11)", "picPlain_Click",
                    "picPlain_MouseDown(7,11)", "picPlain_Click"}),
            form->Log);
}

TEST_F(FormsPictureBox, PressAndClickAreDroppedWhenTheFieldKeepsTheFocus) {
  form->Refuses = true;
  user.ClickAt(form->picGrid, {7, 11});
  EXPECT_EQ(Events{"txtFirst_LostFocus"}, form->Log);
  EXPECT_TRUE(user.See(form->txtFirst).Focused);
}

TEST_F(FormsPictureBox, ABoxToLookAtAndADisabledOneTellNothing) {
  form->picGrid.Enabled(false);
  user.DoubleClickAt(form->picGrid, {7, 11});
  user.DoubleClickAt(form->picShown, {7, 11});
  EXPECT_EQ(Events{}, form->Log);
}

TEST_F(FormsPictureBox, ADisabledBoxPalesTowardsTheGroundOfItsDialog) {
  const Color face = desktop().SystemColor(SystemColor::DialogFace);
  const auto mixed = [](int part, int ground) { return static_cast<std::uint8_t>((part + 2 * ground) / 3); };
  form->picGrid.BackColor({200, 100, 0});
  EXPECT_EQ((Color{200, 100, 0}), form->picGrid.ShownBackColor());
  form->picGrid.Enabled(false);
  EXPECT_EQ((Color{mixed(200, face.Red), mixed(100, face.Green), mixed(0, face.Blue)}), form->picGrid.ShownBackColor());
}

TEST_F(FormsPictureBox, ItIsNamedByTheLabelInFrontAsItIsNow) {
  EXPECT_EQ("Grid", form->picGrid.AccessibleName());
  form->lblGrid.Caption("Other");
  EXPECT_EQ("Other", form->picGrid.AccessibleName());
}

TEST_F(FormsPictureBox, TheScreenHasFontsEachOfThemOnce) {
  const std::vector<std::string> fonts = desktop().ScreenFonts();
  EXPECT_GE(fonts.size(), 3U);
  EXPECT_EQ(fonts.size(), std::set<std::string>(fonts.begin(), fonts.end()).size());
  EXPECT_EQ(fonts, desktop().ScreenFonts());
}

TEST_F(FormsPictureBox, TextStandsOutFromItsGround) {
  EXPECT_NE(desktop().SystemColor(SystemColor::Window), desktop().SystemColor(SystemColor::WindowText));
  EXPECT_NE(desktop().SystemColor(SystemColor::Highlight), desktop().SystemColor(SystemColor::HighlightText));
  EXPECT_NE(desktop().SystemColor(SystemColor::Highlight), desktop().SystemColor(SystemColor::Window));
}

TEST(FormsLetters, TextsAreEqualInAnyCase) {
  EXPECT_TRUE(EqualInAnyCase("", ""));
  EXPECT_TRUE(EqualInAnyCase("ARIAL", "arial"));
  EXPECT_TRUE(EqualInAnyCase("Schriftgröße ÄΩ", "sCHRIFTGRÖßE äω"));
  EXPECT_FALSE(EqualInAnyCase("Arial", "Arial "));
  EXPECT_FALSE(EqualInAnyCase("Arial", "Ariel"));
  EXPECT_FALSE(EqualInAnyCase("", "a"));
}

TEST(FormsAnsiCharacters, CodesAndCharactersAreOneToOne) {
  std::set<char32_t> characters;
  for (int code = 0; code < 256; ++code) {
    characters.insert(AnsiCharacter(code));
    EXPECT_EQ(code, AnsiCode(AnsiCharacter(code))) << code;
  }
  EXPECT_EQ(256U, characters.size());
}

TEST(FormsAnsiCharacters, KnowTheLettersOfTheCodePage) {
  EXPECT_EQ(U'A', AnsiCharacter('A'));
  EXPECT_EQ(U'\u20AC', AnsiCharacter(0x80));
  EXPECT_EQ(char32_t{0x81}, AnsiCharacter(0x81));
  EXPECT_EQ(U'\u0160', AnsiCharacter(0x8A));
  EXPECT_EQ(U'\u201C', AnsiCharacter(0x93));
  EXPECT_EQ(U'\u2122', AnsiCharacter(0x99));
  EXPECT_EQ(U'\u0178', AnsiCharacter(0x9F));
  EXPECT_EQ(U'\u00FF', AnsiCharacter(0xFF));
  for (const char32_t character : {U'\u0080', U'\u0100', U'\u25B2', U'\U0001F600'})
    EXPECT_EQ(std::nullopt, AnsiCode(character));
}

}  // namespace
}  // namespace orx::test
