// Dialogs whose page is a registered control: the same calls and outcomes as with an embedded page.
#include "tests/com/pagecontrols/PageControlTest.h"
#include "com/HostedControl.h"

#include "desktops/win32/GuestScope.h"
#include "forms/NativeArea.h"

namespace orx::test {
namespace {

TEST_F(PageControlTest, ThePageIsGivenLanguageAndObjectAndRefreshedBeforeItIsShown) {
  Show([&](Form& form) { Press(form, "cmdCancel"); });
  EXPECT_EQ((Calls{"Page.Language(none)", "Page.Client(object)", "CallBack.RegisterNotify", "Page.RefreshContents",
                   "Control.Activate"}),
            before);
}

TEST_F(PageControlTest, OKWritesWhatWasEdited) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(L"Hills");
    Press(form, "cmdOK");
  }));
  EXPECT_EQ("Hills", object.Name());
}

TEST_F(PageControlTest, CancelDiscardsWhatWasEdited) {
  EXPECT_EQ(0, Show([&](Form& form) {
              Edit(L"Hills");
              Press(form, "cmdCancel");
            }));
  EXPECT_EQ("Relief", object.Name());
}

TEST_F(PageControlTest, ApplyWritesAndTellsTheCallBackOfTheControlsDirtyFlag) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    Edit(L"Hills");
    Press(form, "cmdApply");
    EXPECT_EQ((Calls{"Page.ApplyChanges", "Page.IsDirty", "CallBack.ApplyNotify(True)"}), log.Calls);
    Press(form, "cmdOK");
  }));
}

TEST_F(PageControlTest, TheControlIsGoneWithTheDialog) {
  Show([&](Form& form) {
    EXPECT_EQ(1, state.Alive);
    Press(form, "cmdOK");
  });
  EXPECT_EQ(0, state.Alive);
  EXPECT_EQ("Page.Gone", log.Calls.back());
}

TEST_F(PageControlTest, TheControlIsGoneAfterTheCloseBox) {
  EXPECT_EQ(0, Show([&](Form& form) { user.CloseBox(form); }));
  EXPECT_EQ(0, state.Alive);
}

TEST_F(PageControlTest, TheControlIsSizedWithItsArea) {
  Show([&](Form& form) {
    auto& area = dynamic_cast<NativeArea&>(*form.Find("Properties1"));
    const Rect place = area.Place();
    area.Place({place.Left, place.Top, 3000, 1500});
    RECT client;
    GetClientRect(Page().Window(), &client);
    EXPECT_EQ(desktop().ToPixels(1500), client.bottom);
    Press(form, "cmdOK");
  });
}

TEST_F(PageControlTest, TabWalksIntoTheControlThroughItAndOut) {
  Show([&](Form& form) {
    std::vector<HWND> walk;
    EXPECT_EQ("Properties1", form.ActiveControl()->Name());
    EXPECT_EQ(Page().First(), GetFocus());
    for (int i = 0; i < 2; ++i) {
      user.Press(form, kTab);
      walk.push_back(GetFocus());
    }
    EXPECT_EQ((std::vector<HWND>{Page().Second(), Page().Button()}), walk);
    user.Press(form, kTab);
    EXPECT_EQ("cmdHelp", form.ActiveControl()->Name());
    user.Press(form, kShiftTab);
    EXPECT_EQ("Properties1", form.ActiveControl()->Name());
    EXPECT_EQ(Page().Button(), GetFocus());
    Press(form, "cmdOK");
  });
}

TEST_F(PageControlTest, AClickIntoTheControlTakesTheFocusFromTheForm) {
  Show([&](Form& form) {
    form.MoveFocus(*form.Find("cmdHelp"));
    SetFocus(Page().Second());
    EXPECT_EQ("Properties1", form.ActiveControl()->Name());
    EXPECT_EQ(Page().Second(), GetFocus());
    Press(form, "cmdOK");
  });
}

TEST_F(PageControlTest, TheFocusComesBackToItsFieldWithTheDialog) {
  const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  Show([&](Form& form) {
    const HWND dialog = GetAncestor(GetFocus(), GA_ROOT);
    SetFocus(Page().Second());
    SetActiveWindow(other);
    EXPECT_NE(Page().Second(), GetFocus());
    SetActiveWindow(dialog);
    EXPECT_EQ(Page().Second(), GetFocus());
    Press(form, "cmdOK");
  });
  DestroyWindow(other);
}

TEST_F(PageControlTest, EnterInAFieldOfTheControlPressesOK) {
  EXPECT_EQ(-1, Show([&](Form& form) {
    SetFocus(Page().First());
    Edit(L"Hills");
    user.Press(form, kEnter);
    EXPECT_FALSE(form.Visible());
  }));
}

TEST_F(PageControlTest, AKeyThatTheControlHasUsedGoesNoFurther) {
  Show([&](Form& form) {
    SetFocus(Page().First());
    Page().Accelerator = [](const MSG& message) { return message.wParam == VK_DELETE; };
    SendMessageW(Page().First(), EM_SETSEL, 0, -1);
    PostMessageW(Page().First(), WM_KEYDOWN, VK_DELETE, 1);
    desktop().ProcessPendingEvents();
    EXPECT_EQ(6, GetWindowTextLengthW(Page().First()));
    Page().Accelerator = {};
    PostMessageW(Page().First(), WM_KEYDOWN, VK_DELETE, 1);
    desktop().ProcessPendingEvents();
    EXPECT_EQ(0, GetWindowTextLengthW(Page().First()));
    Press(form, "cmdCancel");
  });
}

