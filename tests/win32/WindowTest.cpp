// The native windows: owners, modality, pictures, and windows that close while they are at work.
#include <filesystem>
#include <stdexcept>

#include "desktops/win32/PlatformDialog.h"
#include "tests/forms/MoreForms.h"
#include "tests/win32/Win32Test.h"

namespace orx::test {
namespace {

using Win32Window = Win32FormsTest;

TEST_F(Win32Window, AModalFormDisablesTheWindowItStandsBeforeUntilItIsClosed) {
  const HostWindow host;
  script.ExpectForm("frmSample", [&](Form& shown) {
    EXPECT_EQ(host.Get(), GetWindow(WindowOf(shown), GW_OWNER));
    EXPECT_FALSE(IsWindowEnabled(host.Get()));
    user.CloseBox(shown);
  });
  form->Show(ShowMode::Modal, host.AsOwner());
  EXPECT_TRUE(IsWindowEnabled(host.Get()));
}

TEST_F(Win32Window, AModalFormDisablesTheOtherWindowsOfItsThread) {
  const HostWindow host;
  const HostWindow disabled;
  EnableWindow(disabled.Get(), FALSE);
  script.ExpectForm("frmSample", [&](Form& shown) {
    EXPECT_FALSE(IsWindowEnabled(host.Get()));
    user.CloseBox(shown);
  });
  form->Show();
  EXPECT_TRUE(IsWindowEnabled(host.Get()));
  EXPECT_FALSE(IsWindowEnabled(disabled.Get())) << "What the host has disabled stays so.";
}

TEST_F(Win32Window, AControlInAWindowStandsForTheWholeWindowAsOwner) {
  const HostWindow host;
  const HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, host.Get(), nullptr, nullptr, nullptr);
  form->Show(ShowMode::Modeless, {nullptr, reinterpret_cast<std::uintptr_t>(child)});
  EXPECT_EQ(host.Get(), GetWindow(WindowOf(*form), GW_OWNER));
}

TEST_F(Win32Window, AnOwnerThatIsNoWindowIsNoOwner) {
  form->Show(ShowMode::Modeless, {nullptr, 0x7FFFFFF0});
  EXPECT_TRUE(IsWindowVisible(WindowOf(*form)));
}

TEST_F(Win32Window, AFormStandsBeforeTheFormThatOwnsItAndOutlivesIt) {
  ShowForm();
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  inner->Show(ShowMode::Modeless, {form.get(), 0});
  EXPECT_EQ(WindowOf(*form), GetWindow(WindowOf(*inner), GW_OWNER));
  form->Unload();
  EXPECT_TRUE(user.See(inner->txtName).Visible);
  inner->Unload();
}

TEST_F(Win32Window, AFormGoesAsByItsCloseBoxWhenTheHostDestroysItsOwner) {
  HostWindow host;
  form->Show(ShowMode::Modeless, host.AsOwner());
  host.Destroy();
  EXPECT_FALSE(form->Visible());
}

TEST_F(Win32Window, TheEndOfTheProgramClosesAModalFormAndIsPassedOn) {
  struct Ending final : DesktopHook {
    void ModalRunning(const Modal&) override { PostQuitMessage(7); }
  } ending;
  desktop().Hook(&ending);
  form->Show();
  desktop().Hook(&script);
  EXPECT_FALSE(form->Visible());
  MSG message = {};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(7u, message.wParam);
}

TEST_F(Win32Window, AnErrorOfTheHookReachesTheCallerOfShow) {
  const HostWindow host;
  script.ExpectForm("frmSample", [](Form&) { throw std::runtime_error("hook"); });
  EXPECT_THROW(form->Show(ShowMode::Modal, host.AsOwner()), std::runtime_error);
  EXPECT_TRUE(IsWindowEnabled(host.Get()));
}

TEST_F(Win32Window, AnErrorOfTheHookReachesTheCallerOfAMessage) {
  script.ExpectMessage({"Text", "Title", MessageIcon::None});
  struct Throwing final : DesktopHook {
    void ModalRunning(const Modal&) override { throw std::runtime_error("hook"); }
  } hook;
  desktop().Hook(&hook);
  EXPECT_THROW(desktop().ShowMessage({"Text", "Title", MessageIcon::None}), std::runtime_error);
  desktop().Hook(&script);
  EXPECT_FALSE(win32::OpenPlatformDialog());
  desktop().ShowMessage({"Text", "Title", MessageIcon::None});
}

TEST_F(Win32Window, AFormMayBeUnloadedFromADialogThatItsOwnButtonOpened) {
  Events log;
  const auto inner = std::make_shared<SampleForm>(desktop(), log);
  form->cmdOK.Click = [&] { inner->Show(); };
  ShowForm();
  const HWND outer = WindowOf(*form);
  script.ExpectForm("frmSample", [&](Form& shown) {
    form->Unload();
    EXPECT_TRUE(IsWindow(outer)) << "destroyed while its button is at work";
    EXPECT_FALSE(IsWindowVisible(outer));
    user.CloseBox(shown);
  });
  user.Click(form->cmdOK);
  EXPECT_FALSE(IsWindow(outer));
}

TEST_F(Win32Window, AControlMayLetGoOfItsForm) {
  Events log;
  auto lone = std::make_shared<SampleForm>(desktop(), log);
  SampleForm& shown = *lone;
  shown.cboKind.Click = [&shown] { shown.Unload(); };
  lone->Show(ShowMode::Modeless);
  const std::weak_ptr<SampleForm> watch = std::exchange(lone, nullptr);
  user.Choose(shown.cboKind, 1);
  EXPECT_TRUE(watch.expired());
}

TEST_F(Win32Window, AnotherWindowThatBecomesActiveTakesNoFocusFromTheForm) {
  ShowForm();
  const HostWindow other;
  SetActiveWindow(other.Get());
  EXPECT_NE(FieldOf(form->txtName), GetFocus());
  SetActiveWindow(WindowOf(*form));
  EXPECT_EQ(FieldOf(form->txtName), GetFocus());
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(Win32Window, TheWindowThatWasActiveIsActiveAgainAfterwards) {
  const HostWindow host;
  SetActiveWindow(host.Get());
  script.ExpectForm("frmSample", [&](Form& shown) { user.CloseBox(shown); });
  form->Show(ShowMode::Modal, host.AsOwner());
  EXPECT_EQ(host.Get(), GetActiveWindow());
}

TEST_F(Win32Window, MessagesAreShownAsPlainText) {
  script.ExpectMessage({"A & B\nsecond line", "Title", MessageIcon::Exclamation});
  std::string text;
  struct Look final : DesktopHook {
    explicit Look(std::string& text, DesktopHook& next) : Text(text), Next(next) {}
    void ModalRunning(const Modal& modal) override {
      const HWND box = win32::OpenPlatformDialog();
      for (HWND at = nullptr; (at = FindWindowExW(box, at, L"STATIC", nullptr)) != nullptr;) Text += TextOf(at);
      Next.ModalRunning(modal);
    }
    std::string& Text;
    DesktopHook& Next;
  } look{text, script};
  desktop().Hook(&look);
  desktop().ShowMessage({"A & B\nsecond line", "Title", MessageIcon::Exclamation});
  desktop().Hook(&script);
  EXPECT_NE(std::string::npos, text.find("A & B\nsecond line")) << text;
}

TEST_F(Win32Window, PicturesShowTheWindow) {
  const std::string path = testing::TempDir() + "orx-win32-" + std::to_string(GetCurrentProcessId()) + ".png";
  EXPECT_FALSE(Win32Only().SavePicture(*form, path));
  ShowForm();
  ASSERT_TRUE(Win32Only().SavePicture(*form, path));
  EXPECT_GT(std::filesystem::file_size(path), 1000u);
  EXPECT_FALSE(Win32Only().SaveMessagePicture(path));
  std::filesystem::remove(path);
}

TEST_F(Win32Window, SizingByTheUserTellsTheForm) {
  const auto elastic = std::make_shared<ElasticForm>(desktop());
  elastic->Show(ShowMode::Modeless);
  EXPECT_EQ((Size{6000, 3000}), elastic->Seen);
  RECT place;
  GetWindowRect(WindowOf(*elastic), &place);
  const int more = desktop().ToPixels(1500);
  SetWindowPos(WindowOf(*elastic), nullptr, place.left, place.top, place.right - place.left + more,
               place.bottom - place.top + more / 2, SWP_NOZORDER);
  EXPECT_EQ((Size{7500, 3750}), elastic->Seen);
  elastic->Unload();
}

TEST_F(Win32Window, MovingByTheUserTellsTheForm) {
  ShowForm();
  SetWindowPos(WindowOf(*form), nullptr, desktop().ToPixels(750), desktop().ToPixels(900), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(750, form->Left());
  EXPECT_EQ(900, form->Top());
}

TEST_F(Win32Window, ThePointerIsShownAtOnceAndOverTheDialogs) {
  ShowForm();
  desktop().Pointer(Pointer::Hourglass);
  EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), GetCursor());
  SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  Send(WindowOf(*form), WM_SETCURSOR, reinterpret_cast<WPARAM>(WindowOf(*form)), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), GetCursor());
  desktop().Pointer(Pointer::Default);
  Send(WindowOf(*form), WM_SETCURSOR, reinterpret_cast<WPARAM>(WindowOf(*form)), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_NE(LoadCursorW(nullptr, IDC_WAIT), GetCursor());
}

}  // namespace
}  // namespace orx::test
