// The frame of the dialogs: the order of loading, what OK and Cancel do, refusals, colour boxes and busy scopes.
#include <limits>
#include <stdexcept>

#include "dialogframe/ColorBox.h"
#include "dialogframe/EditForm.h"
#include "dialogframe/Help.h"
#include "forms/BusyScope.h"
#include "forms/PictureBox.h"
#include "forms/Requests.h"
#include "hostobjects/ErrorTrap.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

using Calls = std::vector<std::string>;

/// A dialog whose every step is recorded; a test decides what a step does.
struct FrameForm final : EditForm {
  FrameForm(Desktop& desktop, CallLog& callLog)
      : EditForm(desktop, {.Name = "frmFrame", .Caption = "Frame", .HelpKey = "_HelpFrame", .Client = {6000, 3000}}),
        Log(callLog) {
    mColor.Chosen = [this](Color) { Log.Call("Chosen"); };
  }

  using EditForm::First;
  using EditForm::IsConfirmed;
  using EditForm::IsDirty;
  using EditForm::Refuse;
  using EditForm::Subject;

  TextBox txtValue{*this, "txtValue", {.Place = {120, 120, 3000, 330}, .AccessibleName = "Value"}};
  PictureBox pctColor{*this, "pctColor", {.Place = {120, 600, 1500, 360}}, Color{1, 2, 3}, PictureUse::Input};
  OKButton cmdOK{*this};
  CancelButton cmdCancel{*this};

  CallLog& Log;
  std::function<void()> WhileFilling;
  bool Passes = true;
  bool Stays = false;
  bool SkipsErrors = false;

 protected:
  void Arrange() override { Log.Call("Arrange"); }
  void TakeLanguage() override {
    Log.Call("TakeLanguage");
    EditForm::TakeLanguage();
  }
  void Fill() override {
    if (WhileFilling) WhileFilling();
    Log.Call("Fill");
  }
  void Ready() override { Log.Call("Ready"); }
  void LoadStep(const std::function<void()>& step) override {
    if (!SkipsErrors) return EditForm::LoadStep(step);
    ErrorTrap trap;
    trap.Step(step);
  }
  bool Check() override {
    Log.Call("Check");
    return Passes;
  }
  bool Save() override {
    Log.Call("Save");
    IsDirty(true);
    return !Stays;
  }
  void Discard() override {
    Log.Call("Discard");
    EditForm::Discard();
  }

 private:
  ColorBox mColor{pctColor};
};

class DialogFrame : public DesktopTest {
 protected:
  /// Shows the form; the user acts with an empty list of calls.
  void Show(const std::function<void()>& act) {
    script.ExpectForm("frmFrame", [this, act](Form&) {
      log.Calls.clear();
      script.Pointers.clear();
      act();
      if (form->Visible()) form->Hide();
    });
    form->Show();
  }
  Calls NewCalls() { return std::exchange(log.Calls, {}); }

  CallLog log;
  RecordingLanguage language{log};
  PlainObject object;
  std::shared_ptr<FrameForm> form = std::make_shared<FrameForm>(desktop(), log);
};

TEST_F(DialogFrame, LoadingGoesInItsOrder) {
  form->Language(&language);
  log.Calls.clear();
  form->Load();
  EXPECT_EQ((Calls{"Arrange", "TakeLanguage", "Language.TranslateText(_HelpFrame)", "Fill",
                   "Language.TranslateForm(frmFrame)", "Language.TranslateText(Frame)", "Ready"}),
            NewCalls());
  EXPECT_EQ("<Frame>", form->Caption());
}

