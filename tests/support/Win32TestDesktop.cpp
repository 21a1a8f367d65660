// The user of the Windows desktop: sends real mouse and key messages to the native windows and reads those back.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <utility>

#include "desktops/win32/Peer.h"
#include "desktops/win32/PlatformDialog.h"
#include "desktops/win32/Text.h"
#include "desktops/win32/Win32Desktop.h"
#include "tests/support/User.h"
#include "tests/support/Win32CommonDialogs.h"
#include "tests/support/Win32Input.h"
#include "tests/support/Win32Rows.h"
#include "tests/win32/GdiObjects.h"

namespace orx::test {
namespace {

using win32::Narrowed;
using win32::PeerOf;
using win32::Widened;

HWND WindowOf(Form& form) {
  return form.Window() ? reinterpret_cast<HWND>(form.Window()->NativeHandle()) : nullptr;
}

class Win32User final : public User {
 public:
  explicit Win32User(win32::Win32Desktop& desktop) : mDesktop(desktop) {}

  void Click(Button& button) override {
    if (CanReach(button)) MouseClick(PeerOf(button)->Window());
  }

  void Toggle(CheckBox& box) override {
    // The box itself is at the left end.
    if (CanReach(box)) MouseClickAt(PeerOf(box)->Window(), {8, HeightOf(PeerOf(box)->Window()) / 2});
  }

  void ClickInto(Control& control) override {
    if (!CanReach(control)) return;
    const HWND window = PeerOf(control)->FocusWindow();
    MouseClick(window);
    // A drop-down list opens on a click; the user looks and closes it again.
    if (PeerOf(control) && SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0)) KeyTo(window, VK_ESCAPE);
  }

  void Type(TextBox& field, const std::string& text) override { ClickAndType(field, text); }
  void Type(ComboBox& box, const std::string& text) override { ClickAndType(box, text); }

  void Paste(TextBox& field, const std::string& text) override { ClickAndPaste(field, text); }
  void Paste(ComboBox& box, const std::string& text) override { ClickAndPaste(box, text); }

  void Pick(ComboBox& box, int index) override {
    if (!CanReach(box)) return;
    const HWND combo = PeerOf(box)->Window();
    RECT place;
    GetClientRect(combo, &place);
    MouseClickAt(combo, {place.right - 8, place.bottom / 2});
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof(parts);
    if (!PeerOf(box) || !SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) || !GetComboBoxInfo(combo, &parts)) return;
    SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
    const LPARAM at = MAKELPARAM(8, (place.top + place.bottom) / 2);
    PostMessageW(parts.hwndList, WM_MOUSEMOVE, 0, at);
    PostMessageW(parts.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(parts.hwndList, WM_LBUTTONUP, 0, at);
    mDesktop.ProcessPendingEvents();
  }

  void Choose(ComboBox& box, int index) override {
    if (!CanReach(box)) return;
    const HWND combo = PeerOf(box)->Window();
    RECT client;
    GetClientRect(combo, &client);
    MouseClickAt(combo, {client.right - 8, client.bottom / 2});
    if (!PeerOf(box) || !SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0)) return;
    const HWND focus = PeerOf(box)->FocusWindow();
    // From the first entry on, whatever was selected.
    SendMessageW(combo, CB_SETCURSEL, 0, 0);
    for (int below = 0; below < index; ++below) KeyTo(focus, VK_DOWN);
    KeyTo(focus, VK_RETURN);
  }

  void Choose(ListBox& box, int index) override {
    ClickInto(box);
    if (!PeerOf(box) || !box.HasFocus()) return;
    KeyTo(PeerOf(box)->Window(), VK_HOME);
    for (int below = 0; below < index; ++below) KeyTo(PeerOf(box)->Window(), VK_DOWN);
  }

  void Click(ListBox& box, int row) override { ClickRow(box, row, WM_LBUTTONDOWN); }
  void DoubleClick(ListBox& box, int row) override {
    Click(box, row);
    ClickRow(box, row, WM_LBUTTONDBLCLK);
  }

  void Click(PictureBox& box) override {
    if (CanReach(box)) MouseClick(PeerOf(box)->Window());
  }

  void ClickAt(PictureBox& box, Point at) override {
    if (CanReach(box)) MouseClickAt(PeerOf(box)->Window(), {at.X, at.Y});
  }

