#include "desktops/win32/MousePointers.h"

namespace orx::win32 {

HCURSOR CursorOf(Pointer pointer) {
  switch (pointer) {
    case Pointer::Hourglass:
      return LoadCursorW(nullptr, IDC_WAIT);
    case Pointer::SizeNS:
      return LoadCursorW(nullptr, IDC_SIZENS);
    case Pointer::Default:
      break;
  }
  return nullptr;
}

void ShowPointer(Pointer pointer) {
  if (const HCURSOR cursor = CursorOf(pointer)) {
    SetCursor(cursor);
    return;
  }
  // The window would be asked when the mouse moves next, but a user who waits does not move it.
  POINT place = {};
  GetCursorPos(&place);
  const HWND window = WindowFromPoint(place);
  if (!window || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return;
  const LRESULT part = SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
  SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(part, WM_MOUSEMOVE));
}

}  // namespace orx::win32