TEST_F(DialogFrame, F1OpensTheTopicOfTheDialogFromAnyFieldThatHasNoUseForIt) {
  modMain::HelpFile("maps.hlp");
  Show([this] {
    user.ClickInto(form->txtValue);
    user.Press(*form, {Key::Help});
    EXPECT_EQ(0U, script.Helps.size());
    for (const std::int32_t number : {12, std::numeric_limits<std::int32_t>::min()}) {
      form->HelpContextId(number);
      user.Press(*form, {Key::Help});
      EXPECT_EQ(number, script.Helps.at(0).ContextId);
      EXPECT_EQ("maps.hlp", script.Helps.at(0).FileName);
      script.Helps.clear();
    }
    // A colour box takes any key for a click.
    int clicks = 0;
    form->pctColor.KeyDown = [&clicks](int) { ++clicks; };
    form->pctColor.SetFocus();
    user.Press(*form, {Key::Help});
    EXPECT_EQ(0U, script.Helps.size());
    clicks = 0;
    user.PressKey(*form, kKeyCodeF1);
    EXPECT_EQ(1, clicks);
    EXPECT_EQ(0U, script.Helps.size());
  });
}

TEST_F(DialogFrame, ALanguageMirrorsTheDialogWhileItIsActive) {
  language.IsMirrored = true;
  form->Language(&language);
  form->Load();
  EXPECT_TRUE(form->RightToLeft());
  form->Unload();
  language.Entries = 0;
  form->Language(&language);
  form->Load();
  EXPECT_FALSE(form->RightToLeft());
}

TEST_F(DialogFrame, AFormThatUnloadsItselfAsItIsFilledSkipsTheRest) {
  form->Language(&language);
  log.Calls.clear();
  form->WhileFilling = [this] { form->Unload(); };
  form->Load();
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ((Calls{"Arrange", "TakeLanguage", "Language.TranslateText(_HelpFrame)", "Fill"}), NewCalls());
}

TEST_F(DialogFrame, AnErrorEndsTheLoading) {
  log.Failing = {"Fill"};
  EXPECT_THROW(form->Load(), RunTimeError);
  EXPECT_EQ((Calls{"Arrange", "TakeLanguage", "Fill"}), NewCalls());
}

TEST_F(DialogFrame, ADialogMayGoOnBehindAFailingStep) {
  form->SkipsErrors = true;
  log.Failing = {"Arrange", "Fill"};
  form->Load();
  EXPECT_EQ((Calls{"Arrange", "TakeLanguage", "Fill", "Ready"}), NewCalls());
}

TEST_F(DialogFrame, UnloadingForgetsTheLanguage) {
  form->Language(&language);
  form->Load();
  form->Unload();
  log.Calls.clear();
  form->Load();
  EXPECT_EQ((Calls{"Arrange", "TakeLanguage", "Fill", "Ready"}), NewCalls());
}

TEST_F(DialogFrame, OKAndCancelStandInTheLowerRightCorner) {
  EXPECT_EQ((Rect{2775, 2505, 1500, 375}), form->cmdOK.Place());
  EXPECT_EQ((Rect{4380, 2505, 1500, 375}), form->cmdCancel.Place());
  EXPECT_EQ(&form->cmdOK, form->ButtonFor(ButtonRole::Default));
  EXPECT_EQ(&form->cmdCancel, form->ButtonFor(ButtonRole::Cancel));
}

TEST_F(DialogFrame, OKChecksSavesUnderTheHourglassAndHides) {
  Show([this] {
    user.Click(form->cmdOK);
    EXPECT_EQ((Calls{"Check", "Save"}), NewCalls());
    EXPECT_EQ((std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}), script.Pointers);
  });
  EXPECT_TRUE(form->IsConfirmed());
  EXPECT_FALSE(form->Canceled());
  EXPECT_TRUE(form->IsDirty());
  EXPECT_TRUE(form->IsLoaded());
}

TEST_F(DialogFrame, ARefusedCheckSavesNothing) {
  form->Passes = false;
  Show([this] {
    user.Click(form->cmdOK);
    EXPECT_EQ(Calls{"Check"}, NewCalls());
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(script.Pointers.empty());
  });
  EXPECT_FALSE(form->IsConfirmed());
}