  void DoubleClickAt(PictureBox& box, Point at) override {
    ClickAt(box, at);
    if (CanReach(box)) MouseClickAt(PeerOf(box)->Window(), {at.X, at.Y}, WM_LBUTTONDBLCLK);
  }

  void PressKey(Form& form, int keyCode) override {
    if (!WindowOf(form)) return;
    Activate(WindowOf(form));
    KeyTo(GetFocus(), static_cast<WPARAM>(keyCode));
  }

  void Click(TreeList& list, int row) override {
    RECT place = {};
    if (!FindRow(list, row, place)) return;
    MouseClickAt(PeerOf(list)->Window(), {place.right - 5, (place.top + place.bottom) / 2});
  }

  void Fold(TreeList& list, int row) override {
    RECT place = {};
    if (!FindRow(list, row, place)) return;
    const int level = mDesktop.ToPixels(240);
    MouseClickAt(PeerOf(list)->Window(), {list.Row(row).Level * level + level / 2, (place.top + place.bottom) / 2});
  }

  void TypeCharacters(Form& form, const std::string& text) override {
    Activate(WindowOf(form));
    for (const wchar_t unit : Widened(text)) PostMessageW(GetFocus(), WM_CHAR, unit, 1);
    mDesktop.ProcessPendingEvents();
  }

