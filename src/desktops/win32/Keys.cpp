#include "desktops/win32/Keys.h"

#include "desktops/win32/Dialog.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

bool IsInput(const MSG& message) {
  const auto isBetween = [&](UINT first, UINT last) { return message.message >= first && message.message <= last; };
  return isBetween(WM_KEYFIRST, WM_KEYLAST) || isBetween(WM_LBUTTONDOWN, WM_MOUSELAST) ||
         isBetween(WM_NCLBUTTONDOWN, WM_NCMBUTTONDBLCLK);
}

bool IsBlocked(HWND window) {
  const Dialog* const dialog = Dialog::Containing(window);
  return dialog && !dialog->IsRetired() && !dialog->Owner().Enabled();
}

LRESULT CALLBACK SeeMessage(int code, WPARAM removed, LPARAM data) {
  auto& message = *reinterpret_cast<MSG*>(data);
  if (code == HC_ACTION && (removed & PM_REMOVE) != 0 && (StrokeOf(message) || ArrowStrokeOf(message))) {
    if (Dialog* const dialog = Dialog::Containing(message.hwnd)) dialog->Defer(message);
  }
  return CallNextHookEx(nullptr, code, removed, data);
}

}  // namespace

std::optional<KeyStroke> StrokeOf(const MSG& message) {
  const bool shift = IsDown(VK_SHIFT);
  if (message.message == WM_SYSCHAR && message.wParam != L' ' && !IsDown(VK_CONTROL)) {
    auto letter = static_cast<wchar_t>(message.wParam);
    CharLowerBuffW(&letter, 1);
    return KeyStroke{Key::Character, letter, shift, true};
  }
  if (message.message != WM_KEYDOWN) return std::nullopt;
  if (IsDown(VK_CONTROL)) {
    if (message.wParam == VK_NEXT) return KeyStroke{Key::NextTab};
    if (message.wParam == VK_PRIOR) return KeyStroke{Key::PreviousTab};
    return std::nullopt;
  }
  switch (message.wParam) {
    case VK_F1:
      return KeyStroke{Key::Help};
    case VK_TAB:
      return KeyStroke{Key::Tab, 0, shift, false};
    case VK_RETURN:
      return KeyStroke{Key::Enter, 0, shift, false};
    case VK_ESCAPE:
      return KeyStroke{Key::Escape, 0, shift, false};
    default:
      return std::nullopt;
  }
}

std::optional<KeyStroke> ArrowStrokeOf(const MSG& message) {
  if (message.message != WM_KEYDOWN) return std::nullopt;
  const bool back = message.wParam == VK_LEFT || message.wParam == VK_UP;
  const bool forth = message.wParam == VK_RIGHT || message.wParam == VK_DOWN;
  if (!back && !forth) return std::nullopt;
  return KeyStroke{Key::Tab, 0, back, false};
}

KeyHook::KeyHook() : mHook(SetWindowsHookExW(WH_GETMESSAGE, SeeMessage, nullptr, GetCurrentThreadId())) {
}

KeyHook::~KeyHook() {
  if (mHook) UnhookWindowsHookEx(mHook);
}

bool DealWithKey(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  Dialog* const dialog = Dialog::Containing(message.hwnd);
  return dialog && dialog->ReportKey(message);
}

bool HandleOneMessage(MSG& message) {
  if (message.message == WM_QUIT) {
    PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  if (IsInput(message) && IsBlocked(message.hwnd)) return true;
  if (!DealWithKey(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

}  // namespace orx::win32
