// The window: shown and hidden by the host, cancelled by the user, modal above a modal form.
#include "languages/TextLanguage.h"
#include "tests/progress/ProgressTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

using ProgressWindow = ProgressTest;

/// A form of the host's own.
struct HostForm final : Form {
  explicit HostForm(Desktop& desktop) : Form(desktop, "frmHost", {.Caption = "Host", .Client = {9000, 6000}}) {}
  Button cmdRun{*this, "cmdRun", {.Caption = "&Run", .Place = {120, 120, 1500, 375}}};
};

TEST_F(ProgressWindow, IsHiddenUntilItIsShownAndShowReturnsAtOnce) {
  EXPECT_FALSE(IsShown());
  progress->Show();
  ASSERT_TRUE(IsShown());
  EXPECT_FALSE(Window().IsModal());
  EXPECT_TRUE(user.See(Window().cmdCancel).Visible);
  EXPECT_TRUE(user.See(Window().cmdCancel).Enabled);
  EXPECT_EQ("Cancel", user.See(Window().cmdCancel).Text);
  EXPECT_TRUE(user.See(Window().prgBar).Visible);
  EXPECT_TRUE(user.See(Window().lblMsg).Visible);
}

TEST_F(ProgressWindow, StandsInTheMiddleOfTheScreen) {
  progress->Show();
  const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
  EXPECT_EQ((screen.Width - Window().Width()) / 2, Window().Left());
  EXPECT_EQ((screen.Height - Window().Height()) / 2, Window().Top());
}

TEST_F(ProgressWindow, GoesWhenItIsHiddenAndComesBack) {
  for (int round = 0; round < 3; ++round) {
    progress->Show();
    EXPECT_EQ(1U, desktop().OpenForms().size());
    EXPECT_TRUE(user.See(Window().cmdCancel).Visible);
    progress->Hide();
    EXPECT_FALSE(IsShown());
  }
  progress->Hide();
  EXPECT_FALSE(progress->CancelAction());
}

TEST_F(ProgressWindow, ThatIsShownAlreadyStaysAsItIs) {
  progress->Show();
  progress->Init(0, 4, 3);
  progress->Show();
  EXPECT_EQ(1U, desktop().OpenForms().size());
  EXPECT_FALSE(Window().IsModal());
  EXPECT_EQ(3, progress->Value());
}

TEST_F(ProgressWindow, CancelIsRememberedAndTheButtonIsPressedOnce) {
  progress->Show();
  user.Click(Window().cmdCancel);
  EXPECT_TRUE(progress->CancelAction());
  EXPECT_TRUE(IsShown());
  EXPECT_FALSE(user.See(Window().cmdCancel).Enabled);
  user.Click(Window().cmdCancel);
  user.Press(Window(), kEscape);
  EXPECT_TRUE(IsShown());
}

TEST_F(ProgressWindow, CancelStaysWhileTheWindowIsHiddenAndShownAgain) {
  progress->Show();
  user.Click(Window().cmdCancel);
  progress->Hide();
  EXPECT_TRUE(progress->CancelAction());
  progress->Show();
  EXPECT_TRUE(progress->CancelAction());
  EXPECT_FALSE(user.See(Window().cmdCancel).Enabled);
  progress->Init(0, 1, 0);
  EXPECT_TRUE(progress->CancelAction());
}

TEST_F(ProgressWindow, EscapeCancels) {
  progress->Show();
  user.Press(Window(), kEscape);
  EXPECT_TRUE(progress->CancelAction());
  EXPECT_TRUE(IsShown());
  EXPECT_FALSE(user.See(Window().cmdCancel).Enabled);
}

TEST_F(ProgressWindow, EnterPressesTheButtonThatHasTheFocus) {
  progress->Show();
  EXPECT_TRUE(user.See(Window().cmdCancel).Focused);
  user.Press(Window(), kEnter);
  EXPECT_TRUE(progress->CancelAction());
}

TEST_F(ProgressWindow, TheCloseBoxCancelsAndTheHostKeepsItsWindow) {
  progress->Show();
  user.CloseBox(Window());
  EXPECT_TRUE(progress->CancelAction());
  ASSERT_TRUE(IsShown());
  EXPECT_FALSE(user.See(Window().cmdCancel).Enabled);
  user.CloseBox(Window());
  ASSERT_TRUE(IsShown());
  progress->Value(50);
  EXPECT_EQ(Window().prgBar.Pixels() / 2, SeeSettled(Window().prgBar).Value);
}

TEST_F(ProgressWindow, EachObjectHasAWindowOfItsOwn) {
  CCommonProgressDialog other(desktop());
  progress->Show();
  other.Show();
  ASSERT_EQ(2U, desktop().OpenForms().size());
  user.Click(Window().cmdCancel);
  EXPECT_TRUE(other.CancelAction());
  EXPECT_FALSE(progress->CancelAction());
}

TEST_F(ProgressWindow, GoesWithItsObject) {
  progress->Show();
  progress.reset();
  EXPECT_FALSE(IsShown());
}

TEST_F(ProgressWindow, AboveAModalFormIsModalUntilTheHostHidesIt) {
  const auto host = std::make_shared<HostForm>(desktop());
  bool isBack = false;
  script.ExpectForm("frmHost", [&](Form& form) {
    script.ExpectForm("frmProgress", [&](Form& shown) {
      EXPECT_TRUE(shown.IsModal());
      EXPECT_FALSE(isBack);
      user.Click(dynamic_cast<frmProgress&>(shown).cmdCancel);
      EXPECT_TRUE(shown.Visible());
      progress->Hide();
    });
    progress->Show({&form, 0});
    isBack = true;
    EXPECT_TRUE(form.Visible());
    form.Unload();
  });
  host->Show();
  EXPECT_TRUE(isBack);
  EXPECT_TRUE(progress->CancelAction());
  // Without a modal form it is modeless again.
  progress->Show();
  EXPECT_FALSE(Window().IsModal());
}