  void DragFromBottom(Form& form, int above, int by) override {
    const HWND window = WindowOf(form);
    Activate(window);
    RECT client = {};
    GetClientRect(window, &client);
    POINT from = {client.right / 2, client.bottom - above};
    const LPARAM where = MAKELPARAM(from.x, from.y);
    const HWND hit = WindowAt(window, from);
    ClientToScreen(window, &from);
    SetCursorPos(from.x, from.y);
    // The platform drags in a loop of its own, and looks where the real mouse is.
    theDrag = {from.x, from.y + by};
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, MoveAndRelease);
    PostMessageW(hit, WM_MOUSEMOVE, 0, where);
    PostMessageW(hit, WM_LBUTTONDOWN, MK_LBUTTON, where);
    mDesktop.ProcessPendingEvents();
    KillTimer(nullptr, timer);
    SetCursorPos(from.x, from.y - client.bottom + above + 1);
    PostMessageW(hit, WM_MOUSEMOVE, 0, MAKELPARAM(client.right / 2, 1));
    mDesktop.ProcessPendingEvents();
  }

  void SelectTab(TabControl& tabs, int tab) override {
    if (!CanReach(tabs)) return;
    RECT place = {};
    SendMessageW(PeerOf(tabs)->Window(), TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place));
    MouseClickAt(PeerOf(tabs)->Window(), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }

  void Press(Form& form, const KeyStroke& stroke) override {
    if (!WindowOf(form)) return;
    Activate(WindowOf(form));
    HWND focus = GetFocus();
    if (!focus || GetAncestor(focus, GA_ROOT) != WindowOf(form)) focus = WindowOf(form);
    const bool isTurn = stroke.Key == Key::NextTab || stroke.Key == Key::PreviousTab;
    if (stroke.Shift) Hold(VK_SHIFT, true);
    if (isTurn) Hold(VK_CONTROL, true);
    switch (stroke.Key) {
      case Key::Tab:
        KeyTo(focus, VK_TAB);
        break;
      case Key::Enter:
        KeyTo(focus, VK_RETURN);
        break;
      case Key::Escape:
        KeyTo(focus, VK_ESCAPE);
        break;
      case Key::Help:
        KeyTo(focus, VK_F1);
        break;
      case Key::NextTab:
        KeyTo(focus, VK_NEXT);
        break;
      case Key::PreviousTab:
        KeyTo(focus, VK_PRIOR);
        break;
      case Key::Character:
        PostMessageW(focus, stroke.Alt ? WM_SYSCHAR : WM_CHAR, static_cast<WPARAM>(stroke.Character),
                     stroke.Alt ? kAltDown : 1);
        break;
    }
    mDesktop.ProcessPendingEvents();
    if (isTurn) Hold(VK_CONTROL, false);
    if (stroke.Shift) Hold(VK_SHIFT, false);
  }

  void CloseBox(Form& form) override {
    if (!WindowOf(form)) return;
    PostMessageW(WindowOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
    mDesktop.ProcessPendingEvents();
  }

  void PickFiles(OpenFileRequest&, const Picked& files) override { PickFilesInDialog(files); }
  void CancelFiles(OpenFileRequest&) override { CancelDialog(); }
  void PickColor(ColorRequest&, Color color) override { PickColorInDialog(color); }
  void CancelColor(ColorRequest&) override { CancelDialog(); }
  void PickFont(FontRequest&, const ColoredFont& font) override { PickFontInDialog(font); }
  void CancelFont(FontRequest&) override { CancelDialog(); }

  void AnswerMessage(const Modal&, MessageAnswer answer) override {
    const HWND box = win32::OpenPlatformDialog();
    if (!box) return;
    const int id = answer == MessageAnswer::Yes ? IDYES : IDNO;
    MouseClick(answer == MessageAnswer::OK ? FindWindowExW(box, nullptr, L"BUTTON", nullptr) : GetDlgItem(box, id));
  }

  Seen See(Control& control) override {
    if (!PeerOf(control)) return {};
    const HWND window = PeerOf(control)->Window();
    const bool visible = IsWindowVisible(window);
    Seen seen{visible, visible && IsReallyEnabled(window), HasNativeFocus(control), ShownText(control), 0};
    if (dynamic_cast<CheckBox*>(&control)) seen.Value = static_cast<int>(SendMessageW(window, BM_GETCHECK, 0, 0));
    if (dynamic_cast<ProgressBar*>(&control)) seen.Value = static_cast<int>(SendMessageW(window, PBM_GETPOS, 0, 0));
    if (dynamic_cast<ComboBox*>(&control)) seen.Value = static_cast<int>(SendMessageW(window, CB_GETCURSEL, 0, 0));
    if (auto* const list = dynamic_cast<ListBox*>(&control)) {
      seen.Value = RowWith(window, list->MultiSelect() ? LVNI_FOCUSED : LVNI_SELECTED);
      seen.Text = seen.Value < 0 ? std::string() : RowText(window, seen.Value);
    }
    if (auto* const tree = dynamic_cast<TreeList*>(&control)) {
      seen.Value = RowWith(window, LVNI_SELECTED);
      seen.Text = seen.Value < 0 ? std::string() : RowText(window, seen.Value);
      if (seen.Value >= 0) seen.Value = tree->ShownRow(seen.Value);
    }
    if (dynamic_cast<TabControl*>(&control)) seen.Value = static_cast<int>(SendMessageW(window, TCM_GETCURSEL, 0, 0));
    return seen;
  }

  std::vector<std::string> SeeRows(TreeList& list) override {
    const HWND window = PeerOf(list)->Window();
    std::vector<std::string> texts;
    for (int i = 0; i < SendMessageW(window, LVM_GETITEMCOUNT, 0, 0); ++i) texts.push_back(RowText(window, i));
    return texts;
  }
  bool SeesRow(TreeList& list, int row) override { return SeesRowAt(PeerOf(list)->Window(), list.PositionOf(row)); }
  std::set<int> SeeSelected(ListBox& box) override { return SelectedRows(PeerOf(box)->Window()); }
  bool SeesRow(ListBox& box, int row) override { return SeesRowAt(PeerOf(box)->Window(), row); }

  std::string SeeCaption(Form& form) override { return Narrowed(TextOf(WindowOf(form))); }

 private:
  static inline POINT theDrag = {};
  static void CALLBACK MoveAndRelease(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    SetCursorPos(theDrag.x, theDrag.y);
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(1, &input, sizeof(input));
  }

  void ClickRow(ListBox& box, int row, UINT press) {
    if (!CanReach(box) || row >= box.ListCount()) return;
    const HWND window = PeerOf(box)->Window();
    SendMessageW(window, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(window, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    MouseClickAt(window, {8, (place.top + place.bottom) / 2}, press);
  }

  /// The place of a row in the list, scrolled to. False when it is folded away or out of reach.
  static bool FindRow(TreeList& list, int row, RECT& place) {
    if (!CanReach(list) || list.PositionOf(row) < 0) return false;
    const HWND window = PeerOf(list)->Window();
    const auto position = static_cast<WPARAM>(list.PositionOf(row));
    SendMessageW(window, LVM_ENSUREVISIBLE, position, FALSE);
    place.left = LVIR_BOUNDS;
    return SendMessageW(window, LVM_GETITEMRECT, position, reinterpret_cast<LPARAM>(&place)) != 0;
  }

  static constexpr LPARAM kAltDown = (LPARAM{1} << 29) | 1;

  /// True when the user finds the control on the screen; one that is scrolled away is brought into view.
  static bool CanReach(Control& control) {
    if (!PeerOf(control) || !IsWindowVisible(PeerOf(control)->Window())) return false;
    win32::Dialog::Containing(PeerOf(control)->Window())->Content().Reveal(PeerOf(control)->Window());
    return true;
  }

  void MouseClick(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    MouseClickAt(window, {client.right / 2, client.bottom / 2});
  }

  /// Clicks through the top window, as the mouse does: what is disabled gets in the way. Where the window is covered or
  /// cut off the user does not find it.
  void MouseClickAt(HWND window, POINT at, UINT press = WM_LBUTTONDOWN) {
    Activate(window);
    const HWND root = GetAncestor(window, GA_ROOT);
    POINT place = at;
    MapWindowPoints(window, root, &place, 1);
    const HWND hit = WindowAt(root, place);
    if ((hit != window && !IsChild(window, hit)) || !IsReallyEnabled(hit)) return;
    MapWindowPoints(root, hit, &place, 1);
    const LPARAM where = MAKELPARAM(place.x, place.y);
    PostMessageW(hit, press, MK_LBUTTON, where);
    mDesktop.ProcessPendingEvents();
    if (IsWindow(hit)) PostMessageW(hit, WM_LBUTTONUP, 0, where);
    mDesktop.ProcessPendingEvents();
  }

  void KeyTo(HWND window, WPARAM key) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    mDesktop.ProcessPendingEvents();
  }

  void ClickAndPaste(Control& control, const std::string& text) {
    ClickInto(control);
    if (!PeerOf(control) || !control.HasFocus()) return;
    const HWND field = PeerOf(control)->FocusWindow();
    PutOnClipboard(field, Widened(text));
    PostMessageW(field, WM_CHAR, 1, 1);  // Ctrl+A
    PostMessageW(field, WM_PASTE, 0, 0);
    mDesktop.ProcessPendingEvents();
  }

  void ClickAndType(Control& control, const std::string& text) {
    ClickInto(control);
    if (!PeerOf(control) || !control.HasFocus()) return;
    const HWND field = PeerOf(control)->FocusWindow();
    PostMessageW(field, WM_CHAR, 1, 1);  // Ctrl+A
    if (text.empty()) PostMessageW(field, WM_KEYDOWN, VK_DELETE, 1);
    for (const wchar_t unit : Widened(text)) PostMessageW(field, WM_CHAR, unit, 1);
    mDesktop.ProcessPendingEvents();
  }

  static bool HasNativeFocus(Control& control) { return GetFocus() == PeerOf(control)->FocusWindow(); }

  static std::string ShownText(Control& control) {
    const HWND window = PeerOf(control)->Window();
    if (dynamic_cast<TextBox*>(&control)) return win32::FromNativeLines(TextOf(window));
    if (dynamic_cast<ComboBox*>(&control)) return Narrowed(TextOf(window));
    if (dynamic_cast<TabControl*>(&control)) return WithoutMnemonic(ShownTab(window));
    return WithoutMnemonic(Narrowed(TextOf(window)));
  }

  win32::Win32Desktop& mDesktop;
};

class Win32TestDesktop final : public TestDesktop {
 public:
  Desktop& Get() override { return mDesktop; }
  User& Person() override { return mUser; }
  int Patience() const override { return 600; }
  void Separators(const numbers::Separators& value) override { mDesktop.Separators(value); }
  bool IsHostInOrder() override {
    // The host shows a window from the first time on that it is asked for.
    if (!mHostWindow)
      mHostWindow = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                    nullptr, nullptr, nullptr);
    if (IsWindowEnabled(mHostWindow)) return true;
    // The next session is not to suffer from this one.
    DestroyWindow(std::exchange(mHostWindow, nullptr));
    return false;
  }
  int NativeObjects() override { return GdiObjects(); }

  ~Win32TestDesktop() override {
    if (mHostWindow) DestroyWindow(mHostWindow);
  }

 private:
  HWND mHostWindow = nullptr;
  win32::Win32Desktop mDesktop;
  Win32User mUser{mDesktop};
};

}  // namespace

std::unique_ptr<TestDesktop> MakeTestDesktop() {
  return std::make_unique<Win32TestDesktop>();
}

}  // namespace orx::test
