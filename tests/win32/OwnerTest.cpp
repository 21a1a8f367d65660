// Which windows of the host stand behind a dialog, that they are disabled while it is modal, and that they come back
// whatever happens.
#include <windows.h>

#include <commctrl.h>

#include <iterator>
#include <stdexcept>
#include <string_view>

#include "forms/Requests.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32Owner : public Win32FormsTest {
 protected:
  bool IsHostEnabled() const { return IsWindowEnabled(host.Get()) && IsWindowEnabled(other.Get()); }
  bool IsHostDisabled() const { return !IsWindowEnabled(host.Get()) && !IsWindowEnabled(other.Get()); }
  /// As when the user is in another program.
  static void GoToTheBackground() {
    SetActiveWindow(nullptr);
    ASSERT_FALSE(GetActiveWindow());
  }

  const HostWindow host;
  const HostWindow other;
};

TEST_F(Win32Owner, TheDialogForFilesWithoutOwnerDisablesTheWindowsOfTheHost) {
  GoToTheBackground();
  OpenFileRequest request;
  request.Buffer = std::string(1000, '\0');
  bool wasDisabled = false;
  script.ExpectFiles([&](OpenFileRequest& shown) {
    wasDisabled = IsHostDisabled();
    user.CancelFiles(shown);
  });
  desktop().OpenFiles(request);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, TheDialogForColorsWithoutOwnerDisablesTheWindowsOfTheHost) {
  GoToTheBackground();
  ColorRequest request;
  bool wasDisabled = false;
  script.ExpectColor([&](ColorRequest& shown) {
    wasDisabled = IsHostDisabled();
    user.CancelColor(shown);
  });
  desktop().ChooseColor(request);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, TheDialogForFontsWithoutOwnerDisablesTheWindowsOfTheHost) {
  GoToTheBackground();
  FontRequest request;
  bool wasDisabled = false;
  script.ExpectFont([&](FontRequest& shown) {
    wasDisabled = IsHostDisabled();
    user.CancelFont(shown);
  });
  desktop().ChooseFont(request);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, AnErrorOfTheHookInTheDialogForFilesGivesTheHostItsWindowsBack) {
  OpenFileRequest request;
  request.Buffer = std::string(1000, '\0');
  script.ExpectFiles([](OpenFileRequest&) { throw std::runtime_error("hook"); });
  EXPECT_THROW(desktop().OpenFiles(request), std::runtime_error);
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, AModalFormInTheBackgroundStandsBeforeTheForemostWindow) {
  SetWindowPos(other.Get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  GoToTheBackground();
  script.ExpectForm("frmSample", [&](Form& shown) {
    EXPECT_EQ(other.Get(), GetWindow(WindowOf(shown), GW_OWNER));
    EXPECT_TRUE(IsHostDisabled());
    user.CloseBox(shown);
  });
  form->Show();
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, AMessageInTheBackgroundStandsBeforeTheForemostWindow) {
  GoToTheBackground();
  const Message message{"Text", "Title", MessageIcon::None};
  script.ExpectMessage(message);
  script.WhenMessageIsUp = [&] { EXPECT_TRUE(IsHostDisabled()); };
  desktop().ShowMessage(message);
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, AModelessFormWithoutOwnerHasNone) {
  SetActiveWindow(host.Get());
  form->Show(ShowMode::Modeless);
  EXPECT_FALSE(GetWindow(WindowOf(*form), GW_OWNER));
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, AnErrorInAHandlerGivesTheHostItsWindowsBackBeforeShowReturns) {
  form->cmdOK.Click = [] { throw std::runtime_error("handler"); };
  script.LoopEndsByError = true;
  script.ExpectForm("frmSample", [&](Form&) { user.Click(form->cmdOK); });
  EXPECT_THROW(form->Show(), std::runtime_error);
  EXPECT_FALSE(IsWindowVisible(WindowOf(*form)));
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, ADisabledFormWhoseOwnerIsDestroyedIsUnloaded) {
  HostWindow brief;
  script.ExpectForm("frmSample", [&](Form& shown) {
    shown.Enabled(false);
    brief.Destroy();
    EXPECT_FALSE(shown.Visible());
    EXPECT_FALSE(shown.IsLoaded());
  });
  form->Show(ShowMode::Modal, brief.AsOwner());
  form->Enabled(true);
  EXPECT_TRUE(IsHostEnabled());
}

/// Refuses one window of the thread, as hooks of security programs do.
class Refusal {
 public:
  explicit Refusal(int which) : mHook(SetWindowsHookExW(WH_CBT, &Refusal::See, nullptr, GetCurrentThreadId())) {
    theCountdown = which;
  }
  ~Refusal() { UnhookWindowsHookEx(mHook); }
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;

  /// Fewer windows were asked for.
  static bool HasRefusedNone() { return theCountdown >= 0; }

 private:
  static LRESULT CALLBACK See(int code, WPARAM wParam, LPARAM lParam) {
    // A tab control makes the arrows beside its tabs, and does without them.
    wchar_t name[20] = {};
    GetClassNameW(reinterpret_cast<HWND>(wParam), name, static_cast<int>(std::size(name)));
    const bool isArrows = std::wstring_view(name) == UPDOWN_CLASSW;
    if (code == HCBT_CREATEWND && !isArrows && theCountdown-- == 0) return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline int theCountdown = 0;
  HHOOK mHook;
};

TEST_F(Win32Owner, AWindowThatCannotBeMadeIsAnErrorAndLeavesNothingBehind) {
  int refused = 0;
  for (bool isComplete = false; !isComplete && refused < 200;) {
    Events log;
    const auto lone = std::make_shared<SampleForm>(desktop(), log);
    std::string reason;
    {
      const Refusal refusal(refused);
      try {
        lone->Show(ShowMode::Modeless);
      } catch (const std::runtime_error& error) {
        reason = error.what();
      }
      isComplete = Refusal::HasRefusedNone();
    }
    EXPECT_EQ(isComplete, reason.empty()) << "window " << refused;
    EXPECT_EQ(isComplete, lone->Visible()) << "window " << refused;
    EXPECT_TRUE(IsHostEnabled());
    // The controls know of no window.
    lone->txtName.Text("later");
    lone->Unload();
    ++refused;
  }
  EXPECT_GT(refused, 10);
}

TEST_F(Win32Owner, AModalFormThatGetsNoWindowReturnsAtOnceWithAnError) {
  const Refusal refusal(0);
  EXPECT_THROW(form->Show(), std::runtime_error);
  EXPECT_FALSE(form->Visible());
  EXPECT_TRUE(IsHostEnabled());
}

TEST_F(Win32Owner, WhatClosesAllWindowsFromOutsideClosesNoFormBehindAMessage) {
  const Message message{"Text", "Title", MessageIcon::None};
  form->cmdOK.Click = [&] { desktop().ShowMessage(message); };
  script.ExpectForm("frmSample", [&](Form& shown) {
    script.ExpectMessage(message);
    script.WhenMessageIsUp = [&] {
      PostMessageW(WindowOf(shown), WM_CLOSE, 0, 0);
      desktop().ProcessPendingEvents();
      EXPECT_TRUE(shown.Visible());
    };
    user.Click(form->cmdOK);
    EXPECT_TRUE(shown.IsLoaded());
    PostMessageW(WindowOf(shown), WM_CLOSE, 0, 0);
    desktop().ProcessPendingEvents();
    EXPECT_FALSE(shown.Visible());
  });
  form->Show();
}

TEST_F(Win32Owner, WhatClosesAllWindowsFromOutsideClosesNoFormBehindAnother) {
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  form->cmdOK.Click = [&] { inner->Show(); };
  script.ExpectForm("frmSample", [&](Form& outer) {
    script.ExpectForm("frmSample", [&](Form& shown) {
      PostMessageW(WindowOf(outer), WM_CLOSE, 0, 0);
      desktop().ProcessPendingEvents();
      EXPECT_TRUE(outer.Visible());
      user.CloseBox(shown);
    });
    user.Click(form->cmdOK);
    EXPECT_TRUE(outer.Visible());
    user.CloseBox(outer);
  });
  form->Show();
}

/// The windows below one that the system's news has reached, and the message that brings it.
int theTold = 0;
UINT theNews = 0;
LRESULT CALLBACK CountNews(int code, WPARAM wParam, LPARAM lParam) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  const bool isChild = (GetWindowLongPtrW(sent.hwnd, GWL_STYLE) & WS_CHILD) != 0;
  if (code == HC_ACTION && sent.message == theNews && isChild) ++theTold;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(Win32Owner, TheControlsAreToldOfNewColorsThemesAndSettingsAndPaintedAgain) {
  ShowForm();
  for (const UINT news : {WM_SYSCOLORCHANGE, WM_THEMECHANGED, WM_SETTINGCHANGE}) {
    UpdateWindow(WindowOf(*form));
    ASSERT_FALSE(GetUpdateRect(WindowOf(*form), nullptr, FALSE));
    theTold = 0;
    theNews = news;
    const HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, &CountNews, nullptr, GetCurrentThreadId());
    Send(WindowOf(*form), news);
    UnhookWindowsHookEx(hook);
    EXPECT_GE(theTold, static_cast<int>(form->All().size())) << news;
    EXPECT_TRUE(GetUpdateRect(WindowOf(*form), nullptr, FALSE)) << news;
    EXPECT_TRUE(GetUpdateRect(WindowOf(form->cmdOK), nullptr, FALSE)) << news;
  }
}

}  // namespace
}  // namespace orx::test
