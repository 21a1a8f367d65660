// Keys of modeless dialogs, whose messages the host pumps in a loop of its own that knows nothing of them.
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

class Win32HostLoop : public Win32FormsTest {
 protected:
  Win32HostLoop() { ShowForm(); }

  static void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  static void Press(WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
  }
  static void TypeText(const wchar_t* text) {
    for (; *text; ++text) PostMessageW(GetFocus(), WM_CHAR, *text, 1);
    Pump();
  }
};

TEST_F(Win32HostLoop, TabMovesTheFocus) {
  Press(VK_TAB);
  EXPECT_EQ(FieldOf(form->txtSize), GetFocus());
  EXPECT_EQ((Events{"txtName_LostFocus", "txtSize_GotFocus"}), NewEvents());
}

TEST_F(Win32HostLoop, EnterAndEscapePressTheirButtons) {
  Press(VK_RETURN);
  Press(VK_ESCAPE);
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cmdOK_Click"));
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cmdCancel_Click"));
}

TEST_F(Win32HostLoop, MnemonicsReachTheirControls) {
  PostMessageW(GetFocus(), WM_SYSCHAR, L's', (LPARAM{1} << 29) | 1);
  Pump();
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "chkShow_Click"));
}

TEST_F(Win32HostLoop, TextIsTypedAsEver) {
  TypeText(L"ab");
  EXPECT_EQ("ab", form->txtName.Text());
}

TEST_F(Win32HostLoop, KeysForTheHostsOwnWindowsAreLeftAlone) {
  const HostWindow host;
  PostMessageW(host.Get(), WM_KEYDOWN, VK_TAB, 1);
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, host.Get(), WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
  EXPECT_EQ(static_cast<WPARAM>(VK_TAB), message.wParam);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(Win32HostLoop, ALookAtTheQueueTakesNoKeyAway) {
  PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
  MSG message;
  PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE);
  EXPECT_EQ(Events{}, NewEvents());
  Pump();
  EXPECT_EQ((Events{"txtName_LostFocus", "txtSize_GotFocus"}), NewEvents());
}

}  // namespace
}  // namespace orx::test
