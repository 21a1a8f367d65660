// The page-host dialogs through the service: what the buttons do, call by call.
#include "tests/support/PageHostTest.h"

namespace orx::test {
namespace {

class PageHost : public PageHostTest {
 protected:
  PageHost() { service.CallBack(&callBack); }

  /// Shows the layer properties; the user acts with an empty list of calls.
  std::int32_t Show(const std::function<void(Form&)>& act) {
    script.ExpectForm("frmProperties", [this, act](Form& form) {
      log.Calls.clear();
      script.Pointers.clear();
      act(form);
    });
    return service.ShowProperties(&object);
  }
};

const std::vector<Pointer> kHourglassOnly{Pointer::Hourglass};
const std::vector<Pointer> kHourglassAndBack{Pointer::Hourglass, Pointer::Default};

TEST_F(PageHost, OKSavesNotifiesAndHides) {
  Calls calls;
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(form, "x");
    Press(form, "cmdOK");
    calls = NewCalls();
    EXPECT_FALSE(form.Visible());
    EXPECT_TRUE(form.IsLoaded());
  }));
  EXPECT_EQ((Calls{"Page.SaveChanges", "Page.IsDirty", "CallBack.OKNotify(True)"}), calls);
  EXPECT_EQ(kHourglassAndBack, script.Pointers);
}

TEST_F(PageHost, OKWithoutChangesReturnsZero) {
  EXPECT_EQ(0, Show([&](Form& form) { Press(form, "cmdOK"); }));
}

TEST_F(PageHost, ApplyAppliesNotifiesAndStaysOpen) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(form, "x");
    for (int press = 0; press < 2; ++press) {
      Press(form, "cmdApply");
      EXPECT_EQ((Calls{"Page.ApplyChanges", "Page.IsDirty", "CallBack.ApplyNotify(True)"}), NewCalls());
      EXPECT_TRUE(form.Visible());
    }
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
    Press(form, "cmdOK");
  }));
}

TEST_F(PageHost, CancelDiscardsNotifiesAndHidesWithoutAnHourglass) {
  Calls calls;
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(form, "x");
              Press(form, "cmdCancel");
              calls = NewCalls();
              EXPECT_FALSE(form.Visible());
            }));
  EXPECT_EQ((Calls{"Page.DiscardChanges", "Page.IsDirty", "CallBack.CancelNotify(False)"}), calls);
  EXPECT_TRUE(script.Pointers.empty());
}

TEST_F(PageHost, ApplyThenCancelReturnsZeroThoughTheObjectWasChanged) {
  Calls notes;
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(form, "x");
              Press(form, "cmdApply");
              Press(form, "cmdCancel");
              notes = NewCalls();
            }));
  std::erase_if(notes, [](const std::string& call) { return !call.starts_with("CallBack."); });
  EXPECT_EQ((Calls{"CallBack.ApplyNotify(True)", "CallBack.CancelNotify(True)"}), notes);
}

TEST_F(PageHost, EachNotificationCarriesTheDirtyStateOfItsMoment) {
  Calls notes;
  Show([&](Form& form) {
    Press(form, "cmdApply");
    Edit(form, "x");
    Press(form, "cmdApply");
    Press(form, "cmdCancel");
    notes = NewCalls();
  });
  std::erase_if(notes, [](const std::string& call) { return !call.starts_with("CallBack."); });
  EXPECT_EQ((Calls{"CallBack.ApplyNotify(False)", "CallBack.ApplyNotify(True)", "CallBack.CancelNotify(True)"}), notes);
}

TEST_F(PageHost, TheCloseBoxRunsNoButtonAndUnloads) {
  Calls calls;
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(form, "x");
              Press(form, "cmdApply");
              log.Calls.clear();
              user.CloseBox(form);
              calls = NewCalls();
              EXPECT_FALSE(form.IsLoaded());
            }));
  EXPECT_EQ(Calls{}, calls);
  // The page goes when nothing of the dialog runs any more.
  EXPECT_EQ((Calls{"Page.Gone"}), NewCalls());
}

