// The dialog for characters and its callers: what they give and get back, and what happens when something fails.
#include <limits>

#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"
#include "tests/characters/CharactersTest.h"

namespace orx::test {
namespace {

using CharactersHost = CharactersTest;

TEST_F(CharactersHost, TheFormKeepsWhatItIsGivenWithinItsLimits) {
  frmTrueType dialog(desktop());
  dialog.SelFont("Arial");
  EXPECT_EQ("Arial", dialog.SelFont());
  for (const auto& [given, kept] : {std::pair{300, 255}, {-5, 0}, {0, 0}, {255, 255}}) {
    dialog.SelCharacter(given);
    EXPECT_EQ(kept, dialog.SelCharacter()) << given;
  }
  for (const auto& [given, kept] : {std::pair{360, 360}, {-360, -360}, {361, 0}, {-361, 0}, {400, 0}}) {
    dialog.SelRotation(given);
    EXPECT_EQ(kept, dialog.SelRotation()) << given;
  }
}

TEST_F(CharactersHost, ChangedIsOnlyEverSet) {
  choice.Changed = true;
  EXPECT_TRUE(Pick([] {}));
  ExpectChoice(ListedFont(1), 65, 0, true);
}

TEST_F(CharactersHost, ARotationThatIsNoWholeNumberOf32BitsIsAnErrorAndZero) {
  for (const double rotation : {1E10, -1E300, std::numeric_limits<double>::quiet_NaN()}) {
    choice = {ListedFont(1), 65, rotation};
    EXPECT_FALSE(Pick([this] { EXPECT_EQ("0", user.See(form->txtRot).Text); }));
    ExpectChoice(ListedFont(1), 65, 0, true);
  }
}

TEST_F(CharactersHost, ALanguageThatFailsWhenItIsGivenIsAnErrorAndNoMore) {
  CallLog log;
  RecordingLanguage words(log);
  log.Failing = {"Language.EntryCount"};
  language = &words;
  EXPECT_FALSE(Pick([this] {
    EXPECT_EQ("Pick True Type", user.SeeCaption(*form));
    ClickOn(66);
  }));
  ExpectChoice(ListedFont(1), 66, 0, true);
}

TEST_F(CharactersHost, ADialogThatCannotBeLoadedChangesNothing) {
  CallLog log;
  RecordingLanguage words(log);
  log.Failing = {"Language.TranslateForm"};
  language = &words;
  EXPECT_FALSE(modMain::ShowCharacterDialog(desktop(), choice, language));
  ExpectChoice(ListedFont(1), 65, 0, false);
}

class CharactersService : public CharactersTest {
 protected:
  std::int32_t Show(const std::string& caption = {}) {
    return service.ShowCharacterSelection(choice.FontName, choice.Character, choice.Rotation, choice.Changed, caption);
  }
  /// Expects the dialog, in which the user clicks on B and presses the button.
  void ExpectAnswer(const std::string& button) {
    script.ExpectForm("frmTrueType", [this, button](Form& shown) {
      EXPECT_EQ("Pick True Type", user.SeeCaption(shown));
      user.ClickAt(dynamic_cast<PictureBox&>(*shown.Find("picFont")), Inside('B'));
      user.Click(dynamic_cast<Button&>(*shown.Find(button)));
    });
  }

  pages::PageFactory pages;
  CCommonMapDialogs service{desktop(), pages};
};

TEST_F(CharactersService, OKAndCancelBothTellThatNothingHasFailed) {
  ExpectAnswer("cmdCancel");
  EXPECT_EQ(-1, Show());
  ExpectChoice(ListedFont(1), 65, 0, false);
  ExpectAnswer("cmdOK");
  EXPECT_EQ(-1, Show());
  ExpectChoice(ListedFont(1), 66, 0, true);
}

TEST_F(CharactersService, TheCaptionHasNoEffect) {
  ExpectAnswer("cmdCancel");
  EXPECT_EQ(-1, Show("A title"));
}

TEST_F(CharactersService, AFailureIsTold) {
  choice.Rotation = 1E10;
  ExpectAnswer("cmdOK");
  EXPECT_EQ(0, Show());
  ExpectChoice(ListedFont(1), 66, 0, true);
}

TEST_F(CharactersService, TheDialogSpeaksTheLanguageOfTheService) {
  CallLog log;
  RecordingLanguage words(log);
  service.Language(&words);
  script.ExpectForm("frmTrueType", [this](Form& shown) {
    EXPECT_EQ("<Pick True Type>", user.SeeCaption(shown));
    user.CloseBox(shown);
  });
  EXPECT_EQ(-1, Show());
}

}  // namespace
}  // namespace orx::test
