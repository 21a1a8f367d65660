// The dialog for characters as its user meets it: fonts, rotation, what comes back, languages.
#include "tests/characters/CharactersTest.h"

namespace orx::test {
namespace {

using Characters = CharactersTest;

TEST_F(Characters, OpensInTheMiddleOfTheScreenOnTheRotation) {
  choice.Rotation = -45;
  Pick([this] {
    EXPECT_EQ("Pick True Type", user.SeeCaption(*form));
    const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
    EXPECT_EQ((screen.Width - form->Width()) / 2, form->Left());
    EXPECT_EQ((screen.Height - form->Height()) / 2, form->Top());
    EXPECT_EQ("-45", user.See(form->txtRot).Text);
    EXPECT_TRUE(user.See(form->txtRot).Focused);
    EXPECT_EQ(3, form->txtRot.SelLength());
    Cancel();
  });
}

TEST_F(Characters, TabGoesFromTheRotationOverTheGridToTheFontAndTheButtons) {
  Pick([this] {
    for (Control* const control : std::initializer_list<Control*>{&form->picFont, &form->cboFont, &form->cmdOK,
                                                                  &form->cmdCancel, &form->txtRot}) {
      user.Press(*form, kTab);
      EXPECT_TRUE(user.See(*control).Focused) << control->Name();
    }
    Cancel();
  });
}

TEST_F(Characters, MnemonicsLeadToTheRotationAndTheFont) {
  Pick([this] {
    user.Press(*form, AltKey('f'));
    EXPECT_TRUE(user.See(form->cboFont).Focused);
    user.Press(*form, AltKey('r'));
    EXPECT_TRUE(user.See(form->txtRot).Focused);
    EXPECT_EQ("Rotation", form->txtRot.AccessibleName());
    EXPECT_EQ("Font", form->cboFont.AccessibleName());
    Cancel();
  });
}

TEST_F(Characters, ListsTheFontsOfTheScreenWithoutTheFirst) {
  Pick([this] {
    std::vector<std::string> listed;
    for (int i = 0; i < form->cboFont.ListCount(); ++i) listed.push_back(form->cboFont.List(i));
    EXPECT_EQ(Listed(), listed);
    EXPECT_EQ(1, user.See(form->cboFont).Value);
    EXPECT_EQ(ListedFont(1), user.See(form->cboFont).Text);
    Cancel();
  });
}

TEST_F(Characters, AnotherFontIsDrawnAtOnce) {
  Pick([this] {
    ClickOn(70);
    user.Choose(form->cboFont, 2);
    EXPECT_EQ(ListedFont(2), form->SelFont());
    EXPECT_EQ(desktop().CharactersOf({.Name = ListedFont(2)}).test(65) ? ListedFont(2) : "", DrawnFont());
    ExpectSelected(70);
  });
  ExpectChoice(ListedFont(2), 70, 0, true);
}

TEST_F(Characters, AFontIsFoundInAnyCaseAndComesBackAsItIsListed) {
  choice.FontName = UpperCase(ListedFont(1));
  EXPECT_TRUE(Pick([this] { EXPECT_EQ(1, user.See(form->cboFont).Value); }));
  ExpectChoice(ListedFont(1), 65, 0, true);
}

TEST_F(Characters, CancelBringsTheLetterCaseBack) {
  choice.FontName = UpperCase(ListedFont(1));
  EXPECT_TRUE(Pick([this] { Cancel(); }));
  ExpectChoice(UpperCase(ListedFont(1)), 65, 0, false);
}

TEST_F(Characters, TheFirstEntryIsFoundAsWell) {
  choice.FontName = ListedFont(0);
  Pick([this] {
    EXPECT_EQ(0, user.See(form->cboFont).Value);
    EXPECT_EQ(ListedFont(0), user.See(form->cboFont).Text);
    ExpectSelected(65);
  });
  ExpectChoice(ListedFont(0), 65, 0, false);
}

TEST_F(Characters, AFontThatIsNotInstalledIsListedAsSuchAndStays) {
  choice.FontName = "No Such Font";
  Pick([this] {
    EXPECT_EQ(static_cast<int>(Listed().size()), user.See(form->cboFont).Value);
    EXPECT_EQ("No Such Font (not installed)", user.See(form->cboFont).Text);
    EXPECT_EQ("No Such Font", form->SelFont());
    ClickOn(66);
  });
  ExpectChoice("No Such Font", 66, 0, true);
}

TEST_F(Characters, OfAFontThatIsNotInstalledOnlyTheNumbersAreKnown) {
  choice.FontName = "No Such Font";
  Pick([this] {
    for (int code = 0; code < 256; ++code) EXPECT_TRUE(Number(code) && !Drawn(code)) << code;
    ExpectSelected(65);
    ExpectNormal(66);
    Cancel();
  });
}

TEST_F(Characters, AFontThatIsNotInstalledGivesWayToOneThatIsPickedAndCanBePickedAgain) {
  choice.FontName = "No Such Font";
  Pick([this] {
    user.Choose(form->cboFont, 2);
    EXPECT_EQ(ListedFont(2), form->SelFont());
    EXPECT_FALSE(Number(65) && Number(66) && Number(97));
    user.Choose(form->cboFont, form->cboFont.ListCount() - 1);
    EXPECT_EQ("No Such Font", form->SelFont());
    EXPECT_TRUE(Number(65));
    user.Choose(form->cboFont, 2);
  });
  ExpectChoice(ListedFont(2), 65, 0, true);
}

TEST_F(Characters, AFontWithoutNameIsArial) {
  choice.FontName = "";
  Pick([this] {
    EXPECT_EQ("arial", form->SelFont());
    const bool isInstalled = user.See(form->cboFont).Value < 0;
    EXPECT_EQ(isInstalled ? "" : "arial (not installed)", user.See(form->cboFont).Text);
    EXPECT_EQ(isInstalled ? "arial" : "", DrawnFont());
  });
  ExpectChoice("arial", 65, 0, true);
  choice = {"", 65, 0};
  Pick([this] { Cancel(); });
  ExpectChoice("", 65, 0, false);
}

TEST_F(Characters, AFontWhoseNameIsTooLongIsNotInstalled) {
  const std::string tooLong(32, 'x');
  choice.FontName = tooLong;
  Pick([&] {
    EXPECT_EQ(tooLong + " (not installed)", user.See(form->cboFont).Text);
    ClickOn(66);
    ExpectSelected(66);
  });
  ExpectChoice(tooLong, 66, 0, true);
  EXPECT_TRUE(desktop().CharactersOf({.Name = tooLong, .Size = 12}).any());
}

TEST_F(Characters, CodesOutsideOfTheGridBecomeTheNearest) {
  choice.Character = 300;
  Pick([this] { ExpectSelected(255); });
  ExpectChoice(ListedFont(1), 255, 0, true);
  choice = {ListedFont(1), -5, 0};
  Pick([this] { ExpectSelected(0); });
  ExpectChoice(ListedFont(1), 0, 0, true);
}

TEST_F(Characters, RotationsBeyondATurnBecomeZero) {
  for (const double rotation : {400.0, -361.0, 360.51}) {
    choice = {ListedFont(1), 65, rotation};
    Pick([this] { EXPECT_EQ("0", user.See(form->txtRot).Text); });
    ExpectChoice(ListedFont(1), 65, 0, true);
  }
  for (const double rotation : {360.0, -360.0}) {
    choice = {ListedFont(1), 65, rotation};
    Pick([] {});
    ExpectChoice(ListedFont(1), 65, rotation, false);
  }
}

TEST_F(Characters, ARotationIsTypedInDegreesAndRoundedHalvesToTheEvenOne) {
  const struct {
    const char* Text;
    double Degrees;
  } kTyped[] = {{"360", 360}, {"-360", -360}, {"12.5", 12}, {"13.5", 14}, {"  7 ", 7},
                {"1E2", 100}, {"", 0},        {"abc", 0},   {"1E400", 0}};
  for (const auto& [text, degrees] : kTyped) {
    choice = {ListedFont(1), 65, 90};
    const char* const typed = text;
    EXPECT_TRUE(Pick([this, typed] {
      user.Type(form->txtRot, typed);
      user.Press(*form, kTab);
      EXPECT_EQ(typed, user.See(form->txtRot).Text);
    }));
    ExpectChoice(ListedFont(1), 65, degrees, true);
  }
}

TEST_F(Characters, ARotationBeyondATurnIsRefused) {
  choice.Rotation = 30;
  Pick([this] {
    for (const char* const text : {"360.5", "-360.01", "361", "1E300"}) ExpectRotationRefused(text);
    EXPECT_EQ(30, form->SelRotation());
  });
  ExpectChoice(ListedFont(1), 65, 30, false);
}

TEST_F(Characters, ARefusedRotationLeavesTheLastGoodOne) {
  Pick([this] {
    user.Type(form->txtRot, "45");
    user.Press(*form, kTab);
    ExpectRotationRefused("1000");
  });
  ExpectChoice(ListedFont(1), 65, 45, true);
}

TEST_F(Characters, CancelWaitsForARefusedRotation) {
  Pick([this] {
    user.Type(form->txtRot, "1000");
    script.ExpectMessage(
        {"Value for rotation must be between -360 and 360 degrees.", "Wrong value", MessageIcon::Exclamation});
    Cancel();
    EXPECT_TRUE(form->Visible());
    Cancel();
    EXPECT_FALSE(form->Visible());
  });
  ExpectChoice(ListedFont(1), 65, 0, false);
}

TEST_F(Characters, EnterTakesTheRotationThatIsBeingTyped) {
  Pick([this] {
    user.Type(form->txtRot, "15");
    user.Press(*form, kEnter);
    EXPECT_FALSE(form->Visible());
  });
  ExpectChoice(ListedFont(1), 65, 15, true);
}

TEST_F(Characters, RotationsAreNumbersOfTheUsersLocale) {
  testDesktop().Separators({",", ".", "€"});
  Pick([this] {
    user.Type(form->txtRot, "14,5");
    user.Press(*form, kTab);
  });
  ExpectChoice(ListedFont(1), 65, 14, true);
}

TEST_F(Characters, AFractionThatIsNotTouchedIsRoundedAndCountsAsAChange) {
  const struct {
    double Given;
    double Shown;
  } kRotations[] = {{0.5, 0}, {1.5, 2}, {12.5, 12}, {-0.5, 0}};
  for (const auto& rotation : kRotations) {
    choice = {ListedFont(1), 65, rotation.Given};
    EXPECT_TRUE(Pick([] {}));
    ExpectChoice(ListedFont(1), 65, rotation.Shown, true);
    choice = {ListedFont(1), 65, rotation.Given};
    EXPECT_TRUE(Pick([this] { Cancel(); }));
    ExpectChoice(ListedFont(1), 65, rotation.Shown, true);
  }
}

TEST_F(Characters, CancelEscapeAndTheCloseBoxBringEverythingBack) {
  const std::function<void()> ways[] = {[this] { Cancel(); }, [this] { user.Press(*form, kEscape); },
                                        [this] { user.CloseBox(*form); }};
  for (const std::function<void()>& leave : ways) {
    EXPECT_TRUE(Pick([this, leave] {
      user.Choose(form->cboFont, 2);
      ClickOn(99);
      user.Type(form->txtRot, "10");
      user.Press(*form, kTab);
      leave();
      EXPECT_FALSE(form->Visible());
    }));
    ExpectChoice(ListedFont(1), 65, 0, false);
  }
}

TEST_F(Characters, OKUntouchedChangesNothing) {
  choice = {ListedFont(1), 200, -90};
  EXPECT_TRUE(Pick([] {}));
  ExpectChoice(ListedFont(1), 200, -90, false);
}

TEST_F(Characters, TheLanguageTranslatesAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpMapTrueType", "36.5"}};
  language = &words;
  Pick([this] {
    EXPECT_EQ(36, form->HelpContextId());
    EXPECT_EQ("<Pick True Type>", user.SeeCaption(*form));
    EXPECT_EQ("<Rotation>", user.See(form->lblHlp[2]).Text);
    EXPECT_EQ("<Font>", user.See(form->lblHlp[0]).Text);
    EXPECT_EQ("<Font>", form->cboFont.AccessibleName());
    Cancel();
  });
  choice.FontName = "No Such Font";
  Pick([this] {
    EXPECT_EQ("No Such Font (<not installed>)", user.See(form->cboFont).Text);
    Cancel();
  });
}

TEST_F(Characters, ALanguageWithoutEntriesOrWithoutANumberChangesNothing) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpMapTrueType", "none"}};
  language = &words;
  for (const std::int32_t entries : {0, 10}) {
    words.Entries = entries;
    Pick([this, entries] {
      EXPECT_EQ(0, form->HelpContextId());
      EXPECT_EQ(entries == 0 ? "Pick True Type" : "<Pick True Type>", user.SeeCaption(*form));
      Cancel();
    });
  }
}

}  // namespace
}  // namespace orx::test
