#include "desktops/win32/Dialog.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "desktops/win32/Fonts.h"
#include "desktops/win32/GuestScope.h"
#include "desktops/win32/MousePointers.h"
#include "desktops/win32/Peer.h"
#include "desktops/win32/Text.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

constexpr UINT_PTR kUpdateTimer = 1;

}  // namespace

Dialog* Dialog::Containing(HWND window) {
  const HWND root = window ? GetAncestor(window, GA_ROOT) : nullptr;
  if (!root || reinterpret_cast<WNDPROC>(GetClassLongPtrW(root, GCLP_WNDPROC)) != &Dialog::WindowProc) return nullptr;
  return reinterpret_cast<Dialog*>(GetWindowLongPtrW(root, GWLP_USERDATA));
}

Dialog::Dialog(Form& form) : FormGate(form), mFont(MakeDialogFont()), mContent(form) {
  const DWORD edge = Style() & WS_THICKFRAME ? 0 : WS_EX_DLGMODALFRAME;
  mWindow = Made(CreateWindowExW(WS_EX_CONTROLPARENT | edge, WindowClasses::kDialog, L"", Style(), 0, 0, 0, 0, nullptr,
                                 nullptr, ThisModule(), nullptr));
  SetWindowLongPtrW(mWindow, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Dialog::~Dialog() {
  SetWindowLongPtrW(mWindow, GWLP_USERDATA, 0);
  if (mDestroyed) return;
  // The platform destroys a window together with those that it owns, but here each form has its own life.
  EnumThreadWindows(GetCurrentThreadId(), &Dialog::ReleaseFrom, reinterpret_cast<LPARAM>(mWindow));
  DestroyWindow(mWindow);
}

BOOL CALLBACK Dialog::ReleaseFrom(HWND window, LPARAM owner) {
  const auto gone = reinterpret_cast<HWND>(owner);
  if (GetWindow(window, GW_OWNER) == gone && Containing(window))
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(GetWindow(gone, GW_OWNER)));
  return TRUE;
}

DWORD Dialog::Style() const {
  DWORD border = 0;
  if (Owner().Border() == BorderStyle::Sizable) border = WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX;
  if (Owner().Border() == BorderStyle::SizableHeight) border = WS_THICKFRAME;
  return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | border;
}

bool Dialog::ReportKey(const MSG& message) {
  const GuestScope guest;
  const Busy busy(*this);
  if (IsRetired()) return false;
  if (!NoticeFocus()) return true;
  Control* const active = Owner().ActiveControl();
  Peer* const peer = active ? PeerOf(*active) : nullptr;
  if (peer && peer->UsesKey(message)) return true;
  if (IsRetired() || (peer && peer->WantsKey(message))) return false;
  const std::optional<KeyStroke> stroke =
      peer && peer->LeavesArrowKeys() && ArrowStrokeOf(message) ? ArrowStrokeOf(message) : StrokeOf(message);
  if (!stroke) return false;
  bool handled = false;
  Report([&] { handled = Owner().UserKey(*stroke); });
  // For a dialog key that does nothing in a field of one line, the platform would beep.
  const bool wouldBeep = stroke->Key == Key::Tab || stroke->Key == Key::Enter || stroke->Key == Key::Escape;
  return handled || (wouldBeep && !(peer && peer->TakesReturn()));
}

bool Dialog::NoticeFocus() {
  // Windows of others do not report here that they have taken the focus.
  const HWND focus = GetFocus();
  const Peer* const holder = Peer::Holding(focus);
  if (!holder || !holder->HoldsForeignWindows() || holder->Subject().HasFocus()) return true;
  Report([&] { Owner().UserFocus(const_cast<Control&>(holder->Subject())); });
  return !IsRetired() && GetFocus() == focus;
}

void Dialog::Defer(MSG& message) {
  mDeferred.push_back(message);
  message.hwnd = mWindow;
  message.message = kDeferredKey;
}

void Dialog::Redeliver() {
  if (mDeferred.empty()) return;
  const MSG message = mDeferred.front();
  mDeferred.erase(mDeferred.begin());
  if (ReportKey(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void Dialog::FocusActive() {
  const Control* const active = IsRetired() ? nullptr : Owner().ActiveControl();
  if (!active || !active->IsReachable() || !PeerOf(*active) || GetActiveWindow() != mWindow) return;
  PeerOf(*active)->RestoreFocus(mLastFocus);
}

void Dialog::UpdateCaption() {
  SetWindowTextW(mWindow, Widened(Owner().Caption()).c_str());
}

void Dialog::UpdatePlace() {
  const Quiet quiet(*this);
  const Desktop& desktop = Owner().OwnerDesktop();
  const SIZE client = mContent.WindowSize();
  RECT frame = {0, 0, client.cx, client.cy};
  AdjustWindowRectEx(&frame, Style(), FALSE, static_cast<DWORD>(GetWindowLongPtrW(mWindow, GWL_EXSTYLE)));
  SetWindowPos(mWindow, nullptr, desktop.ToPixels(Owner().Left()), desktop.ToPixels(Owner().Top()),
               frame.right - frame.left, frame.bottom - frame.top, SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOOWNERZORDER);
  mContent.Arrange();
}

void Dialog::Show(ShowMode mode, HWND owner) {
  const Quiet quiet(*this);
  mActiveBefore = GetActiveWindow();
  SetWindowLongPtrW(mWindow, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  if (mode == ShowMode::Modal) {
    mBarrier.emplace(mWindow, owner);
  } else {
    mHook.emplace();
  }
  ShowWindow(mWindow, SW_SHOW);
  SetForegroundWindow(mWindow);
  SetActiveWindow(mWindow);
  UpdateWindow(mWindow);
}

void Dialog::Hide() {
  const Quiet quiet(*this);
  mHook.reset();
  // While the other windows are disabled, the platform would activate a window of another program.
  mBarrier.reset();
  const bool wasActive = GetActiveWindow() == mWindow;
  ShowWindow(mWindow, SW_HIDE);
  if (wasActive && mActiveBefore && IsWindow(mActiveBefore) && IsWindowVisible(mActiveBefore))
    SetActiveWindow(mActiveBefore);
  // A hidden window is to outlive its owner.
  if (!mDestroyed) SetWindowLongPtrW(mWindow, GWLP_HWNDPARENT, 0);
}

void Dialog::ToolTip(HWND tool, const std::string& text) {
  mToolTips.Set(mWindow, tool, text);
}

void Dialog::Retire() {
  const Busy busy(*this);
  Hide();
  CutOff();
  mContent.Abandon();
}

void Dialog::Sized() {
  if (IsIconic(mWindow) || Owner().Border() == BorderStyle::Fixed) return;
  RECT client;
  GetClientRect(mWindow, &client);
  const SIZE known = mContent.WindowSize();
  if (client.right == known.cx && client.bottom == known.cy) return;
  const Desktop& desktop = Owner().OwnerDesktop();
  const Size size{desktop.ToTwips(static_cast<int>(client.right) - mContent.ExtraWidth()),
                  desktop.ToTwips(static_cast<int>(client.bottom))};
  Report([&] { Owner().UserResize(size); });
  if (!IsRetired()) mContent.Arrange();
}

void Dialog::Moved() {
  if (IsIconic(mWindow)) return;
  RECT place;
  GetWindowRect(mWindow, &place);
  const Desktop& desktop = Owner().OwnerDesktop();
  if (place.left == desktop.ToPixels(Owner().Left()) && place.top == desktop.ToPixels(Owner().Top())) return;
  Report([&] {
    Owner().UserMove(desktop.ToTwips(static_cast<int>(place.left)), desktop.ToTwips(static_cast<int>(place.top)));
  });
}

void Dialog::WatchActivation(bool isActive) {
  if (isActive || !IsChild(mWindow, GetFocus())) return;
  mLastFocus = GetFocus();
}

void Dialog::Destroyed() {
  // The host has destroyed it, together with its owner window: the form closes as if by its close box.
  mDestroyed = true;
  Tell([this] { Owner().WindowLost(); });
}

void Dialog::ColorsChanged(UINT message, WPARAM wParam, LPARAM lParam) {
  // The platform tells only whole windows of new colours.
  const MSG passed = {nullptr, message, wParam, lParam, 0, {}};
  EnumChildWindows(mWindow, &Dialog::PassOn, reinterpret_cast<LPARAM>(&passed));
  RedrawWindow(mWindow, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

BOOL CALLBACK Dialog::PassOn(HWND child, LPARAM message) {
  const MSG& passed = *reinterpret_cast<const MSG*>(message);
  SendMessageW(child, passed.message, passed.wParam, passed.lParam);
  return TRUE;
}

void Dialog::CallShowUpdates(std::chrono::milliseconds after) {
  SetTimer(mWindow, kUpdateTimer, static_cast<UINT>(after.count()), nullptr);
}

void Dialog::DragBottomEdge() {
  ReleaseCapture();
  const DWORD at = GetMessagePos();
  SendMessageW(mWindow, WM_NCLBUTTONDOWN, HTBOTTOM, static_cast<LPARAM>(at));
  if (!IsRetired()) InvalidateRect(mWindow, nullptr, TRUE);
}

LRESULT Dialog::HitTest(WPARAM wParam, LPARAM lParam) const {
  const LRESULT part = DefWindowProcW(mWindow, WM_NCHITTEST, wParam, lParam);
  if (Owner().Border() != BorderStyle::SizableHeight || part < HTSIZEFIRST || part > HTSIZELAST) return part;
  const bool isBelow = part == HTBOTTOM || part == HTBOTTOMLEFT || part == HTBOTTOMRIGHT;
  return isBelow ? HTBOTTOM : HTBORDER;
}

void Dialog::LimitSize(MINMAXINFO& limits) const {
  if (Owner().Border() != BorderStyle::SizableHeight) return;
  RECT frame = {0, 0, mContent.WindowSize().cx, 0};
  AdjustWindowRectEx(&frame, Style(), FALSE, static_cast<DWORD>(GetWindowLongPtrW(mWindow, GWL_EXSTYLE)));
  limits.ptMinTrackSize.x = limits.ptMaxTrackSize.x = frame.right - frame.left;
}

void Dialog::ReportMouse() {
  POINT at = {};
  GetCursorPos(&at);
  ScreenToClient(mWindow, &at);
  Report([&] { Owner().UserMouseMove({static_cast<int>(at.x), static_cast<int>(at.y)}); });
}

bool Dialog::ShowPointer(HWND over, UINT message) {
  // The platform asks here, whichever control the mouse is over.
  ReportMouse();
  if (IsRetired()) return true;
  mToolTips.MouseIsIn(over, message);
  const HCURSOR pointer = CursorOf(Owner().OwnerDesktop().Pointer());
  if (pointer) SetCursor(pointer);
  return pointer != nullptr;
}

LRESULT CALLBACK Dialog::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self || self->IsRetired()) return DefWindowProcW(window, message, wParam, lParam);
  const GuestScope guest;
  const Busy busy(*self);
  return self->Handle(message, wParam, lParam);
}

LRESULT Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const std::optional<LRESULT> answer = Reflect(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_CLOSE:
      Report([this] { Owner().UserClose(); });
      return 0;
    case WM_DESTROY:
      Destroyed();
      return 0;
    case WM_ACTIVATE:
      WatchActivation(LOWORD(wParam) != WA_INACTIVE);
      break;
    case WM_SETFOCUS:
      FocusActive();
      return 0;
    case WM_SIZE:
      Sized();
      return 0;
    case WM_MOVE:
      Moved();
      return 0;
    case WM_MOUSEMOVE:
      Report([&] { Owner().UserMouseMove({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); });
      return 0;
    case WM_LBUTTONDOWN:
      Report([&] { Owner().UserMouseDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); });
      return 0;
    case WM_NCHITTEST:
      return HitTest(wParam, lParam);
    case WM_GETMINMAXINFO:
      LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_SETCURSOR:
      if (ShowPointer(reinterpret_cast<HWND>(wParam), HIWORD(lParam))) return TRUE;
      break;
    case WM_MOUSEWHEEL:
      mContent.Wheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_TIMER:
      KillTimer(mWindow, kUpdateTimer);
      Owner().ShowUpdates();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      ColorsChanged(message, wParam, lParam);
      break;
    case kDeferredKey:
      Redeliver();
      return 0;
    default:
      break;
  }
  return DefWindowProcW(mWindow, message, wParam, lParam);
}

}  // namespace orx::win32
