// A control in a plain window: shown, sized, reached by the keyboard, and gone at the end.
#include <gtest/gtest.h>

#include <olectl.h>

#include <optional>

#include "com/ControlKeys.h"
#include "com/HostedControl.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/pagecontrols/TestRegistration.h"

namespace orx::test {
namespace {

class HostedControlTest : public testing::Test {
 protected:
  HostedControlTest() {
    SetFocus(mArea);
    mControl.emplace(kTestPageControl);
  }
  ~HostedControlTest() override {
    mControl.reset();
    DestroyWindow(mArea);
    DestroyWindow(mFrame);
  }

  /// Presses a key where the focus is. True when the control kept it.
  bool Press(WPARAM key, bool shift = false) {
    BYTE before[256];
    GetKeyboardState(before);
    BYTE now[256] = {};
    if (shift) now[VK_SHIFT] = 0x80;
    SetKeyboardState(now);
    MSG message = {GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
    const bool kept = mControl->FilterKey(message);
    SetKeyboardState(before);
    return kept;
  }
  TestPageControl& Page() { return *mState.Last; }

  const Apartment mApartment;
  PageControlState mState;
  const RegisteredClass mClass{mState};
  const HWND mFrame =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr, nullptr, nullptr);
  const HWND mArea =
      CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 10, 10, 300, 200, mFrame, nullptr, nullptr, nullptr);
  std::optional<com::HostedControl> mControl;
};

SIZE SizeOf(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  return {place.right - place.left, place.bottom - place.top};
}

TEST_F(HostedControlTest, TheControlFillsTheWindowAndFollowsItsSize) {
  mControl->Open(mArea);
  EXPECT_EQ(mArea, GetParent(Page().Window()));
  EXPECT_EQ(300, SizeOf(Page().Window()).cx);
  MoveWindow(mArea, 10, 10, 220, 90, FALSE);
  mControl->Fit();
  EXPECT_EQ(220, SizeOf(Page().Window()).cx);
  EXPECT_EQ(90, SizeOf(Page().Window()).cy);
}

TEST_F(HostedControlTest, TheControlLivesOnWithoutItsWindowAndComesBack) {
  mControl->Open(mArea);
  mControl->Close();
  EXPECT_EQ(nullptr, Page().Window());
  EXPECT_EQ(1, mState.Alive);
  mControl->Open(mArea);
  EXPECT_TRUE(IsWindowVisible(Page().Window()));
}

TEST_F(HostedControlTest, NothingOfTheControlStaysBehind) {
  mControl->Open(mArea);
  mControl->EnterFocus();
  mControl.reset();
  EXPECT_EQ(0, mState.Alive);
  EXPECT_EQ((std::vector<std::string>{"Control.Activate", "Control.Deactivate", "Control.Close", "Page.Gone"}),
            mState.Log.Calls);
}

TEST_F(HostedControlTest, TabWalksThroughTheChildrenAndOutAtTheEnds) {
  mControl->Open(mArea);
  mControl->EnterFocus();
  EXPECT_EQ(Page().First(), GetFocus());
  EXPECT_FALSE(Press(VK_TAB, true));
  EXPECT_TRUE(Press(VK_TAB));
  EXPECT_EQ(Page().Second(), GetFocus());
  EXPECT_TRUE(Press(VK_TAB));
  EXPECT_EQ(Page().Button(), GetFocus());
  EXPECT_FALSE(Press(VK_TAB));
  EXPECT_TRUE(Press(VK_TAB, true));
  EXPECT_EQ(Page().Second(), GetFocus());
}

TEST_F(HostedControlTest, TabPassesDisabledChildrenOver) {
  mControl->Open(mArea);
  EnableWindow(Page().Second(), FALSE);
  mControl->EnterFocus();
  EXPECT_TRUE(Press(VK_TAB));
  EXPECT_EQ(Page().Button(), GetFocus());
}

TEST_F(HostedControlTest, EnterAndEscapeAreTheDialogsUnlessAChildUsesThem) {
  mControl->Open(mArea);
  int pressed = 0;
  Page().Pressed = [&] { ++pressed; };
  SetFocus(Page().First());
  EXPECT_FALSE(Press(VK_RETURN));
  EXPECT_FALSE(Press(VK_ESCAPE));
  SetFocus(Page().Button());
  EXPECT_TRUE(Press(VK_RETURN));
  EXPECT_EQ(1, pressed);
  EXPECT_FALSE(Press(VK_ESCAPE));
}

TEST_F(HostedControlTest, TheControlsOwnAcceleratorsComeFirst) {
  mControl->Open(mArea);
  SetFocus(Page().Button());
  Page().Accelerator = [](const MSG& message) { return message.wParam == VK_RETURN; };
  bool pressed = false;
  Page().Pressed = [&] { pressed = true; };
  EXPECT_TRUE(Press(VK_RETURN));
  EXPECT_FALSE(pressed);
}

TEST_F(HostedControlTest, AFocusThatCameByItselfIsReportedAndOneThatWasBroughtIsNot) {
  mControl->Open(mArea);
  int came = 0;
  mControl->FocusCameByItself = [&] { ++came; };
  mControl->EnterFocus();
  EXPECT_EQ(0, came);
  SetFocus(Page().Second());
  EXPECT_EQ(1, came);
}

TEST_F(HostedControlTest, TheSurroundingsAreThoseOfARunningDialog) {
  const com::Variant mode = Page().Ambient(DISPID_AMBIENT_USERMODE);
  ASSERT_EQ(VT_BOOL, mode.vt);
  EXPECT_EQ(VARIANT_TRUE, mode.boolVal);
  EXPECT_EQ(VT_EMPTY, Page().Ambient(DISPID_AMBIENT_SCALEUNITS).vt);
}

TEST_F(HostedControlTest, AControlThatDoesNotComeUpIsAnErrorWithItsReason) {
  mState.ShowResult = E_ACCESSDENIED;
  try {
    mControl->Open(mArea);
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_NE(std::string::npos, std::string(error.what()).find("0x80070005"));
  }
}

}  // namespace
}  // namespace orx::test
