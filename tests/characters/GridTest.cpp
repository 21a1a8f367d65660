// The grid of characters as its user meets it: what is drawn, and how keys and the mouse go through it.
#include "tests/characters/CharactersTest.h"

namespace orx::test {
namespace {

using CharactersGrid = CharactersTest;

TEST_F(CharactersGrid, EveryCodeIsDrawnOnceInItsCell) {
  Pick([this] {
    const Font font{.Name = ListedFont(1), .Size = 12};
    const CharacterCodes codes = desktop().CharactersOf(font);
    EXPECT_EQ(257U, Marks().size());
    for (int code = 0; code < 256; ++code) {
      EXPECT_EQ(codes.test(static_cast<std::size_t>(code)), Drawn(code).has_value()) << code;
      EXPECT_EQ(Drawn(code) ? font.Name : "", DrawnFont(code)) << code;
      if (code != 65) ExpectNormal(code);
    }
    ExpectSelected(65);
    EXPECT_EQ(desktop().SystemColor(SystemColor::Window), form->picFont.BackColor());
    EXPECT_TRUE(form->picFont.AutoRedraw());
    Cancel();
  });
}

TEST_F(CharactersGrid, CodesThatTheFontHasNoCharacterForAreNumbers) {
  Pick([this] {
    const CharacterCodes codes = desktop().CharactersOf({.Name = ListedFont(1), .Size = 12});
    ASSERT_FALSE(codes.test(1));
    ASSERT_TRUE(Number(1));
    EXPECT_EQ("1", Number(1)->Text);
    EXPECT_EQ(Gray(), Number(1)->Pen);
    ClickOn(1);
    ExpectSelected(1);
    Cancel();
  });
}

TEST_F(CharactersGrid, AMoveDrawsTheOldCellNormalAndTheNewOneSelected) {
  Pick([this] {
    ClickOn(66);
    ExpectNormal(65);
    ExpectSelected(66);
    EXPECT_EQ(Mark(FocusMark{CellOf(66)}), Marks().back());
    Cancel();
  });
}

TEST_F(CharactersGrid, TheFocusIsMarkedOnTheSelectedCellWhileTheGridHasIt) {
  Pick([this] {
    EXPECT_EQ(std::vector<Rect>{}, FocusRects());
    user.Press(*form, kTab);
    EXPECT_TRUE(user.See(form->picFont).Focused);
    EXPECT_EQ(std::vector<Rect>{CellOf(65)}, FocusRects());
    Key(kKeyCodeRight);
    EXPECT_EQ(std::vector<Rect>{CellOf(66)}, FocusRects());
    user.Press(*form, kTab);
    EXPECT_EQ(std::vector<Rect>{}, FocusRects());
    ExpectSelected(66);
    user.Press(*form, kShiftTab);
    EXPECT_EQ(std::vector<Rect>{CellOf(66)}, FocusRects());
    Cancel();
  });
}

TEST_F(CharactersGrid, ArrowKeysMoveTheSelection) {
  Pick([this] {
    user.ClickInto(form->txtRot);
    user.Press(*form, kTab);
    Key(kKeyCodeRight);
    ExpectSelected(66);
    Key(kKeyCodeDown);
    ExpectSelected(86);
    Key(kKeyCodeLeft);
    ExpectSelected(85);
    Key(kKeyCodeUp);
    ExpectSelected(65);
    for (const int left : {66, 86, 85}) ExpectNormal(left);
  });
  ExpectChoice(ListedFont(1), 65, 0, false);
}

TEST_F(CharactersGrid, LeftAndRightGoAroundTheEnds) {
  choice.Character = 255;
  Pick([this] {
    user.Press(*form, kTab);
    Key(kKeyCodeRight);
    ExpectSelected(0);
    ExpectNormal(255);
    Key(kKeyCodeLeft);
    ExpectSelected(255);
  });
  EXPECT_EQ(0, script.Beeps);
}

TEST_F(CharactersGrid, UpAndDownBeepAtTheEdges) {
  choice.Character = 240;
  Pick([this] {
    user.Press(*form, kTab);
    const std::vector<Mark> before = Marks();
    Key(kKeyCodeDown);
    EXPECT_EQ(1, script.Beeps);
    ExpectSelected(240);
    EXPECT_EQ(before, Marks());
    ClickOn(19);
    Key(kKeyCodeUp);
    EXPECT_EQ(2, script.Beeps);
    ExpectSelected(19);
    Key(kKeyCodeDown);
    ExpectSelected(39);
    EXPECT_EQ(2, script.Beeps);
  });
  ExpectChoice(ListedFont(1), 39, 0, true);
}

TEST_F(CharactersGrid, OtherKeysDrawTheCellAgain) {
  Pick([this] {
    user.ClickInto(form->picFont);
    const int middle = form->SelCharacter();
    Key(kKeyCodeShift);
    Key(kKeyCodePageDown);
    ExpectSelected(middle);
    EXPECT_EQ(std::vector<Rect>{CellOf(middle)}, FocusRects());
    EXPECT_EQ(0, script.Beeps);
    Cancel();
  });
}

TEST_F(CharactersGrid, AllCodesByTheMouse) {
  choice.Character = 255;
  Pick([this] {
    for (int code = 0; code < 256; ++code) {
      ClickOn(code);
      ASSERT_EQ(code, form->SelCharacter());
      ASSERT_EQ(258U, Marks().size());
    }
    for (int code = 0; code < 255; ++code) ExpectNormal(code);
    ExpectSelected(255);
    EXPECT_EQ(std::vector<Rect>{CellOf(255)}, FocusRects());
    Cancel();
  });
}

TEST_F(CharactersGrid, AllCodesByTheKeys) {
  choice.Character = 0;
  Pick([this] {
    user.Press(*form, kTab);
    for (int code = 1; code < 256; ++code) {
      Key(kKeyCodeRight);
      ASSERT_EQ(code, form->SelCharacter());
      ASSERT_EQ(258U, Marks().size());
    }
    ExpectSelected(255);
    for (int code = 0; code < 255; ++code) ExpectNormal(code);
  });
  ExpectChoice(ListedFont(1), 255, 0, true);
}

TEST_F(CharactersGrid, TheEdgesOfACellBelongToIt) {
  Pick([this] {
    const Point first = PlaceOf(107);
    user.ClickAt(form->picFont, first);
    ExpectSelected(107);
    user.ClickAt(form->picFont, {first.X - 1, first.Y});
    ExpectSelected(106);
    user.ClickAt(form->picFont, {first.X, first.Y - 1});
    ExpectSelected(87);
    user.ClickAt(form->picFont, {first.X + Scaled(19) - 1, first.Y + Scaled(19) - 1});
    ExpectSelected(107);
    Cancel();
  });
}

TEST_F(CharactersGrid, PressesInTheMarginsAndBehindTheLastCodeOnlyTakeTheFocus) {
  Pick([this] {
    const std::vector<Mark> before = Marks();
    for (const Point& at :
         {Point{Scaled(9) - 1, Scaled(50)}, Point{Scaled(50), Scaled(9) - 1},
          Point{PlaceOf(255).X + Scaled(19), PlaceOf(255).Y}, Point{Scaled(50), PlaceOf(255).Y + Scaled(19)}}) {
      user.ClickAt(form->picFont, at);
      EXPECT_TRUE(user.See(form->picFont).Focused);
      EXPECT_EQ(65, form->SelCharacter());
    }
    std::vector<Mark> focused = before;
    focused.push_back(FocusMark{CellOf(65)});
    EXPECT_EQ(focused, Marks());
    Cancel();
  });
}

TEST_F(CharactersGrid, ADoubleClickPicksAndConfirms) {
  EXPECT_TRUE(Pick([this] {
    user.DoubleClickAt(form->picFont, Inside(200));
    EXPECT_FALSE(form->Visible());
  }));
  ExpectChoice(ListedFont(1), 200, 0, true);
}

TEST_F(CharactersGrid, AClickWaitsForARefusedRotation) {
  Pick([this] {
    user.Type(form->txtRot, "400");
    script.ExpectMessage(
        {"Value for rotation must be between -360 and 360 degrees.", "Wrong value", MessageIcon::Exclamation});
    ClickOn(70);
    EXPECT_TRUE(user.See(form->txtRot).Focused);
    ExpectSelected(65);
    EXPECT_EQ(std::vector<Rect>{}, FocusRects());
    ClickOn(70);
    ExpectSelected(70);
  });
  ExpectChoice(ListedFont(1), 70, 0, true);
}

TEST_F(CharactersGrid, TheGridIsNamedAfterTheSelectedCharacter) {
  Pick([this] {
    EXPECT_EQ("Selected character: 65", form->picFont.AccessibleName());
    ClickOn(66);
    EXPECT_EQ("Selected character: 66", form->picFont.AccessibleName());
    EXPECT_FALSE(user.See(form->lblHlp[1]).Visible);
    Cancel();
  });
}

}  // namespace
}  // namespace orx::test