TEST_F(PageControlTest, TheMembersOfAControlAreCalledInTheSurroundingsOfTheHost) {
  const DPI_AWARENESS_CONTEXT before = SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_UNAWARE);
  std::set<int> seen;
  log.WhenCalled = [&] { seen.insert(GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext())); };
  Show([&](Form& form) {
    const win32::GuestScope guest;
    Edit(L"Hills");
    Press(form, "cmdApply");
    Press(form, "cmdOK");
  });
  SetThreadDpiAwarenessContext(before);
  EXPECT_EQ(std::set<int>{DPI_AWARENESS_UNAWARE}, seen);
}

TEST_F(PageControlTest, EscapeInTheControlPressesCancel) {
  EXPECT_EQ(0, Show([&](Form& form) {
              user.Press(form, kEscape);
              EXPECT_FALSE(form.Visible());
            }));
}

TEST_F(PageControlTest, AControlThatIsNotRegisteredLeavesTheEmbeddedPage) {
  registered.reset();
  EXPECT_EQ(-1, Show([&](Form& form) {
    user.Type(dynamic_cast<TextBox&>(*form.Find("txtValue")), "x");
    Press(form, "cmdOK");
  }));
  EXPECT_EQ("Pages.CreatePage(Properties, Properties1)", before.front());
}

TEST_F(PageControlTest, ABrokenControlIsToldOfOnceAndTheEmbeddedPageServes) {
  registeredClass.reset();
  const std::string reason = [] {
    try {
      com::HostedControl control(kTestPageControl);
    } catch (const RunTimeError& error) {
      return std::string(error.what());
    }
    return std::string();
  }();
  ASSERT_NE(std::string::npos, reason.find("0x80040154"));
  script.ExpectMessage({"The page control OrvexMapControls.Properties cannot be used. " + reason +
                            "\n\nThe built-in page is shown instead. Install the control again to have its own.",
                        "Layer Properties", MessageIcon::Exclamation});
  Show([&](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ("Pages.CreatePage(Properties, Properties1)", before.front());
  Show([&](Form& form) { Press(form, "cmdOK"); });
}

TEST_F(PageControlTest, AControlThatDoesNotShowItselfLeavesItsReasonInItsPlace) {
  state.ShowResult = E_ACCESSDENIED;
  EXPECT_EQ(0, Show([&](Form& form) {
              wchar_t text[400] = {};
              GetWindowTextW(GetFocus(), text, 400);
              EXPECT_NE(nullptr, wcsstr(text, L"OrvexMapControls.Properties"));
              EXPECT_NE(nullptr, wcsstr(text, L"0x80070005"));
              Press(form, "cmdOK");
            }));
}

TEST_F(PageControlTest, AnObjectOfTheProgramsOwnIsNotHandedOver) {
  PlainObject plain;
  script.ExpectForm("frmProperties", [&](Form& form) { Press(form, "cmdOK"); });
  EXPECT_EQ(0, service.ShowProperties(&plain));
  EXPECT_EQ(0, std::count(log.Calls.begin(), log.Calls.end(), "Page.Client(object)"));
}

/// The result of one dialog and all that page and call-back were asked for.
struct Outcome {
  std::int32_t Result;
  bool Visible;
  Calls Asked;
  bool operator==(const Outcome&) const = default;
};

class PageControlFailure : public PageControlTest {
 protected:
  Outcome Try(const std::string& failing, const std::string& button) {
    Outcome outcome = {};
    log.Failing = {failing};
    outcome.Result = Show([&](Form& form) {
      Press(form, button);
      outcome.Visible = form.Visible();
      form.Hide();
    });
    outcome.Asked = before;
    outcome.Asked.insert(outcome.Asked.end(), log.Calls.begin(), log.Calls.end());
    std::erase_if(outcome.Asked,
                  [](const std::string& call) { return call.starts_with("Control.") || call.starts_with("Pages."); });
    log.Calls.clear();
    return outcome;
  }
};

TEST_F(PageControlFailure, AFailingMemberComesToTheSameEndAsInAnEmbeddedPage) {
  const std::pair<const char*, const char*> cases[] = {
      {"Page.Language", "cmdOK"},    {"Page.Client", "cmdOK"},          {"Page.RefreshContents", "cmdOK"},
      {"Page.SaveChanges", "cmdOK"}, {"Page.ApplyChanges", "cmdApply"}, {"Page.DiscardChanges", "cmdCancel"},
      {"Page.IsDirty", "cmdOK"},
  };
  for (const auto& [failing, button] : cases) {
    SCOPED_TRACE(failing);
    const Outcome hosted = Try(failing, button);
    registered.reset();
    EXPECT_EQ(Try(failing, button), hosted);
    EXPECT_EQ(0, hosted.Result);
    EXPECT_NE(hosted.Asked.end(), std::find(hosted.Asked.begin(), hosted.Asked.end(), "Page.Gone"));
    registered.emplace("OrvexMapControls.Properties");
  }
}

}  // namespace
}  // namespace orx::test
