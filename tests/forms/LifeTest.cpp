// From Load to Unload: modal and modeless showing, the close box, errors of handlers, and the place on the screen.
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

using FormsLife = FormsTest;

TEST_F(FormsLife, ShowLoadsOnceAndResizesBeforeTheFirstShowing) {
  form->Load();
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(1, form->Loads);
  EXPECT_EQ(1, form->Resizes);
}

TEST_F(FormsLife, AModalFormReturnsWhenItHides) {
  form->cmdOK.Click = [this] { form->Hide(); };
  script.ExpectForm("frmSample", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_FALSE(form->Visible());
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_EQ(0, form->Unloads);
}

TEST_F(FormsLife, AHiddenFormKeepsItsStateAndShowsAgain) {
  form->cmdOK.Click = [this] { form->Hide(); };
  script.ExpectForm("frmSample", [this](Form&) {
    user.Type(form->txtName, "kept");
    user.Click(form->cmdOK);
  });
  form->Show();
  script.ExpectForm("frmSample", [this](Form&) {
    EXPECT_EQ("kept", user.See(form->txtName).Text);
    user.Click(form->cmdOK);
  });
  form->Show();
  EXPECT_EQ(1, form->Loads);
}

TEST_F(FormsLife, TheCloseBoxUnloadsAndRunsNoButton) {
  script.ExpectForm("frmSample", [this](Form& shown) {
    events.clear();
    user.CloseBox(shown);
  });
  form->Show();
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(1, form->Unloads);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsLife, AnUnloadedFormLoadsAgain) {
  ShowForm();
  form->Unload();
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(2, form->Loads);
  EXPECT_TRUE(user.See(form->txtName).Visible);
}

TEST_F(FormsLife, AButtonMayUnloadItsForm) {
  form->cmdOK.Click = [this] { form->Unload(); };
  script.ExpectForm("frmSample", [this](Form&) { user.Click(form->cmdOK); });
  form->Show();
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(FormsLife, AModelessFormStaysAliveUntilItIsClosed) {
  Events log;
  auto lone = std::make_shared<SampleForm>(desktop(), log);
  lone->Show(ShowMode::Modeless);
  const std::weak_ptr<SampleForm> watch = lone;
  SampleForm& shown = *lone;
  lone.reset();
  ASSERT_FALSE(watch.expired());
  EXPECT_TRUE(shown.Visible());
  user.CloseBox(shown);
  EXPECT_TRUE(watch.expired());
}

TEST_F(FormsLife, AModelessFormThatItsButtonHidesIsLetGo) {
  Events log;
  auto lone = std::make_shared<SampleForm>(desktop(), log);
  SampleForm& shown = *lone;
  shown.cmdOK.Click = [&shown] { shown.Hide(); };
  lone->Show(ShowMode::Modeless);
  const std::weak_ptr<SampleForm> watch = lone;
  lone.reset();
  user.Click(shown.cmdOK);
  EXPECT_TRUE(watch.expired());
}

TEST_F(FormsLife, AModalFormOpensOverAnother) {
  Events log;
  auto inner = std::make_shared<SampleForm>(desktop(), log);
  inner->cmdOK.Click = [&] { inner->Hide(); };
  form->cmdOK.Click = [this] { form->Hide(); };
  form->chkShow.Click = [&] { inner->Show(ShowMode::Modal, {form.get(), 0}); };
  script.ExpectForm("frmSample", [&](Form&) {
    script.ExpectForm("frmSample", [&](Form& shown) {
      EXPECT_EQ(inner.get(), &shown);
      user.Click(inner->cmdOK);
    });
    user.Toggle(form->chkShow);
    EXPECT_TRUE(form->Visible());
    user.Click(form->cmdOK);
  });
  form->Show();
  inner->Unload();
}

TEST_F(FormsLife, AnErrorInAHandlerReachesTheCallerOfShow) {
  form->cmdOK.Click = [] { throw std::runtime_error("handler"); };
  script.ExpectForm("frmSample", [this](Form& shown) {
    user.Click(form->cmdOK);
    EXPECT_TRUE(shown.Visible());
    shown.Hide();
  });
  EXPECT_THROW(form->Show(), std::runtime_error);
}

TEST_F(FormsLife, AFormWhoseHandlerHasFailedIsGoneWhenShowReturns) {
  form->cmdOK.Click = [] { throw std::runtime_error("handler"); };
  script.LoopEndsByError = true;
  script.ExpectForm("frmSample", [this](Form&) { user.Click(form->cmdOK); });
  EXPECT_THROW(form->Show(), std::runtime_error);
  EXPECT_FALSE(form->Visible()) << "It would keep the user from the windows behind it.";
}

TEST_F(FormsLife, AnErrorAsAFormTakesTheFocusReachesTheCallerOfItsOwnShow) {
  form->chkShow.Click = [&] {
    Events log;
    const auto inner = std::make_shared<SampleForm>(desktop(), log);
    inner->txtName.GotFocus = [] { throw std::runtime_error("handler"); };
    EXPECT_THROW(inner->Show(), std::runtime_error);
    EXPECT_FALSE(inner->Visible());
  };
  script.ExpectForm("frmSample", [this](Form& shown) {
    user.Toggle(form->chkShow);
    EXPECT_TRUE(shown.Visible());
    user.CloseBox(shown);
  });
  form->Show();
}

TEST_F(FormsLife, AnErrorInAModelessFormIsShown) {
  form->cmdOK.Click = [] { throw std::runtime_error("No such layer"); };
  ShowForm();
  script.ExpectMessage({"No such layer", "Sample", MessageIcon::Critical});
  user.Click(form->cmdOK);
  EXPECT_TRUE(form->Visible());
}

TEST_F(FormsLife, ShowingAShownFormIsAnError) {
  ShowForm();
  EXPECT_THROW(form->Show(), std::logic_error);
}

TEST_F(FormsLife, TheCaptionFollowsWhileShown) {
  ShowForm();
  EXPECT_EQ("Sample", user.SeeCaption(*form));
  form->Caption("Straße & Weg");
  EXPECT_EQ("Straße & Weg", user.SeeCaption(*form));
}

TEST_F(FormsLife, CenterPutsTheWindowInTheMiddleOfTheScreen) {
  form->Center();
  const Size screen = desktop().Metrics(BorderStyle::Fixed).Screen;
  EXPECT_EQ((screen.Width - form->Width()) / 2, form->Left());
  EXPECT_EQ((screen.Height - form->Height()) / 2, form->Top());
}

TEST_F(FormsLife, AWindowOffTheScreenIsBroughtBack) {
  form->Move(-90000, 900000);
  form->Show(ShowMode::Modeless);
  const Rect area = desktop().Metrics(BorderStyle::Fixed).WorkArea;
  EXPECT_EQ(area.Left, form->Left());
  EXPECT_EQ(area.Bottom() - form->Height(), form->Top());
}

TEST_F(FormsLife, AFormHigherThanTheScreenIsCutToIt) {
  form->ClientSize({6000, 99000});
  const ScreenMetrics screen = desktop().Metrics(BorderStyle::Fixed);
  EXPECT_EQ(screen.WorkArea.Height, form->Height());
  EXPECT_EQ(6000, form->ShownClientSize().Width);
  form->Show(ShowMode::Modeless);
  EXPECT_TRUE(user.See(form->cmdOK).Visible);
}

TEST_F(FormsLife, SizingAShownFormRaisesResize) {
  ShowForm();
  form->ClientSize({6000, 5700});
  EXPECT_EQ(2, form->Resizes);
}

TEST_F(FormsLife, AFormThatGoesWhileItIsShownTakesItsWindowAlong) {
  Events log;
  {
    const auto owner = std::make_shared<SampleForm>(desktop(), log);
    owner->Show(ShowMode::Modeless);
    owner->Hide();
  }
  ShowForm();
  EXPECT_TRUE(user.See(form->txtName).Visible);
}

}  // namespace
}  // namespace orx::test
