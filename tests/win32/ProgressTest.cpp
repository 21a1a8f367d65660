// The progress window on the screen of a host that handles no messages, and what that costs.
#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Subclass.h"
#include "pickers/frmProgress.h"
#include "tests/progress/ProgressLoops.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

/// Counts how often a window is painted.
class Paints {
 public:
  explicit Paints(HWND watched) : mSubclass(watched, &Paints::Watch, this) {}
  int Count = 0;

 private:
  static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self) {
    if (message == WM_PAINT) ++reinterpret_cast<Paints*>(self)->Count;
    return win32::Subclass::CallNext(window, message, wParam, lParam);
  }
  win32::Subclass mSubclass;
};

class Win32Progress : public Win32FormsTest {
 protected:
  Win32Progress() {
    progress.Show();
    desktop().ProcessPendingEvents();
  }
  frmProgress& Window() { return dynamic_cast<frmProgress&>(*desktop().OpenForms().back()); }

  CCommonProgressDialog progress{desktop()};
};

TEST_F(Win32Progress, OutlivesAWindowOfTheHostThatWasActiveWhenItCame) {
  progress.Hide();
  {
    HostWindow splash;
    SetActiveWindow(splash.Get());
    progress.Show();
  }
  desktop().ProcessPendingEvents();
  ASSERT_EQ(desktop().OpenForms().size(), 1u);
  EXPECT_TRUE(IsWindowVisible(WindowOf(Window())));
  EXPECT_FALSE(progress.CancelAction());
}

TEST_F(Win32Progress, IsPaintedWithoutMessages) {
  const Paints paints(WindowOf(Window().prgBar));
  progress.Value(50);
  EXPECT_GE(paints.Count, 1);
  EXPECT_FALSE(GetUpdateRect(WindowOf(Window().prgBar), nullptr, FALSE));
  progress.Message("Half of it");
  EXPECT_EQ("Half of it", TextOf(WindowOf(Window().lblMsg)));
  EXPECT_FALSE(GetUpdateRect(WindowOf(Window().lblMsg), nullptr, FALSE));
}

TEST_F(Win32Progress, IsPaintedSixtyTimesASecondAtMost) {
  const Paints paints(WindowOf(Window().prgBar));
  JumpFor(std::chrono::milliseconds(1500), progress, desktop());
  EXPECT_LE(paints.Count, 60 * 3 / 2 + 1);
  EXPECT_GE(paints.Count, 20);
}

TEST_F(Win32Progress, AMillionValuesCostLessThanTwoHundredthsOfRepaintingEachTime) {
  EXPECT_LT(CostOfAMillionValues(progress), 0.02);
  EXPECT_EQ(Window().prgBar.Pixels(), Send(WindowOf(Window().prgBar), PBM_GETPOS));
}

TEST_F(Win32Progress, ShowAndHideLetPendingMessagesBeHandled) {
  const HostWindow host;
  const auto isPending = [&] {
    MSG message;
    return PeekMessageW(&message, host.Get(), WM_APP, WM_APP, PM_NOREMOVE) != FALSE;
  };
  PostMessageW(host.Get(), WM_APP, 0, 0);
  EXPECT_TRUE(isPending());
  progress.Hide();
  EXPECT_FALSE(isPending());
  PostMessageW(host.Get(), WM_APP, 0, 0);
  progress.Show();
  EXPECT_FALSE(isPending());
}

TEST_F(Win32Progress, IsCancelledWhenTheWindowOfItsOwnerIsDestroyed) {
  HostWindow host;
  progress.Hide();
  progress.Show(host.AsOwner());
  EXPECT_EQ(host.Get(), GetWindow(WindowOf(Window()), GW_OWNER));
  host.Destroy();
  EXPECT_TRUE(desktop().OpenForms().empty());
  EXPECT_TRUE(progress.CancelAction());
  progress.Value(30);
  EXPECT_EQ(30, progress.Value());
}

}  // namespace
}  // namespace orx::test
