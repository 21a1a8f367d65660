#include "desktops/win32/ToolTips.h"

#include <commctrl.h>

#include "desktops/win32/Peer.h"
#include "desktops/win32/Text.h"
#include "desktops/win32/WindowClasses.h"

namespace orx::win32 {
namespace {

/// The tool that stands for a disabled control. No window handle, which the other tools have.
constexpr UINT_PTR kDisabledTool = 1;

TTTOOLINFOW ToolOf(HWND owner, UINT_PTR id, UINT flags) {
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = owner;
  tool.uId = id;
  tool.uFlags = flags;
  return tool;
}

/// The innermost visible window at a place of the screen when it is disabled, else null.
HWND DisabledAt(HWND window, POINT at) {
  HWND innermost = window;
  for (HWND next = window; next;) {
    innermost = next;
    POINT inside = at;
    ScreenToClient(innermost, &inside);
    next = ChildWindowFromPointEx(innermost, inside, CWP_SKIPINVISIBLE);
    if (next == innermost) break;
  }
  return IsWindowEnabled(innermost) ? nullptr : innermost;
}

}  // namespace

void ToolTips::Set(HWND dialog, HWND tool, const std::string& text) {
  if (!mTips && text.empty()) return;
  if (!mTips)
    mTips = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                            0, dialog, nullptr, ThisModule(), nullptr);
  // A new text is shown from the next move of the mouse on.
  Stand(mTaker, nullptr, {});
  std::wstring wide = Widened(text);
  TTTOOLINFOW info = ToolOf(dialog, reinterpret_cast<UINT_PTR>(tool), TTF_IDISHWND | TTF_SUBCLASS);
  info.lpszText = wide.data();
  SendMessageW(mTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
  if (!text.empty()) SendMessageW(mTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void ToolTips::MouseIsIn(HWND window, UINT message) {
  if (!mTips) return;
  POINT at = {};
  GetCursorPos(&at);
  const HWND disabled = DisabledAt(window, at);
  const Peer* const peer = disabled ? Peer::Holding(disabled) : nullptr;
  const std::string text = peer ? peer->Subject().ToolTipText() : std::string();
  Stand(window, text.empty() ? nullptr : disabled, text);
  if (!mDisabled) return;
  POINT inside = at;
  ScreenToClient(window, &inside);
  const MSG moved = {window, message, 0, MAKELPARAM(inside.x, inside.y), 0, at};
  SendMessageW(mTips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&moved));
}

void ToolTips::Stand(HWND window, HWND disabled, const std::string& text) {
  if (disabled == mDisabled && (!disabled || window == mTaker)) return;
  TTTOOLINFOW tool = ToolOf(mTaker, kDisabledTool, 0);
  if (mDisabled) SendMessageW(mTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  mDisabled = disabled;
  mTaker = window;
  if (!disabled) return;
  std::wstring wide = Widened(text);
  tool = ToolOf(window, kDisabledTool, 0);
  tool.lpszText = wide.data();
  GetWindowRect(disabled, &tool.rect);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&tool.rect), 2);
  SendMessageW(mTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace orx::win32
