// The border between the library and its host: windows are made and measured in the library's surroundings, and all
// code of the host runs in its own, however aware the host is of the screen's dpi.
#include <array>

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Text.h"
#include "forms/NativeArea.h"
#include "griddialogs/frmDataShade.h"
#include "tests/support/PageHostTest.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {
namespace {

/// The awareness of a thread, and whether its look is that of the process.
struct Contexts {
  int Awareness = 0;
  HANDLE Look = nullptr;

  static Contexts Now() {
    Contexts now;
    now.Awareness = GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext());
    GetCurrentActCtx(&now.Look);
    if (now.Look) ReleaseActCtx(now.Look);
    return now;
  }
  bool operator==(const Contexts&) const = default;
};

constexpr int kUnaware = -1;
constexpr int kSystemAware = -2;
constexpr int kPerMonitorAware = -3;

/// A thread of a host with that awareness.
class AwareThread {
 public:
  explicit AwareThread(int context)
      : mBefore(SetThreadDpiAwarenessContext(reinterpret_cast<DPI_AWARENESS_CONTEXT>(static_cast<INT_PTR>(context)))) {}
  ~AwareThread() { SetThreadDpiAwarenessContext(mBefore); }
  AwareThread(const AwareThread&) = delete;
  AwareThread& operator=(const AwareThread&) = delete;

 private:
  DPI_AWARENESS_CONTEXT mBefore;
};

class Win32Border : public PageHostTest, public testing::WithParamInterface<int> {
 protected:
  Win32Border() {
    const auto look = [this] { (Contexts::Now() == hosts ? right : wrong) += 1; };
    log.WhenCalled = look;
    shade.Log.WhenCalled = look;
  }

  /// What a person does comes from outside: the messages find the thread in any surroundings.
  template <class Acts>
  void Act(Acts acts) {
    const win32::GuestScope guest;
    acts();
  }

  void ExpectAllCallsInTheHosts(int atLeast) const {
    EXPECT_EQ(0, wrong);
    EXPECT_GE(right, atLeast);
  }

  AwareThread thread{GetParam()};
  Contexts hosts = Contexts::Now();
  RecordedShade shade;
  int right = 0;
  int wrong = 0;
};

std::string NameOf(const testing::TestParamInfo<int>& host) {
  if (host.param == kUnaware) return "Unaware";
  return host.param == kSystemAware ? "SystemAware" : "PerMonitorAware";
}

INSTANTIATE_TEST_SUITE_P(Hosts, Win32Border, testing::Values(kUnaware, kSystemAware, kPerMonitorAware), NameOf);

TEST_P(Win32Border, TheHostIsCalledInItsOwnSurroundings) {
  service.CallBack(&callBack);
  service.Language(&language);
  script.ExpectForm("frmSettings", [&](Form& shown) {
    EXPECT_TRUE(hosts == Contexts::Now()) << "in the hook";
    Act([&] {
      Edit(shown, "7");
      Press(shown, "cmdApply");
      Edit(shown, "8");
      Press(shown, "cmdOK");
    });
  });
  service.Show(&object, 0, "");
  ExpectAllCallsInTheHosts(15);
  EXPECT_TRUE(hosts == Contexts::Now());
}

TEST_P(Win32Border, TheHostIsCalledInItsOwnSurroundingsByAModelessDialog) {
  service.CallBack(&callBack);
  service.Language(&language);
  service.Show(&object, 0, "", ShowMode::Modeless);
  ASSERT_EQ(1u, desktop().OpenForms().size());
  const std::shared_ptr<Form> shown = desktop().OpenForms().front();
  Act([&] {
    Edit(*shown, "7");
    Press(*shown, "cmdApply");
    Press(*shown, "cmdOK");
  });
  ExpectAllCallsInTheHosts(12);
}

TEST_P(Win32Border, AnObjectIsReadAndWrittenInItsHostsSurroundings) {
  bool changed = false;
  script.ExpectForm("frmDataShade", [&](Form& shown) {
    Act([&] {
      user.Type(Get<TextBox>(shown, "txtAltitude"), "50");
      Press(shown, "cmdOK");
    });
  });
  modMain::ShowShadeDialog(desktop(), &shade, changed, &language);
  EXPECT_EQ(50, shade.HeldAltitude);
  ExpectAllCallsInTheHosts(20);
}