TEST_F(DialogFrame, ASaveThatDoesNotSucceedKeepsTheFormOpen) {
  form->Stays = true;
  Show([this] {
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    EXPECT_FALSE(form->IsConfirmed());
  });
}

TEST_F(DialogFrame, CancelDiscardsAndHides) {
  Show([this] {
    form->IsDirty(true);
    user.Click(form->cmdCancel);
    EXPECT_EQ(Calls{"Discard"}, NewCalls());
    EXPECT_TRUE(script.Pointers.empty());
  });
  EXPECT_TRUE(form->Canceled());
  EXPECT_FALSE(form->IsDirty());
}

TEST_F(DialogFrame, AnOutcomeLastsUntilTheFormIsLoadedAgain) {
  Show([this] { user.Click(form->cmdCancel); });
  form->Unload();
  EXPECT_TRUE(form->Canceled());
  form->Load();
  EXPECT_FALSE(form->Canceled());
}

TEST_F(DialogFrame, UnloadingForgetsTheObjectAndItsChange) {
  form->Subject(&object);
  Show([this] { user.Click(form->cmdOK); });
  EXPECT_EQ(&object, form->Subject());
  form->Unload();
  EXPECT_EQ(nullptr, form->Subject());
  EXPECT_FALSE(form->IsDirty());
}

/// Answers a message, and records when it was shown.
class MessageWatch final : public DesktopHook {
 public:
  MessageWatch(CallLog& log, User& user) : mLog(log), mUser(user) {}
  void ModalRunning(const Modal& modal) override {
    mLog.Call("Message(" + modal.ShownMessage->Text + ")");
    mUser.AnswerMessage(modal, MessageAnswer::OK);
  }

 private:
  CallLog& mLog;
  User& mUser;
};

TEST_F(DialogFrame, ARefusalShowsItsMessageAndMovesTheFocusInEitherOrder) {
  Show([this] {
    form->txtValue.GotFocus = [this] { log.Call("Focus"); };
    MessageWatch watch(log, user);
    desktop().Hook(&watch);
    const Message message{"No.", "Wrong", MessageIcon::Exclamation};
    form->cmdOK.SetFocus();
    EXPECT_FALSE(form->Refuse(message, form->txtValue));
    EXPECT_EQ((Calls{"Message(No.)", "Focus"}), NewCalls());
    form->cmdOK.SetFocus();
    EXPECT_FALSE(form->Refuse(message, form->txtValue, FrameForm::First::Focus));
    EXPECT_EQ((Calls{"Focus", "Message(No.)"}), NewCalls());
    desktop().Hook(&script);
  });
}

TEST_F(DialogFrame, AColorBoxTellsOfAnotherColorOnly) {
  Show([this] {
    script.ExpectColor([this](ColorRequest& request) {
      EXPECT_EQ((Color{1, 2, 3}), request.Color);
      EXPECT_EQ(kStartFromColor, request.Flags);
      user.PickColor(request, {1, 2, 3});
    });
    user.Click(form->pctColor);
    EXPECT_EQ(Calls{}, NewCalls());
    script.ExpectColor([this](ColorRequest& request) { user.PickColor(request, {9, 8, 7}); });
    user.Click(form->pctColor);
    EXPECT_EQ(Calls{"Chosen"}, NewCalls());
    EXPECT_EQ((Color{9, 8, 7}), form->pctColor.BackColor());
  });
}

TEST(BusyScopes, RestoreTheFlagAlsoWhenTheyAreNestedOrLeftByAnError) {
  bool isBusy = false;
  {
    const BusyScope outer(isBusy);
    { const BusyScope inner(isBusy); }
    EXPECT_TRUE(isBusy);
  }
  EXPECT_FALSE(isBusy);
  const auto fail = [&] {
    const BusyScope scope(isBusy);
    throw std::runtime_error("while busy");
  };
  EXPECT_THROW(fail(), std::runtime_error);
  EXPECT_FALSE(isBusy);
}

}  // namespace
}  // namespace orx::test
