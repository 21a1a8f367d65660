#include "desktops/win32/Owners.h"

namespace orx::win32 {
namespace {

struct Search {
  HWND Except;
  HWND Found;
};

bool IsSeen(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  return IsWindowVisible(window) && !IsRectEmpty(&place);
}

/// Windows come in their order on the screen. One that takes no input is behind another that is modal.
BOOL CALLBACK Look(HWND window, LPARAM into) {
  auto& search = *reinterpret_cast<Search*>(into);
  const bool isTool = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
  if (window == search.Except || isTool || !IsSeen(window)) return TRUE;
  if (IsWindowEnabled(window)) {
    search.Found = window;
    return FALSE;
  }
  if (!search.Found) search.Found = window;
  return TRUE;
}

}  // namespace

HWND NamedOwner(std::uintptr_t handle) {
  const auto window = reinterpret_cast<HWND>(handle);
  return window && IsWindow(window) ? GetAncestor(window, GA_ROOT) : nullptr;
}

HWND ForemostWindow(HWND except) {
  const HWND active = GetActiveWindow();
  if (active && active != except && IsWindowVisible(active)) return active;
  Search search = {except, nullptr};
  EnumThreadWindows(GetCurrentThreadId(), &Look, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

HWND ModalOwner(std::uintptr_t handle) {
  const HWND named = NamedOwner(handle);
  return named ? named : ForemostWindow();
}

}  // namespace orx::win32