TEST_F(ProgressWindow, AboveAModalFormClosesByItsCloseBoxOnceItIsCancelled) {
  const auto host = std::make_shared<HostForm>(desktop());
  script.ExpectForm("frmHost", [&](Form& form) {
    script.ExpectForm("frmProgress", [&](Form& shown) {
      user.CloseBox(shown);
      EXPECT_TRUE(progress->CancelAction());
      EXPECT_TRUE(shown.Visible());
      user.CloseBox(shown);
      EXPECT_FALSE(shown.Visible());
    });
    progress->Show();
    form.Unload();
  });
  host->Show();
  EXPECT_TRUE(progress->CancelAction());
  EXPECT_FALSE(IsShown());
}

TEST_F(ProgressWindow, AboveAModalFormMayLoseItsObject) {
  const auto host = std::make_shared<HostForm>(desktop());
  script.ExpectForm("frmHost", [&](Form& form) {
    script.ExpectForm("frmProgress", [&](Form&) { progress.reset(); });
    progress->Show();
    form.Unload();
  });
  host->Show();
  EXPECT_EQ(nullptr, progress);
}

TEST_F(ProgressWindow, ShownBeforeAModalFormStaysModeless) {
  progress->Show();
  const auto host = std::make_shared<HostForm>(desktop());
  script.ExpectForm("frmHost", [&](Form& form) {
    progress->Value(100);
    EXPECT_FALSE(Window().IsModal());
    EXPECT_EQ(Window().prgBar.Pixels(), SeeSettled(Window().prgBar).Value);
    form.Unload();
  });
  host->Show();
  EXPECT_TRUE(IsShown());
}

TEST_F(ProgressWindow, LetsPendingEventsBeHandledWhenItIsShownAndHidden) {
  int turns = 0;
  script.WhenEventsPend = [&] { ++turns; };
  progress->Show();
  EXPECT_EQ(1, turns);
  progress->Value(1);
  progress->Message("One");
  progress->Refresh();
  EXPECT_EQ(1, turns);
  progress->Hide();
  EXPECT_EQ(2, turns);
}

TEST_F(ProgressWindow, IsCancelledFromWithinALoopThatPollsIt) {
  script.WhenEventsPend = [this] {
    if (progress->Value() == 5) user.Click(Window().cmdCancel);
  };
  progress->Init(0, 100, 0);
  progress->Show();
  while (progress->Value() < 100 && !progress->CancelAction()) {
    progress->Value(progress->Value() + 1);
    desktop().ProcessPendingEvents();
  }
  EXPECT_EQ(5, progress->Value());
}

TEST_F(ProgressWindow, IsOwnedByTheFormThatIsNamed) {
  const auto host = std::make_shared<HostForm>(desktop());
  host->Show(ShowMode::Modeless);
  progress->Show({host.get(), 0});
  EXPECT_EQ(2U, desktop().OpenForms().size());
  user.Click(Window().cmdCancel);
  EXPECT_TRUE(progress->CancelAction());
  // The host's own form works on beside it.
  bool isRun = false;
  host->cmdRun.Click = [&] { isRun = true; };
  user.Click(host->cmdRun);
  EXPECT_TRUE(isRun);
  progress->Hide();
  host->Unload();
}

TEST_F(ProgressWindow, SpeaksTheLanguageThatItsFormIsGiven) {
  CallLog log;
  RecordingLanguage language(log);
  language.Texts = {{"Progress", "Fortschritt"}, {"Cancel", "Abbrechen"}, {"_HelpMapProgress", "4711"}};
  language.Entries = 3;
  const auto form = std::make_shared<frmProgress>(desktop());
  form->Language(&language);
  form->Load();
  EXPECT_EQ("Fortschritt", form->Caption());
  EXPECT_EQ(4711, form->HelpContextId());
  form->Unload();
}

TEST_F(ProgressWindow, HasAllItsTextsInGerman) {
  languages::TextLanguage german(ORX_DATA_DIR "/languages/de.txt");
  const auto form = std::make_shared<frmProgress>(desktop());
  form->Language(&german);
  form->Show(ShowMode::Modeless);
  EXPECT_EQ("Fortschritt", user.SeeCaption(*form));
  EXPECT_EQ("Abbrechen", user.See(form->cmdCancel).Text);
  EXPECT_EQ("Mitteilung ...", user.See(form->lblMsg).Text);
  EXPECT_EQ("Fortschritt", form->prgBar.AccessibleName());
  form->Unload();
}

TEST_F(ProgressWindow, HasItsDesignedTextsWithoutAnEntryInTheLanguage) {
  CallLog log;
  RecordingLanguage language(log);
  language.Texts = {{"Progress", "Fortschritt"}};
  language.Entries = 0;
  const auto form = std::make_shared<frmProgress>(desktop());
  form->Language(&language);
  form->Load();
  EXPECT_EQ("Progress", form->Caption());
  EXPECT_EQ(0, form->HelpContextId());
  form->Unload();
}

TEST_F(ProgressWindow, IsCancelledWhenThePlatformTakesItAway) {
  progress->Show();
  Window().WindowLost();
  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(progress->CancelAction());
  progress->Value(7);
  EXPECT_EQ(7, progress->Value());
  // Loaded anew it can be cancelled anew.
  progress->Show();
  EXPECT_FALSE(progress->CancelAction());
  EXPECT_TRUE(user.See(Window().cmdCancel).Enabled);
}

}  // namespace
}  // namespace orx::test