TEST_P(Win32Border, AMessageIsUpWhileTheHooksCodeRunsInTheHostsSurroundings) {
  const Message message{"Text", "Title", MessageIcon::Information};
  script.ExpectMessage(message);
  Contexts seen;
  script.WhenMessageIsUp = [&] { seen = Contexts::Now(); };
  desktop().ShowMessage(message);
  EXPECT_TRUE(hosts == seen);
}

/// What the host does in its own message handling while a dialog is open.
Contexts theTimers;
void CALLBACK NoteContexts(HWND, UINT, UINT_PTR timer, DWORD) {
  theTimers = Contexts::Now();
  KillTimer(nullptr, timer);
  if (const HWND dialog = GetActiveWindow()) PostMessageW(dialog, WM_CLOSE, 0, 0);
}

TEST_P(Win32Border, ATimerOfTheHostRunsInItsSurroundingsWhileADialogIsOpen) {
  theTimers = {};
  bool changed = false;
  script.ExpectForm("frmDataShade", [&](Form& shown) {
    SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &NoteContexts);
    // The window closes when the timer has run.
    while (shown.Visible()) {
      MSG message;
      GetMessageW(&message, nullptr, 0, 0);
      DispatchMessageW(&message);
    }
  });
  modMain::ShowShadeDialog(desktop(), &shade, changed, nullptr);
  EXPECT_TRUE(hosts == theTimers);
}

TEST_P(Win32Border, WhatFillsANativeAreaIsMeasuredLikeTheDialog) {
  struct Foreign final : Form {
    explicit Foreign(Desktop& desktop) : Form(desktop, "frmForeign", {.Client = {3000, 1500}}) {}
    NativeArea Area{*this, "area", {.Place = {0, 0, 1440, 720}}};
  };
  const auto foreign = std::make_shared<Foreign>(desktop());
  RECT place = {};
  foreign->Area.Opened = [&](std::uintptr_t window) { GetClientRect(reinterpret_cast<HWND>(window), &place); };
  foreign->Show(ShowMode::Modeless);
  foreign->Unload();
  EXPECT_EQ(desktop().ToPixels(1440), place.right);
  EXPECT_EQ(desktop().ToPixels(720), place.bottom);
}

/// The places of all windows of a dialog, in the dots of the screen.
using Places = std::vector<std::array<LONG, 4>>;

BOOL CALLBACK NotePlace(HWND window, LPARAM places) {
  RECT place = {};
  GetWindowRect(window, &place);
  reinterpret_cast<Places*>(places)->push_back({place.left, place.top, place.right, place.bottom});
  return TRUE;
}

Places PlacesIn(const Form& shown) {
  Places places;
  const win32::GuestScope guest;
  const auto window = reinterpret_cast<HWND>(shown.NativeHandle());
  NotePlace(window, reinterpret_cast<LPARAM>(&places));
  EnumChildWindows(window, &NotePlace, reinterpret_cast<LPARAM>(&places));
  return places;
}

/// What the shading dialog looks like to a host, after the user has looked at the other version's fields.
Places ShadingPlaces(DialogScript& script, User& user, Desktop& desktop, HostObject* shade) {
  Places places;
  bool changed = false;
  script.ExpectForm("frmDataShade", [&](Form& shown) {
    auto& form = dynamic_cast<frmDataShade&>(shown);
    {
      const win32::GuestScope guest;
      user.Choose(form.cmbShadeVersion, 0);
      user.Choose(form.cmbShadeVersion, 1);
    }
    places = PlacesIn(shown);
    const win32::GuestScope guest;
    user.CloseBox(shown);
  });
  modMain::ShowShadeDialog(desktop, shade, changed, nullptr);
  return places;
}

TEST_P(Win32Border, ADialogIsLaidOutAlikeForEveryHost) {
  const Places here = ShadingPlaces(script, user, desktop(), &shade);
  const AwareThread same(kSystemAware);
  const Places there = ShadingPlaces(script, user, desktop(), &shade);
  EXPECT_GT(here.size(), 20u);
  EXPECT_EQ(there, here);
}

}  // namespace
}  // namespace orx::test