TEST_F(PageHost, EnterPressesOKAndEscapePressesCancel) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(form, "x");
    user.Press(form, kEnter);
    EXPECT_FALSE(form.Visible());
  }));
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(form, "y");
              user.Press(form, kEscape);
              EXPECT_FALSE(form.Visible());
            }));
}

TEST_F(PageHost, TheWholeDialogWorksByKeyboard) {
  modMain::HelpFile("maps.hlp");
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(form, "x");
    std::vector<std::string> walk;
    for (int i = 0; i < 5; ++i) {
      user.Press(form, kTab);
      walk.push_back(form.ActiveControl()->Name());
    }
    EXPECT_EQ((std::vector<std::string>{"cmdHelp", "cmdOK", "cmdCancel", "cmdApply", "txtValue"}), walk);
    user.Press(form, AltKey(U'h'));
    EXPECT_EQ(1U, script.Helps.size());
    user.Press(form, AltKey(U'a'));
    EXPECT_EQ("CallBack.ApplyNotify(True)", log.Calls.back());
    user.Press(form, AltKey(U'o'));
    EXPECT_FALSE(form.Visible());
  }));
  Show([&](Form& form) {
    user.Press(form, AltKey(U'c'));
    EXPECT_FALSE(form.Visible());
  });
}

// Failures: the handler ends where the error was raised, the hourglass stays, the form is not hidden by the handler,
// and the service goes on to a result.

struct FailureCase {
  const char* Failing;
  const char* Button;
  Calls Expected;
  std::vector<Pointer> Pointers;
};

class PageHostFailure : public PageHost {};

TEST_F(PageHostFailure, AnErrorEndsTheHandlerAndLeavesTheRestUndone) {
  const FailureCase cases[] = {
      {"Page.ApplyChanges", "cmdApply", {"Page.ApplyChanges"}, kHourglassOnly},
      {"CallBack.ApplyNotify",
       "cmdApply",
       {"Page.ApplyChanges", "Page.IsDirty", "CallBack.ApplyNotify(False)"},
       kHourglassOnly},
      {"Page.SaveChanges", "cmdOK", {"Page.SaveChanges"}, kHourglassOnly},
      {"CallBack.OKNotify", "cmdOK", {"Page.SaveChanges", "Page.IsDirty", "CallBack.OKNotify(False)"}, kHourglassOnly},
      {"Page.DiscardChanges", "cmdCancel", {"Page.DiscardChanges"}, {}},
      {"CallBack.CancelNotify",
       "cmdCancel",
       {"Page.DiscardChanges", "Page.IsDirty", "CallBack.CancelNotify(False)"},
       {}},
  };
  for (const FailureCase& each : cases) {
    SCOPED_TRACE(each.Failing);
    bool visible = false;
    Calls calls;
    EXPECT_EQ(0, Show([&](Form& form) {
                log.Failing = {each.Failing};
                Press(form, each.Button);
                calls = NewCalls();
                visible = form.Visible();
                // The modal loop ends by itself; this keeps the script from closing the form.
                form.Hide();
              }));
    log.Failing.clear();
    EXPECT_EQ(each.Expected, calls);
    EXPECT_EQ(each.Pointers, script.Pointers);
    EXPECT_TRUE(visible);
    EXPECT_EQ((Calls{"Page.IsDirty", "Page.Gone"}), NewCalls());
  }
}

TEST_F(PageHostFailure, AFailingDirtyFlagCountsAsNotChanged) {
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(form, "x");
              Press(form, "cmdApply");
              service.CallBack(nullptr);
              log.Failing = {"Page.IsDirty"};
              Press(form, "cmdApply");
              form.Hide();
            }));
  EXPECT_EQ("Page.Gone", log.Calls.back());
}

TEST_F(PageHostFailure, AnErrorDuringApplyDoesNotUndoWhatWasChanged) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(form, "x");
    log.Failing = {"CallBack.ApplyNotify"};
    Press(form, "cmdApply");
    form.Hide();
  }));
}

}  // namespace
}  // namespace orx::test
