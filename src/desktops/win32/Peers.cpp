#include "desktops/win32/Peers.h"

#include "desktops/win32/WindowClasses.h"

namespace orx::win32 {

HWND MakeWindow(const wchar_t* className, DWORD style, const WindowSite& site, DWORD extendedStyle) {
  return Made(CreateWindowExW(extendedStyle, className, L"", style | WS_CHILD, 0, 0, 0, 0, site.Parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(site.Id)), ThisModule(), nullptr));
}

HWND MakePane(DWORD style, const WindowSite& site) {
  return MakeWindow(WindowClasses::kPane, style, site, WS_EX_CONTROLPARENT);
}

}  // namespace orx::win32
