#include "com/ControlKeys.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <vector>

namespace orx::com {
namespace {

BOOL CALLBACK CollectTabStop(HWND window, LPARAM into) {
  const bool stops = (GetWindowLongPtrW(window, GWL_STYLE) & WS_TABSTOP) != 0;
  if (stops && IsWindowVisible(window) && IsWindowEnabled(window))
    reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
  return TRUE;
}

/// In z-order, however deeply nested. GetNextDlgTabItem would stop at windows that do not declare themselves parents of
/// controls.
std::vector<HWND> TabStops(HWND area) {
  std::vector<HWND> stops;
  EnumChildWindows(area, CollectTabStop, reinterpret_cast<LPARAM>(&stops));
  return stops;
}

void TakeFocus(HWND window) {
  SetFocus(window);
  if (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) SendMessageW(window, EM_SETSEL, 0, -1);
}

bool WalkOn(HWND area, bool backwards) {
  const std::vector<HWND> stops = TabStops(area);
  const HWND focus = GetFocus();
  const auto at =
      std::find_if(stops.begin(), stops.end(), [focus](HWND stop) { return stop == focus || IsChild(stop, focus); });
  if (at == stops.end()) return false;
  if (backwards ? at == stops.begin() : at + 1 == stops.end()) return false;
  TakeFocus(backwards ? *(at - 1) : *(at + 1));
  return true;
}

bool IsManyLined(HWND window) {
  wchar_t name[8] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return _wcsicmp(name, L"Edit") == 0 && (GetWindowLongPtrW(window, GWL_STYLE) & ES_MULTILINE) != 0;
}

bool Wants(const MSG& message) {
  // A text field of several lines claims every key, and leaves Tab and Escape to the dialog's window procedure.
  if (IsManyLined(message.hwnd))
    return message.wParam == VK_RETURN && (GetWindowLongPtrW(message.hwnd, GWL_STYLE) & ES_WANTRETURN) != 0;
  const LRESULT code = SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  return (code & DLGC_WANTALLKEYS) != 0 || (message.wParam == VK_TAB && (code & DLGC_WANTTAB) != 0);
}

bool PressesButton(const MSG& message) {
  const LRESULT code = SendMessageW(message.hwnd, WM_GETDLGCODE, 0, 0);
  if (!(code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON))) return false;
  SendMessageW(message.hwnd, BM_CLICK, 0, 0);
  return true;
}

bool IsDialogKey(const MSG& message) {
  return message.message == WM_KEYDOWN && GetKeyState(VK_CONTROL) >= 0 &&
         (message.wParam == VK_TAB || message.wParam == VK_RETURN || message.wParam == VK_ESCAPE);
}

}  // namespace

bool HasFocusInside(HWND area) {
  return IsChild(area, GetFocus()) != FALSE;
}

void FocusInside(HWND area, bool backwards) {
  const std::vector<HWND> stops = TabStops(area);
  if (!stops.empty()) return TakeFocus(backwards ? stops.back() : stops.front());
  const HWND child = GetWindow(area, GW_CHILD);
  SetFocus(child ? child : area);
}

bool KeepsKey(HWND area, const MSG& message) {
  if (!IsDialogKey(message)) return false;
  if (Wants(message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
  }
  if (message.wParam == VK_TAB) return WalkOn(area, GetKeyState(VK_SHIFT) < 0);
  return message.wParam == VK_RETURN && PressesButton(message);
}

}  // namespace orx::com
