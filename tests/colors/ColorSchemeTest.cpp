// The window for colour schemes, of which only OK and Cancel act.
#include "datadialogs/frmManageColors.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

class ColorSchemes : public DesktopTest {
 protected:
  template <class Acts>
  bool Open(Acts acts, ILanguage* language = nullptr) {
    script.ExpectForm("frmManageColors", [this, acts](Form& shown) {
      form = dynamic_cast<frmManageColors*>(&shown);
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
    });
    return modMain::ShowColorsDialog(desktop(), language);
  }
  frmManageColors* form = nullptr;
};

TEST_F(ColorSchemes, OKAndCancelCloseTheWindowAndTheResultIsTrue) {
  EXPECT_TRUE(Open([this] { EXPECT_FALSE(form->Canceled()); }));
  EXPECT_TRUE(Open([this] {
    user.Click(form->cmdCancel);
    EXPECT_TRUE(form->Canceled());
  }));
  EXPECT_TRUE(Open([this] { user.CloseBox(*form); }));
}

TEST_F(ColorSchemes, OKAfterCancelIsNotCanceled) {
  const auto alone = std::make_shared<frmManageColors>(desktop());
  script.ExpectForm("frmManageColors", [&](Form&) { user.Press(*alone, kEscape); });
  alone->Show();
  EXPECT_TRUE(alone->Canceled());
  script.ExpectForm("frmManageColors", [&](Form&) { user.Click(alone->cmdOK); });
  alone->Show();
  EXPECT_FALSE(alone->Canceled());
}

TEST_F(ColorSchemes, ToolsListAndColorsDoNothing) {
  Open([this] {
    for (Button* const tool : {&form->cmdNew, &form->cmdSave, &form->cmdRemove, &form->cmdProperties}) {
      EXPECT_TRUE(user.See(*tool).Enabled);
      user.Click(*tool);
    }
    form->lstScheme.AddItem("Earth");
    form->lstScheme.AddItem("Sea");
    user.Choose(form->lstScheme, 1);
    EXPECT_EQ("Sea", user.See(form->lstScheme).Text);
    const Color before = form->BasicColor[0].BackColor();
    for (PictureBox& box : form->BasicColor) user.Click(box);
    EXPECT_EQ(before, form->BasicColor[0].BackColor());
    EXPECT_TRUE(form->Visible());
    EXPECT_FALSE(form->Canceled());
  });
  EXPECT_EQ(0, script.Beeps);
}

TEST_F(ColorSchemes, TheLanguageTranslatesAndGivesTheHelpNumber) {
  CallLog log;
  RecordingLanguage words(log);
  words.Texts = {{"_HelpMapColors", "305"}};
  Open(
      [this] {
        EXPECT_EQ(305, form->HelpContextId());
        EXPECT_EQ("<Color Scheme>", user.SeeCaption(*form));
      },
      &words);
}

TEST_F(ColorSchemes, WithoutEntriesTheDesignedCaptionsStay) {
  CallLog log;
  RecordingLanguage words(log);
  words.Entries = 0;
  for (ILanguage* const language : {static_cast<ILanguage*>(nullptr), static_cast<ILanguage*>(&words)})
    Open(
        [this] {
          EXPECT_EQ(0, form->HelpContextId());
          EXPECT_EQ("Color Scheme", user.SeeCaption(*form));
          EXPECT_EQ(" &Basic Colors ", form->fraBasicColor.Caption());
        },
        language);
}

TEST_F(ColorSchemes, AnErrorOfTheLanguageGivesFalse) {
  CallLog log;
  RecordingLanguage words(log);
  log.Failing = {"Language.TranslateForm"};
  EXPECT_FALSE(modMain::ShowColorsDialog(desktop(), &words));
}

TEST_F(ColorSchemes, PictureButtonsHaveNamesAndToolTips) {
  const auto alone = std::make_shared<frmManageColors>(desktop());
  for (const Button* const tool : {&alone->cmdNew, &alone->cmdSave, &alone->cmdRemove, &alone->cmdProperties}) {
    EXPECT_NE(nullptr, tool->Picture());
    EXPECT_NE("", tool->AccessibleName());
    EXPECT_NE("", tool->ToolTipText());
  }
}

}  // namespace
}  // namespace orx::test
